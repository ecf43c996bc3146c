// Configuration scripts: the reader (CCfgScript) and the routines that split
// script values into fields.
//
// A script is a sequence of blocks:
//
//   // a comment row
//   #Include <Common.cfg>
//   Config: "Block name"
//   Begin
//   key = value; more; fields
//   long = first part _
//          second part
//   End
//
// Block and key names are matched without regard to ASCII case; the first
// match in file order wins. Nothing here reports errors: malformed text only
// loses the block concerned. Hosts that need to know what was lost (such as
// the `mapcfg check` linter) pass a ScriptEvents observer to Open.
//
// Thread safety: a CCfgScript is not synchronised; the free functions are
// stateless and safe to call from any thread.
#ifndef MAPCFG_SCRIPT_H_
#define MAPCFG_SCRIPT_H_

#include <cstdio>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {

// Number of files an #Include chain may nest before the reader stops
// following it (the top-level file is level 1). Deep enough for any real
// configuration, low enough to keep the stack small.
constexpr int kMaxIncludeDepth = 64;
// Number of included files one top-level Open follows in all, far more than
// any real configuration uses. It bounds the work for scripts that include
// the same file many times over (a file that includes itself twice would
// otherwise take 2^64 reads).
constexpr int kMaxIncludedFiles = 256;
// Longest physical line piece read at once; a longer line continues as a
// row of its own.
constexpr int kMaxPhysicalLine = 2047;

// Observer of what the reader does with a script, row by row. Every callback
// has an empty default. `file` is the path as the reader opened it; `line` is
// the 1-based number of the source line where the reported thing starts.
// The reader lets an exception thrown by a callback pass out of Open: every
// file the read opened is closed, and the blocks completed before it stay.
class MAPCFG_EXPORT ScriptEvents {
 public:
  virtual ~ScriptEvents();
  // A file was opened; depth 1 is the file given to Open.
  virtual void OnFileBegin(const std::string& file, int depth);
  virtual void OnFileEnd(const std::string& file, int depth);
  // Every physical line piece (see OnLineSplit) as the reader takes it:
  // untrimmed, without its line end. `nul` tells that a NUL byte cut it: the
  // piece ends before that byte and the rest of it is not read.
  virtual void OnLine(const std::string& file, int line, const std::string& text, bool nul);
  // A Ctrl-Z byte on `line` ended the file. `text_after` tells whether
  // anything other than white space, NUL and Ctrl-Z bytes follows it (looking at most
  // 1 MiB past it); such text is not read.
  virtual void OnCtrlZ(const std::string& file, int line, bool text_after);
  // The trimmed line `piece` (at `line`) ended in "_", so the trimmed line
  // `next_piece` (at `next_line`) was joined to its row.
  virtual void OnJoin(const std::string& file, int line, const std::string& piece, int next_line,
                      const std::string& next_piece);
  // A physical line longer than kMaxPhysicalLine was split; the piece after
  // the split is read as a row of its own.
  virtual void OnLineSplit(const std::string& file, int line);
  // The file ended while a row continued with "_" was incomplete: it is lost.
  virtual void OnRowLostAtEnd(const std::string& file, int line);
  // An #Include directive; `opened` tells whether the file was read. When it
  // was not, `too_deep` or `too_many` says the reader's limits stopped it,
  // otherwise the file could not be opened.
  virtual void OnInclude(const std::string& file, int line, const std::string& target, bool opened,
                         bool too_deep, bool too_many);
  // A row outside any block that is not a block header (ignored text).
  virtual void OnStrayRow(const std::string& file, int line, const std::string& row);
  // A header row "Config" with nothing after the colon (ignored).
  virtual void OnEmptyHeader(const std::string& file, int line);
  // A header whose next row was not "Begin": the header is abandoned and
  // `row` (read at `row_line`) is consumed with it.
  virtual void OnHeaderAbandoned(const std::string& file, int line, const std::string& name,
                                 int row_line, const std::string& row);
  // A key row inside a block. `has_equals` is false for a row without "=":
  // the whole row is then the key and the value is empty.
  virtual void OnKey(const std::string& file, int line, const std::string& block, const std::string& key,
                     bool has_equals);
  // A key row of an open block that looks like a block header.
  virtual void OnHeaderInBlock(const std::string& file, int line, const std::string& block);
  // A block was completed by its "End" row and appended.
  virtual void OnBlock(const std::string& file, int line, int end_line, const std::string& name);
  // The file ended inside a block (no "End") or before its "Begin": lost.
  virtual void OnBlockLost(const std::string& file, int line, const std::string& name, bool had_begin);
};

// A configuration script held in memory: ordered blocks of key/value rows.
// Values are kept as raw text; split them with sGetSubStr.
class MAPCFG_EXPORT CCfgScript {
 public:
  CCfgScript();
  ~CCfgScript();
  CCfgScript(const CCfgScript&) = delete;
  CCfgScript& operator=(const CCfgScript&) = delete;

