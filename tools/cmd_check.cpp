// mapcfg check: a linter for script authors. It reads each script with the
// library's own reader and reports, with file:line, what the reader drops
// silently or does in a way an author would not expect. Everything it knows
// about a script comes from the reader's events; it parses nothing itself.
#include <mapcfg/mapcfg.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <set>
#include <vector>

#include "commands.h"
#include "display_text.h"
#include "input.h"
#include "map_kinds.h"
#include "store/config_strings.h"

namespace mapcfg_tool {

namespace {

struct Report {
  int order;  // the file's place among the files read, then the line
  int line;   // 0: the file as a whole
  std::string file;  // as the user would write it, not escaped
  std::string code;
  std::string message;
  std::string block = {};  // a duplicate key's block, folded
};

std::string Quote(const std::string& s) {
  return "\"" + ToDisplay(s.size() > 60 ? s.substr(0, 60) + "..." : s, false) + "\"";
}

bool StartsWith(const std::string& s, const char* prefix) {
  return s.compare(0, std::char_traits<char>::length(prefix), prefix) == 0;
}

const char kLimits[] = "the reader follows it until its include limits stop it";

class Linter : public mapcfg::ScriptEvents {
 public:
  explicit Linter(const ScriptInput& input) : input_(input) {}

  void OnFileBegin(const std::string& file, int depth) override {
    if (depth > 1) StopUnlessRegular(file);
    Frame f;
    f.path = file;
    f.id = FileId(file);
    f.order = order_.emplace(f.id, static_cast<int>(order_.size())).first->second;
    f.scan = scanned_.insert(f.id).second;
    stack_.push_back(std::move(f));
  }

  void OnFileEnd(const std::string&, int) override {
    EndFile(stack_.back(), true);
    stack_.pop_back();
  }

