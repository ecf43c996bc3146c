// The archive's memory block, its counters and error, and the transfer of
// the whole block to and from files and caller memory.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>

#include "archive_core.h"
#include "mapcfg/archive.h"
#include "mapcfg/platform.h"

namespace mapcfg {

namespace {

// Smallest block allocated, and the chunk read from a file at once when its
// length is not known in advance.
constexpr size_t kMinBlock = 4096;
constexpr uint32_t kFileChunk = 1u << 16;
// Longest error text kept from a library failure.
constexpr size_t kMaxErrorText = 255;

// Reports a failed file operation: the path and the system's reason.
int FileFailure(CFFArchive& a, const String& path, const char* action, int err) {
  String text = "cannot " + String(action) + " \"" + path + "\"";
  if (err != 0) text += String(": ") + std::strerror(err);
  const std::runtime_error failure(text);
  a.GetError(&failure);
  return 0;
}

}  // namespace

void detail::ArchiveCore::Fail(CFFArchive& a, int message) {
  a.error_ = 1;
  a.error_text_ = detail::InfoText(message);
}

bool detail::ArchiveCore::Grow(CFFArchive& a, uint64_t need) {
  // Doubling keeps appends amortised O(1) per byte; the block never shrinks.
  uint64_t capacity = std::max<uint64_t>({need, 2 * static_cast<uint64_t>(a.block_capacity_), kMinBlock});
  capacity = std::min<uint64_t>(capacity, std::max<uint64_t>(need, kMaxStreamBytes));
  if (capacity > std::numeric_limits<size_t>::max()) capacity = need;
  if (need > std::numeric_limits<size_t>::max()) {
    Fail(a, kMsgLibraryFailure);
    return false;
  }
  void* grown = std::realloc(a.block_, static_cast<size_t>(capacity));
  if (!grown && capacity > need) {
    capacity = need;
    grown = std::realloc(a.block_, static_cast<size_t>(capacity));
  }
  if (!grown) {
    Fail(a, kMsgLibraryFailure);
    return false;
  }
  a.block_ = static_cast<uint8_t*>(grown);
  a.block_capacity_ = static_cast<size_t>(capacity);
  return true;
}

CFFArchive::CFFArchive() noexcept = default;

CFFArchive::~CFFArchive() {
  std::free(block_);
  block_ = nullptr;
  read_pos_ = 0;
  size_ = 0;
  error_ = 0;
}

void CFFArchive::WriteUnit(const void* data, uint32_t n) {
  if (!data && n) {
    error_ = 0;
    GetError(nullptr);
    return;
  }
  ArchiveCore::Write(*this, data, n);
}

int CFFArchive::ReadUnit(void* buffer, uint32_t n) {
  const uint32_t start = block_pos_;
  const uint8_t* p = nullptr;
  if (ArchiveCore::Take(*this, n, &p)) {
    if (buffer && n) std::memcpy(buffer, p, n);
    return 1;
  }
  // A short read still delivers what the block held.
  if (buffer && block_pos_ > start) std::memcpy(buffer, block_ + start, block_pos_ - start);
  return 0;
}

void CFFArchive::Rewind() {
  read_pos_ = 0;
  block_pos_ = 0;
}

void CFFArchive::Empty() { ArchiveCore::Reset(*this); }

uint32_t CFFArchive::GetCount() const { return size_; }

String CFFArchive::GetLastError() const { return error_ ? error_text_ : String(); }

void CFFArchive::GetError(const std::exception* e) {
  error_ = 1;
  const char* what = e ? e->what() : nullptr;
  if (what && *what)
    error_text_.assign(what, std::min(std::strlen(what), kMaxErrorText));
  else
    error_text_ = detail::InfoText(kMsgLibraryFailure);
}

int CFFArchive::FromFile(const String& path) {
  error_ = 0;
  ArchiveCore::Reset(*this);
  errno = 0;
  std::FILE* f = sOpenFile(path, "rb");
  if (!f) return FileFailure(*this, path, "open", errno);
  // Read the whole file at once when its length is known, then whatever the
  // length did not tell (a file that grew, a stream without a length).
  bool ok = true;
  long length = 0;
  if (std::fseek(f, 0, SEEK_END) == 0) length = std::ftell(f);
  std::rewind(f);
  if (length > 0) {
    ok = ArchiveCore::Reserve(*this, static_cast<uint64_t>(length));
    if (ok) {
      const size_t got = std::fread(ArchiveCore::Space(*this), 1, static_cast<size_t>(length), f);
      ArchiveCore::Commit(*this, static_cast<uint32_t>(got));
    }
  }
  int next = EOF;
  while (ok && !std::ferror(f) && (next = std::fgetc(f)) != EOF) {
    std::ungetc(next, f);
    const uint32_t room = std::min<uint32_t>(kFileChunk, kMaxStreamBytes - size_);
    // A full stream fails in Reserve: one more byte would pass the 32-bit size.
    ok = ArchiveCore::Reserve(*this, room == 0 ? 1 : room);
    if (!ok) break;
    const size_t got = std::fread(ArchiveCore::Space(*this), 1, room, f);
    ArchiveCore::Commit(*this, static_cast<uint32_t>(got));
  }
  if (ok && std::ferror(f)) ok = FileFailure(*this, path, "read", errno) != 0;
  std::fclose(f);
  block_pos_ = 0;
  return ok ? 1 : 0;
}

int CFFArchive::ToFile(const String& path) {
  error_ = 0;
  read_pos_ = 0;
  block_pos_ = 0;
  errno = 0;
  std::FILE* f = sOpenFile(path, "wb");
  if (!f) return FileFailure(*this, path, "create", errno);
  // The whole physical block, stale bytes beyond the size included.
  bool ok = block_length_ == 0 || std::fwrite(block_, 1, block_length_, f) == block_length_;
  ok = std::fclose(f) == 0 && ok;
  return ok ? 1 : FileFailure(*this, path, "write", errno);
}

int CFFArchive::FromData(const void* data, uint32_t n) {
  error_ = 0;
  ArchiveCore::Reset(*this);
  if (!data && n) {
    GetError(nullptr);
    return 0;
  }
  const bool ok = ArchiveCore::Write(*this, data, n);
  block_pos_ = 0;
  return ok ? 1 : 0;
}

std::unique_ptr<uint8_t[]> CFFArchive::ToData(uint32_t& n) {
  error_ = 0;
  read_pos_ = 0;
  block_pos_ = 0;
  n = 0;
  if (size_ == 0) return nullptr;
  std::unique_ptr<uint8_t[]> copy(new (std::nothrow) uint8_t[size_]);
  if (!copy) {
    GetError(nullptr);
    return nullptr;
  }
  const uint8_t* p = nullptr;
  const bool ok = ArchiveCore::Take(*this, size_, &p);
  read_pos_ = 0;
  block_pos_ = 0;
  if (!ok) return nullptr;
  std::memcpy(copy.get(), p, size_);
  n = size_;
  return copy;
}

}  // namespace mapcfg