  // Reads the script at `path` (and the files it includes). When `append` is
  // 0 the script is emptied first. A file that cannot be opened adds
  // nothing. `events` may be null; it is not owned and is called during the
  // read only.
  void Open(const char* path, int append, ScriptEvents* events = nullptr);

  // Number of blocks read.
  int GetCfgCnt() const;
  // Name of block `index`; empty when out of range.
  String GetCfgName(int index) const;
  // Number of keys of the first block named `block`; -1 when none is.
  int GetKeyCnt(const char* block) const;
  // Key `index` of the first block named `block`; empty when missing.
  String GetKeyName(const char* block, int index) const;
  // Value of the first key named `key` in the first block named `block`;
  // empty when either is missing.
  String GetKeyVal(const char* block, const char* key) const;
  // Value `index` of the first block named `block`; empty when missing.
  String GetKeyVal(const char* block, int index) const;

  // Access by block index, which also reaches blocks whose name repeats an
  // earlier one (unreachable through the name lookups above).
  // Number of keys of block `block`; -1 when out of range.
  int GetKeyCntAt(int block) const;
  // Key `index` of block `block`; empty when either is out of range.
  String GetKeyNameAt(int block, int index) const;
  // Value `index` of block `block`; empty when either is out of range.
  String GetKeyValAt(int block, int index) const;

 private:
  friend class ScriptReader;
  struct Block {
    String name;
    StringArray keys;
    StringArray values;
  };

  void Clear();
  const Block* FindBlock(const char* block) const;
  void AddBlock(Block&& block);

  MAPCFG_STD_MEMBERS_BEGIN
  std::vector<Block> m_blocks;
  // ASCII-folded block name -> index of the first block of that name.
  std::unordered_map<std::string, int> m_index;
  MAPCFG_STD_MEMBERS_END
};

// --- Value tokenising -------------------------------------------------------

// Takes the field of `text` that starts at byte `start` and ends before the
// next `sep`: leading blanks (and, when ctrl is non-zero, control bytes 1..31)
// are skipped, controls inside become blanks, trailing white space goes.
// Stores in *pos (if not null) the index of the separator that ended the
// field, the text length, or `start` when start was not below it. Then one
// leading `prefix` and one trailing `suffix` are removed when present.
MAPCFG_EXPORT String sGetSubStr(const char* text, char sep, int start, int* pos = nullptr,
                                const char* prefix = "", const char* suffix = "", int ctrl = 1);
// Same as above for a String (which may hold NUL bytes; they end nothing).
MAPCFG_EXPORT String sGetSubStr(const String& text, char sep, int start, int* pos = nullptr,
                                const char* prefix = "", const char* suffix = "", int ctrl = 1);

// Appends the fields of `text` (split at `sep`) to `out` up to the first empty
// field. With `out2`, fields alternate between `out` and `out2` and a pair
// whose second field is empty is not counted. Returns the count taken.
MAPCFG_EXPORT int sGetStrArray(const char* text, StringArray& out, char sep, StringArray* out2 = nullptr,
                               const char* prefix = "", const char* suffix = "");

// Reads the next non-blank line of `stream` into `line`, with control bytes
// as blanks and both ends trimmed. Returns 1, or 0 at end of file (line
// empty). The caller keeps ownership of the stream.
MAPCFG_EXPORT int sReadLineFromFile(std::FILE* stream, String& line);

// `text` right-aligned in `width` columns with blanks in front; never cut.
MAPCFG_EXPORT String sPrefixLenStr(const char* text, int width);
// `text` followed by `fill` up to `width` columns; never cut.
MAPCFG_EXPORT String sSuffixLenStr(const char* text, int width, char fill = ' ');
// "name" + blank + (width - length of name) fills + blank + "value".
MAPCFG_EXPORT String sFormatStr(const char* name, const char* value, char fill, int width);
// Drops leading bytes 0..32; other bytes 0..32 become one blank each
// (squeeze 0) or are dropped (squeeze non-zero); the right end is trimmed.
MAPCFG_EXPORT String sFormatString(const char* text, int squeeze);
// The leading name of `text`: letters and high-bit bytes, then also digits
// and "_%()". May be empty.
MAPCFG_EXPORT String sGetFmtFldName(const char* text);
// 1 when trimmed `text` is a plain decimal number: digits, one ".", and a
// leading "-" only when `negative` is non-zero.
MAPCFG_EXPORT int sIsNumber(String text, int negative);
// Escaped line breaks ("\r\n", then "\n") become CR LF.
MAPCFG_EXPORT void sNewLnStrToAct(String& text);
// CR LF, then bare LF, become the escaped form "\n".
MAPCFG_EXPORT void sNewLnActToStr(String& text);
// Every LF becomes CR LF.
MAPCFG_EXPORT void sNewLnDrawToAct(String& text);

}  // namespace mapcfg

#endif  // MAPCFG_SCRIPT_H_