  void OnLine(const std::string& file, int line, const std::string& text, bool nul) override {
    Frame& f = stack_.back();
    f.last_line = line;
    if (!f.scan) return;
    std::string bytes = text;
    if (line == 1 && !f.bom_checked) {
      f.bom_checked = true;
      if (StartsWith(bytes, "\xEF\xBB\xBF")) {
        Add(file, line, "byte-order-mark",
            "the file starts with a UTF-8 byte-order mark: its three bytes are read as text of this line");
        bytes.erase(0, 3);
      }
    }
    if (nul) Add(file, line, "nul-byte", "NUL byte: the reader ends the line there and drops the rest of it");
    if (text.find('\r') != std::string::npos)
      Add(file, line, "cr-line-end",
          "CR without LF: the reader ends lines at LF only, so the text after the CR stays on this line "
          "(a file saved with CR line ends is one long line)");
    const bool high = std::any_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) != 0; });
    f.high = f.high || high;
    f.utf8 = f.utf8 && (!high || LooksLikeUtf8(bytes));
    const size_t bad = FirstNonGbk(bytes);
    if (bad != std::string::npos) f.non_gbk.emplace_back(line, bytes.substr(bad, 1));
  }

  void OnCtrlZ(const std::string& file, int line, bool text_after) override {
    if (text_after)
      Add(file, line, "ctrl-z", "a Ctrl-Z byte ends the file here: the text after it is not read");
  }

  void OnJoin(const std::string& file, int line, const std::string& piece, int next_line,
              const std::string& next_piece) override {
    if (EndsInGbkPair(piece))
      Add(file, line, "gbk-underscore",
          "the line ends in " + Quote(piece.substr(piece.size() - 2)) +
              ", whose second byte is \"_\": the reader joins line " + std::to_string(next_line) +
              " to this row, so that line is not a row of its own");
    // A piece that was itself joined to a row is no comment row.
    const bool first_piece = stack_.back().joined_to != line;
    stack_.back().joined_to = next_line;
    if (first_piece && StartsWith(piece, "//"))
      Add(file, line, "comment-continued",
          "comment row ends in \"_\": the reader joins line " + std::to_string(next_line) +
              " to it, so that line is part of the comment");
    else if (StartsWith(next_piece, "//"))
      Add(file, next_line, "comment-joined",
          "comment row joined to the row continued by \"_\" on line " + std::to_string(line) +
              ": its text becomes part of that row");
  }

  void OnLineSplit(const std::string& file, int line) override {
    Add(file, line, "line-split", "line longer than 2047 bytes: the rest is read as a row of its own");
  }
  void OnRowLostAtEnd(const std::string& file, int line) override {
    Add(file, line, "row-lost-at-end", "row continued with \"_\" is lost: the file ends before it does");
  }

  void OnInclude(const std::string& file, int line, const std::string& target, bool opened, bool too_deep,
                 bool too_many) override {
    const std::string shown = "#Include of \"" + NameToDisplay(input_.Shown(target)) + "\"";
    const std::string id = FileId(target);
    // The nearest open copy of the target closes the shortest cycle.
    for (size_t i = stack_.size(); i-- > 0;) {
      if (stack_[i].id != id) continue;
      Cycle(i, file, line, shown);
      return;
    }
    if (too_deep) {
      Add(file, line, "include-too-deep",
          shown + " is not followed: includes nest deeper than " + std::to_string(mapcfg::kMaxIncludeDepth) +
              " files");
    } else if (too_many) {
      Add(file, line, "include-too-many",
          shown + " is not followed: more than " + std::to_string(mapcfg::kMaxIncludedFiles) + " included files");
    } else if (!opened && input_.from_stdin() && stack_.size() == 1) {
      Add(file, line, "include-from-stdin",
          shown + " is not followed: a script read from standard input has no folder to include from");
    } else if (!opened) {
      Unreadable kind;
      const std::string why = WhyUnreadable(ShownPath(target), &kind);
      if (kind == Unreadable::kFolder)
        Add(file, line, "include-folder", shown + " names a folder, not a file: ignored");
      else if (kind == Unreadable::kMissing || kind == Unreadable::kNo)
        Add(file, line, "include-missing", shown + ": file not found, ignored");
      else
        Add(file, line, "include-unreadable", shown + " cannot be read (" + why + "): ignored");
    }
  }

  void OnStrayRow(const std::string& file, int line, const std::string& row) override {
    if (row.find('=') != std::string::npos)
      Add(file, line, "stray-row", "key row outside any block is ignored: " + Quote(row));
    else
      Add(file, line, "stray-row", "row outside any block is ignored: " + Quote(row));
  }
  void OnEmptyHeader(const std::string& file, int line) override {
    Add(file, line, "empty-header", "\"Config:\" without a block name is ignored, and so is the block it heads");
  }
  void OnHeaderAbandoned(const std::string& file, int line, const std::string& name, int row_line,
                         const std::string& row) override {
    Add(file, line, "missing-begin",
        "block " + Quote(name) + " is lost: its header is followed by " + Quote(row) + " (line " +
            std::to_string(row_line) + "), not \"Begin\"");
    const std::string colon = mapcfg::sGetSubStr(row, ':', 0);
    if (Folded(colon) == "config")
      Add(file, row_line, "header-swallowed",
          "\"Config:\" row is swallowed by the header before it (missing \"Begin\")");
  }
  void OnKey(const std::string& file, int line, const std::string&, const std::string& key,
             bool has_equals) override {
    stack_.back().keys.push_back({file, line, key});
    if (!has_equals)
      Add(file, line, "key-without-equals",
          "key row without \"=\": read as the key " + Quote(key) + " with an empty value");
    else if (key.empty())
      Add(file, line, "empty-key", "key row with an empty name: its value is kept under the key \"\"");
  }
  void OnHeaderInBlock(const std::string& file, int line, const std::string& block) override {
    // Said better than by the report on its missing "=" just made.
    if (!reports_.empty() && reports_.back().code == "key-without-equals" && reports_.back().line == line)
      reports_.pop_back();
    Add(file, line, "header-in-block",
        "\"Config:\" row inside block " + Quote(block) + " is read as a key (missing \"End\"?)");
  }
  void OnBlock(const std::string& file, int line, int, const std::string& name) override {
    for (Frame& f : stack_) ++f.blocks;
    const Where here{file, line, name};
    const auto seen = blocks_.emplace(Folded(name), here);
    if (seen.second) block_keys_[Folded(name)] = stack_.back().keys;
    if (!seen.second && !SamePlace(seen.first->second, here))
      Add(file, line, "duplicate-block",
          "block " + Quote(name) + " repeats the name of the block at " + At(seen.first->second) +
              ": it is unreachable by name");
    CheckKeys(name);
  }
  void OnBlockLost(const std::string& file, int line, const std::string& name, bool had_begin) override {
    Add(file, line, had_begin ? "missing-end" : "missing-begin",
        "block " + Quote(name) + " is lost: the file ends before its " + (had_begin ? "\"End\"" : "\"Begin\""));
    stack_.back().keys.clear();
  }

  // The read ended at an included file that is not a regular file.
  void Stopped(const ReadStopped& e) {
    if (stack_.empty()) return;
    const Frame& f = stack_.back();
    Add(f.path, f.last_line, "include-not-regular",
        "#Include of \"" + NameToDisplay(input_.Shown(e.included)) + "\" is " + e.what() +
            " (a device or a pipe): reading stopped here");
    while (!stack_.empty()) {
      EndFile(stack_.back(), false);
      stack_.pop_back();
    }
  }

  // What the single-well templates' track trees hold that the reader
  // cannot follow, in each language that has a template list.
  void CheckTrackTrees(const mapcfg::CCfgScript& script) {
    namespace cfg = mapcfg::cfg;
    char& lang = *mapcfg::sGetCfgLang();
    const char saved = lang;
    for (char l : {0, 1}) {
      const std::string list = mapcfg::sGetCfgStr(l, cfg::kSingleWellTemplate);
      if (script.GetKeyCnt(list.c_str()) < 0) continue;
      lang = l;
      for (const mapcfg::DJTTreeFinding& f : mapcfg::sCfgCheckMapSingle(script)) TrackFinding(f);
      // The list, template and track blocks are read key by key: their
      // keys repeat by design.
      const std::set<std::string> trees = TreeBlocks(script, list, l);
      reports_.erase(std::remove_if(reports_.begin(), reports_.end(),
                                    [&trees](const Report& r) { return trees.count(r.block) > 0; }),
                     reports_.end());
    }
    lang = saved;
  }

  // Every report, by file (in the order they were read) and line.
  std::vector<Report> Reports() {
    for (auto& c : cycles_) reports_.push_back(c.second.second);
    cycles_.clear();
    std::stable_sort(reports_.begin(), reports_.end(), [](const Report& a, const Report& b) {
      return a.order != b.order ? a.order < b.order : a.line < b.line;
    });
    return reports_;
  }

 private:
  struct Where {
    std::string file;
    int line;
    std::string text;
  };
  struct Frame {
    std::string path;
    std::string id;
    int order = 0;
    bool scan = false;  // first read of this file: its bytes are checked
    bool bom_checked = false;
    bool high = false;  // a byte above 0x7F seen
    bool utf8 = true;   // every line so far is UTF-8
    std::vector<std::pair<int, std::string>> non_gbk;  // line, first byte that is not GBK
    int last_line = 0;
    int joined_to = 0;  // the line the last "_" joined to its row
    int blocks = 0;           // blocks completed while this file was open
    std::vector<Where> keys;  // key rows of the block being read in this file
  };

  // One name for all the paths of a file: its canonical path.
  const std::string& FileId(const std::string& library_path) const {
    auto it = ids_.find(library_path);
    if (it != ids_.end()) return it->second;
    std::error_code ec;
    const std::string native = ShownPath(library_path);
    const std::filesystem::path canonical = std::filesystem::weakly_canonical(native, ec);
    return ids_.emplace(library_path, ec ? native : canonical.string()).first->second;
  }

  std::string At(const Where& w) const {
    return NameToDisplay(input_.Shown(w.file)) + ":" + std::to_string(w.line);
  }
  bool SamePlace(const Where& a, const Where& b) const { return a.line == b.line && FileId(a.file) == FileId(b.file); }

  // What can only be said once the whole file was read.
  void EndFile(const Frame& f, bool complete) {
    if (!f.scan) return;
    if (f.utf8 && f.high) {
      Add(f.path, 0, "utf8-file", "the file is UTF-8 text with non-ASCII characters; scripts are read as GBK");
    } else {
      for (const auto& bad : f.non_gbk)
        Add(f.path, bad.first, "not-gbk",
            "byte " + ToDisplay(bad.second, false) +
                " is not GBK (Latin-1 or UTF-8 text?): kept as it is, so names holding it match nothing written "
                "in GBK");
    }
    if (complete && f.blocks == 0) Add(f.path, 0, "nothing-read", "nothing was read from this file: it holds no complete block");
  }

  // An include whose target is open already, as stack_[from]. Each cycle is
  // reported once, at its outermost include.
  void Cycle(size_t from, const std::string& file, int line, const std::string& shown) {
    std::vector<std::string> ids;
    std::string chain;
    for (size_t i = from; i < stack_.size(); ++i) {
      ids.push_back(stack_[i].id);
      chain += NameToDisplay(input_.Shown(stack_[i].path)) + " -> ";
    }
    chain += NameToDisplay(input_.Shown(stack_[from].path));
    std::sort(ids.begin(), ids.end());
    std::string key;
    for (const std::string& id : ids) key += id + '\n';
    const int depth = static_cast<int>(stack_.size());
    const auto it = cycles_.find(key);
    if (it != cycles_.end() && it->second.first <= depth) return;
    const Report r = from + 1 == stack_.size()
                         ? Make(file, line, "include-cycle",
                                shown + " includes the file itself: " + kLimits + ", reading the file again each time")
                         : Make(file, line, "include-cycle",
                                shown + " closes a cycle (" + chain + "): " + kLimits +
                                    ", reading these files again each time");
    cycles_[key] = {depth, r};
  }

  // The template list `list`, the template blocks it names and every track
  // block below them, folded.
  static std::set<std::string> TreeBlocks(const mapcfg::CCfgScript& script, const std::string& list, char lang) {
    namespace cfg = mapcfg::cfg;
    std::set<std::string> seen = {Folded(list)};
    std::vector<std::string> next;
    for (int i = 0; i < script.GetKeyCnt(list.c_str()); ++i) next.push_back(script.GetKeyVal(list.c_str(), i));
    const std::string curve = Folded(mapcfg::sGetCfgStr(lang, cfg::kCurve));
    while (!next.empty()) {
      const std::string block = next.back();
      next.pop_back();
      if (!seen.insert(Folded(block)).second) continue;
      for (int i = 0; i < script.GetKeyCnt(block.c_str()); ++i) {
        const std::string key = script.GetKeyName(block.c_str(), i);
        if (Folded(key) != curve) next.push_back(key);
      }
    }
    return seen;
  }

  void TrackFinding(const mapcfg::DJTTreeFinding& f) {
    const auto keys = block_keys_.find(Folded(f.block));
    if (keys == block_keys_.end() || f.key < 0 || static_cast<size_t>(f.key) >= keys->second.size()) return;
    const Where& at = keys->second[static_cast<size_t>(f.key)];
    const std::string track = (f.depth == 0 ? "template " : "track ") + Quote(f.name);
    switch (f.kind) {
      case mapcfg::DJTTreeFinding::kNamesAncestor:
        Add(at.file, at.line, "track-cycle",
            track + " names the block " + Quote(f.name) + ", which holds it (a cycle): the reader reads it " +
                "inside itself again until the tree is " + std::to_string(mapcfg::kMaxTrackDepth) + " levels deep");
        break;
      case mapcfg::DJTTreeFinding::kNoBlock:
        Add(at.file, at.line, "track-block-missing",
            track + " has no block of that name: " +
                (f.depth == 0 ? "the template has no tracks" : "the track has no curves and no child tracks"));
        break;
      case mapcfg::DJTTreeFinding::kTooDeep:
        Add(at.file, at.line, "track-tree-cut",
            track + " would lie deeper than " + std::to_string(mapcfg::kMaxTrackDepth) +
                " levels: the reader does not read it");
        break;
      case mapcfg::DJTTreeFinding::kTooMany:
        Add(at.file, at.line, "track-tree-cut",
            "the reader stops before " + track + ": it reads at most " + std::to_string(mapcfg::kMaxTrackCount) +
                " tracks and " + std::to_string(mapcfg::kMaxTrackRows) + " key rows of track blocks");
        break;
    }
  }

  void CheckKeys(const std::string& block) {
    const BlockKeys known = FindBlockKeys(block);
    std::map<std::string, const Where*> first;
    for (const Where& k : stack_.back().keys) {
      // A mistyped key of a map kind or a template silently keeps its default.
      if (known && !k.text.empty() && !known.Knows(k.text))
        Add(k.file, k.line, "unknown-key",
            "no reader of block " + Quote(block) + " reads the key " + Quote(k.text) +
                " (mistyped?): what it would set keeps its default");
      if (known && known.Repeats(k.text)) continue;
      const auto seen = first.emplace(Folded(k.text), &k);
      if (!seen.second) {
        Add(k.file, k.line, "duplicate-key",
            "key " + Quote(k.text) + " repeats the key at line " + std::to_string(seen.first->second->line) +
                " in block " + Quote(block) + ": it is unreachable by name");
        reports_.back().block = Folded(block);
      }
    }
    stack_.back().keys.clear();
  }

  Report Make(const std::string& file, int line, const char* code, const std::string& message) const {
    const auto order = order_.find(FileId(file));
    return {order == order_.end() ? 0 : order->second, line, input_.Shown(file), code, message};
  }

  // Each report once, however often a cyclic include re-reads its file.
  void Add(const std::string& file, int line, const char* code, const std::string& message) {
    Report r = Make(file, line, code, message);
    if (seen_.insert(r.file + ":" + std::to_string(line) + ":" + message).second) reports_.push_back(std::move(r));
  }

  const ScriptInput& input_;
  std::vector<Frame> stack_;
  std::map<std::string, int> order_;  // file id -> place among the files read
  std::set<std::string> scanned_;
  std::map<std::string, Where> blocks_;
  std::map<std::string, std::vector<Where>> block_keys_;  // the key rows of each name's first block
  std::map<std::string, std::pair<int, Report>> cycles_;  // file ids -> depth, report
  std::set<std::string> seen_;
  std::vector<Report> reports_;
  mutable std::map<std::string, std::string> ids_;  // library path -> FileId
};

