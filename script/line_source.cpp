#include "line_source.h"

#include <cstring>

namespace mapcfg {
namespace detail {

namespace {
// Bytes read from the file at once.
constexpr size_t kBlock = 256 * 1024;
constexpr char kCtrlZ = 0x1A;
}  // namespace

LineSource::LineSource(std::FILE* file) : file_(file), buf_(new char[kBlock + LineSource::kPiece + 2]) {}

// Moves the unread bytes to the front and appends the next block, translated.
bool LineSource::Fill() {
  if (eof_) return false;
  const size_t keep = end_ - begin_;
  std::memmove(buf_.get(), buf_.get() + begin_, keep);
  begin_ = 0;
  end_ = keep;
  char* out = buf_.get() + end_;
  char* in = buf_.get() + kPiece + 2;  // the raw block goes behind room for the kept bytes
  size_t got = std::fread(in, 1, kBlock - (kPiece + 2), file_);
  if (got == 0) {
    eof_ = true;
  } else {
    // A Ctrl-Z byte ends a text file.
    if (const void* z = std::memchr(in, kCtrlZ, got)) {
      got = static_cast<size_t>(static_cast<const char*>(z) - in);
      eof_ = true;
    }
    if (pending_cr_ && got > 0 && in[0] != '\n') *out++ = '\r';
    if (got > 0) pending_cr_ = false;
    const char* p = in;
    const char* stop = in + got;
    while (p < stop) {
      const char* cr = static_cast<const char*>(std::memchr(p, '\r', static_cast<size_t>(stop - p)));
      const char* run_end = cr ? cr : stop;
      std::memmove(out, p, static_cast<size_t>(run_end - p));
      out += run_end - p;
      if (!cr) break;
      if (cr + 1 == stop) {
        if (eof_) *out++ = '\r';
        else pending_cr_ = true;  // decided by the next block
      } else if (cr[1] != '\n') {
        *out++ = '\r';
      }
      p = cr + 1;
    }
  }
  if (eof_ && pending_cr_) {
    *out++ = '\r';
    pending_cr_ = false;
  }
  end_ = static_cast<size_t>(out - buf_.get());
  return end_ > keep;
}

bool LineSource::Next(std::string_view* piece, bool* split) {
  *split = false;
  for (;;) {
    const size_t avail = end_ - begin_;
    const size_t look = avail < kPiece ? avail : kPiece;
    const char* start = buf_.get() + begin_;
    const char* nl = static_cast<const char*>(std::memchr(start, '\n', look));
    size_t take = 0;
    size_t advance = 0;
    if (nl) {
      take = static_cast<size_t>(nl - start);
      advance = take + 1;
    } else if (avail >= kPiece) {
      take = advance = kPiece;
      // A line of exactly 2047 bytes leaves only its LF for the next read.
      *split = !(avail > kPiece && start[kPiece] == '\n');
    } else if (!eof_ && Fill()) {
      continue;
    } else if (avail > 0) {
      take = advance = avail;
    } else {
      return false;
    }
    line_ = next_line_;
    if (nl) ++next_line_;
    begin_ += advance;
    const void* nul = std::memchr(start, '\0', take);
    if (nul) take = static_cast<size_t>(static_cast<const char*>(nul) - start);
    *piece = std::string_view(start, take);
    return true;
  }
}

}  // namespace detail
}  // namespace mapcfg
