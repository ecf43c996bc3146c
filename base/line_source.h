// Physical lines of a text file (scripts, the settings file), read in large
// blocks.
#ifndef MAPCFG_BASE_LINE_SOURCE_H_
#define MAPCFG_BASE_LINE_SOURCE_H_

#include <cstdio>
#include <memory>
#include <string_view>

namespace mapcfg {
namespace detail {

// Hands out the pieces a text-mode line read with a 2048-byte buffer would
// give: each piece is one line up to and including its LF, or the next 2047
// bytes of a longer line. The file is read as the suite's platform reads text
// files: CR LF becomes LF and a Ctrl-Z byte ends the file. A piece is cut at
// its first NUL byte, as C text would be.
class LineSource {
 public:
  static constexpr size_t kPiece = 2047;

  explicit LineSource(std::FILE* file);
  LineSource(const LineSource&) = delete;
  LineSource& operator=(const LineSource&) = delete;

  // Next piece, without its LF. Returns false at end of file (or on a read
  // error). `*split` is set when the piece is 2047 bytes of a longer line.
  // The view stays valid until the next call.
  bool Next(std::string_view* piece, bool* split);
  // 1-based number of the source line the last piece came from.
  int line() const { return line_; }
  // True when a NUL byte cut the last piece short.
  bool nul() const { return nul_; }
  // The line holding the Ctrl-Z byte that ended the file, or 0 when none did
  // (so far).
  int ctrl_z_line() const { return ctrl_z_line_; }
  // After a Ctrl-Z ended the file: whether anything other than white space,
  // NUL and Ctrl-Z bytes follows it within the next kLookPastEnd bytes. Reads
  // on in the file to find out; call it once, when all pieces were taken.
  bool TextAfterEnd();

  static constexpr size_t kLookPastEnd = 1024 * 1024;

 private:
  // Moves the unread bytes to the front of the buffer (growing it when full)
  // and reads more after them. Pointers into the buffer are stale after it,
  // whatever it returns.
  bool Fill();

  std::FILE* file_;
  std::unique_ptr<char[]> buf_;
  size_t capacity_;
  size_t begin_ = 0;  // next unread byte
  size_t end_ = 0;    // end of the bytes read
  bool eof_ = false;
  size_t raw_end_ = 0;  // end of the bytes read, those after a Ctrl-Z included
  int line_ = 0;
  int next_line_ = 1;
  bool nul_ = false;
  int ctrl_z_line_ = 0;
};

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_BASE_LINE_SOURCE_H_