void PrintReport(const Report& r, bool json, bool* first) {
  const std::string file = json ? NameToJson(r.file) : NameToDisplay(r.file);
  if (json) {
    std::printf("%s  {\"file\": %s, \"line\": %d, \"code\": \"%s\", \"message\": %s}", *first ? "" : ",\n",
                file.c_str(), r.line, r.code.c_str(), JsonQuote(r.message).c_str());
  } else if (r.line > 0) {
    std::printf("%s:%d: %s [%s]\n", file.c_str(), r.line, r.message.c_str(), r.code.c_str());
  } else {
    std::printf("%s: %s [%s]\n", file.c_str(), r.message.c_str(), r.code.c_str());
  }
  *first = false;
}

}  // namespace

int RunCheck(const Call& call) {
  const bool json = call.Has("--json");
  int status = 0;
  bool first = true;
  if (json) std::printf("{\"reports\": [\n");
  for (const std::string& file : call.operands) {
    ScriptInput input;
    std::string why;
    if (!input.Open(file, &why)) {
      status = Fail(1, "cannot read " + NameToDisplay(file) + ": " + why);
      if (json) PrintReport({0, 0, file, "unreadable", "cannot be read: " + why}, true, &first);
      continue;
    }
    Linter linter(input);
    mapcfg::CCfgScript script;
    try {
      script.Open(input.path().c_str(), 0, &linter);
      linter.CheckTrackTrees(script);
    } catch (const ReadStopped& e) {
      linter.Stopped(e);
    }
    for (const Report& r : linter.Reports()) {
      PrintReport(r, json, &first);
      status = 1;
    }
  }
  if (json) std::printf("%s]}\n", first ? "" : "\n");
  return status;
}

}  // namespace mapcfg_tool
