// The grammar of configuration scripts, in one place.
#ifndef MAPCFG_SCRIPT_SCRIPT_READER_H_
#define MAPCFG_SCRIPT_SCRIPT_READER_H_

#include <string>
#include <string_view>

#include "base/line_source.h"
#include "mapcfg/script.h"

namespace mapcfg {

// Reads one script file into a CCfgScript, following its #Include rows with
// readers of their own. Reports what it does to the optional observer.
class ScriptReader {
 public:
  // Limits shared by all readers of one top-level Open.
  struct Budget {
    int included = 0;  // included files opened so far
  };

  ScriptReader(CCfgScript& script, ScriptEvents* events, Budget& budget, int depth)
      : script_(script), events_(events), budget_(budget), depth_(depth) {}

  // Reads `path`; returns false when the file cannot be opened.
  bool ReadFile(const std::string& path);

 private:
  // One complete block appended: true; end of file: false.
  bool GetNextCfg();
  // The next logical row (continuations joined, includes followed), the
  // line it starts on in *line; false at end of file.
  bool GetRowData(std::string_view* row, int* line);
  // Next row that is neither empty nor a comment.
  bool GetContentRow(std::string_view* row, int* line);
  void Include(std::string_view row, int pos, int line);

  CCfgScript& script_;
  ScriptEvents* events_;
  Budget& budget_;
  int depth_;
  std::string path_;
  detail::LineSource* lines_ = nullptr;
  std::string joined_;  // a row built from continued lines
};

}  // namespace mapcfg

#endif  // MAPCFG_SCRIPT_SCRIPT_READER_H_
