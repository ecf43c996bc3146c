#include "line_source.h"

#include <algorithm>
#include <cstring>

#include "base/text_bytes.h"

namespace mapcfg {
namespace detail {

namespace {
// Bytes read from the file at once: the buffer starts small, since most
// scripts are, and doubles up to kMaxBlock while the file goes on.
constexpr size_t kFirstBlock = 4 * 1024;
constexpr size_t kMaxBlock = 256 * 1024;
constexpr char kCtrlZ = 0x1A;
}  // namespace

LineSource::LineSource(std::FILE* file) : file_(file), buf_(new char[kFirstBlock]), capacity_(kFirstBlock) {}

// Moves the unread bytes to the front and appends the next block.
bool LineSource::Fill() {
  if (eof_) return false;
  const size_t keep = end_ - begin_;
  if (end_ == capacity_ && capacity_ < kMaxBlock) {
    std::unique_ptr<char[]> bigger(new char[capacity_ * 2]);
    std::memcpy(bigger.get(), buf_.get() + begin_, keep);
    buf_ = std::move(bigger);
    capacity_ *= 2;
  } else {
    std::memmove(buf_.get(), buf_.get() + begin_, keep);
  }
  begin_ = 0;
  end_ = keep;
  size_t got = std::fread(buf_.get() + keep, 1, capacity_ - keep, file_);
  if (got == 0) {
    eof_ = true;
    return false;
  }
  raw_end_ = keep + got;
  // A Ctrl-Z byte ends a text file. The bytes after it stay in the buffer
  // for TextAfterEnd; the line it lies on is the line of the first unread
  // byte plus the line ends before it.
  if (const void* z = std::memchr(buf_.get() + keep, kCtrlZ, got)) {
    got = static_cast<size_t>(static_cast<const char*>(z) - (buf_.get() + keep));
    eof_ = true;
    ctrl_z_line_ = next_line_ + static_cast<int>(std::count(buf_.get(), buf_.get() + keep + got, '\n'));
  }
  end_ = keep + got;
  return got > 0;
}

// Text mode turns CR LF into LF. Lines never hold an LF, so the only CR LF of
// a line is the one that ends it: the bytes of a line up to that CR are the
// same raw and translated, and only the line's length needs the CR taken off.
bool LineSource::Next(std::string_view* piece, bool* split) {
  *split = false;
  for (;;) {
    const char* start = buf_.get() + begin_;
    const size_t avail = end_ - begin_;
    // The line fits one read when its text, without the line end, is at
    // most kPiece - 1 bytes: its LF then lies within kPiece + 1 raw bytes.
    const size_t look = avail < kPiece + 1 ? avail : kPiece + 1;
    const char* nl = static_cast<const char*>(std::memchr(start, '\n', look));
    size_t text = 0;
    if (nl) {
      text = static_cast<size_t>(nl - start);
      if (text > 0 && start[text - 1] == '\r') --text;
    }
    size_t take = 0;
    size_t advance = 0;
    if (nl && text < kPiece) {
      take = text;
      advance = static_cast<size_t>(nl - start) + 1;
    } else if (nl || avail > kPiece || (avail == kPiece && eof_)) {
      take = advance = kPiece;
      // A line of exactly kPiece bytes leaves only its line end to read.
      const char* rest = start + kPiece;
      const size_t left = avail - kPiece;
      *split = left > 0 && !((rest[0] == '\n') || (left >= 2 && rest[0] == '\r' && rest[1] == '\n'));
    } else if (!eof_) {
      // Fill moves the unread bytes (into a new buffer when it grows), even
      // when it reads nothing more: look again at where they are now.
      Fill();
      continue;
    } else if (avail > 0) {
      take = advance = avail;
    } else {
      return false;
    }
    line_ = next_line_;
    if (take < advance) ++next_line_;
    begin_ += advance;
    const void* nul = std::memchr(start, '\0', take);
    nul_ = nul != nullptr;
    if (nul) take = static_cast<size_t>(static_cast<const char*>(nul) - start);
    *piece = std::string_view(start, take);
    return true;
  }
}

bool LineSource::TextAfterEnd() {
  if (ctrl_z_line_ == 0) return false;
  const auto is_text = [](char c) { return c != kCtrlZ && c != '\0' && !IsSpace(c); };
  // The bytes after the mark that were read with it, then the rest of the
  // file up to the look-ahead limit.
  if (std::any_of(buf_.get() + end_ + 1, buf_.get() + raw_end_, is_text)) return true;
  size_t looked = raw_end_ - end_;
  while (looked < kLookPastEnd) {
    const size_t want = std::min(capacity_ - end_, kLookPastEnd - looked);
    const size_t got = std::fread(buf_.get() + end_, 1, want, file_);
    if (got == 0) return false;
    if (std::any_of(buf_.get() + end_, buf_.get() + end_ + got, is_text)) return true;
    looked += got;
  }
  return false;
}

}  // namespace detail
}  // namespace mapcfg
