// mapcfg check: a linter for script authors. It reads each script with the
// library's own reader and reports, with file:line, what the reader drops
// silently or does in a way an author would not expect.
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "commands.h"
#include "display_text.h"

namespace mapcfg_tool {

namespace {

std::string ReadBytes(const std::string& path) {
  std::string out;
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> f(mapcfg::sOpenFile(path, "rb"), std::fclose);
  if (!f) return out;
  char buf[65536];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f.get())) > 0) out.append(buf, n);
  return out;
}

std::string Quote(const std::string& s) {
  std::string shown = ToDisplay(s.size() > 60 ? s.substr(0, 60) + "..." : s, false);
  return "\"" + shown + "\"";
}

class Linter : public mapcfg::ScriptEvents {
 public:
  int problems() const { return static_cast<int>(reported_.size()); }

  void OnFileBegin(const std::string& file, int) override {
    stack_.push_back({Folded(mapcfg::sToNativePath(file)), {}});
    if (checked_.insert(stack_.back().path).second && LooksLikeUtf8(ReadBytes(file)))
      Report(file, 0, "file is UTF-8 text with non-ASCII characters; scripts are read as GBK");
  }
  void OnFileEnd(const std::string&, int) override { stack_.pop_back(); }
  void OnLineSplit(const std::string& file, int line) override {
    Report(file, line, "line longer than 2047 bytes: the rest is read as a row of its own");
  }
  void OnRowLostAtEnd(const std::string& file, int line) override {
    Report(file, line, "row continued with \"_\" is lost: the file ends before it does");
  }
  void OnInclude(const std::string& file, int line, const std::string& target, bool opened, bool too_deep,
                 bool too_many) override {
    const std::string key = Folded(mapcfg::sToNativePath(target));
    const std::string shown = "\"" + ToDisplay(mapcfg::sToNativePath(target), false) + "\"";
    bool cycle = false;
    for (const Frame& f : stack_) cycle = cycle || f.path == key;
    if (cycle)
      Report(file, line, "#Include of " + shown + " is cyclic: the file includes itself");
    else if (too_deep)
      Report(file, line, "#Include of " + shown + " is not followed: includes nest deeper than " +
                             std::to_string(mapcfg::kMaxIncludeDepth) + " files");
    else if (too_many)
      Report(file, line, "#Include of " + shown + " is not followed: more than " +
                             std::to_string(mapcfg::kMaxIncludedFiles) + " included files");
    else if (!opened && mapcfg::sGetDirFromPath(file).empty())
      Report(file, line, "#Include of " + shown + ": file not found, ignored (a script opened by a bare "
                         "file name includes from the root folder; give its folder too)");
    else if (!opened)
      Report(file, line, "#Include of " + shown + ": file not found, ignored");
  }
  void OnStrayRow(const std::string& file, int line, const std::string& row) override {
    if (row.find('=') != std::string::npos)
      Report(file, line, "key row outside any block is ignored: " + Quote(row));
    else
      Report(file, line, "row outside any block is ignored: " + Quote(row));
  }
  void OnEmptyHeader(const std::string& file, int line) override {
    Report(file, line, "\"Config:\" without a block name is ignored, and so is the block it heads");
  }
  void OnHeaderAbandoned(const std::string& file, int line, const std::string& name, int row_line,
                         const std::string& row) override {
    Report(file, line,
           "block " + Quote(name) + " is lost: its header is followed by " + Quote(row) + " (line " +
               std::to_string(row_line) + "), not \"Begin\"");
    const std::string colon = mapcfg::sGetSubStr(row, ':', 0);
    if (Folded(colon) == "config")
      Report(file, row_line, "\"Config:\" row is swallowed by the header before it (missing \"Begin\")");
  }
  void OnKey(const std::string& file, int line, const std::string&, const std::string& key, bool) override {
    if (!stack_.empty()) stack_.back().keys.push_back({file, line, key});
  }
  void OnHeaderInBlock(const std::string& file, int line, const std::string& block) override {
    Report(file, line, "\"Config:\" row inside block " + Quote(block) + " is read as a key (missing \"End\"?)");
  }
  void OnBlock(const std::string& file, int line, int, const std::string& name) override {
    const Where here{file, line, name};
    const auto seen = blocks_.emplace(Folded(name), here);
    if (!seen.second && !(seen.first->second == here))
      Report(file, line, "block " + Quote(name) + " repeats the name of the block at " + seen.first->second.At() +
                             ": it is unreachable by name");
    CheckKeys(name);
  }
  void OnBlockLost(const std::string& file, int line, const std::string& name, bool had_begin) override {
    Report(file, line,
           "block " + Quote(name) + " is lost: the file ends before its " + (had_begin ? "\"End\"" : "\"Begin\""));
    if (!stack_.empty()) stack_.back().keys.clear();
  }

 private:
  struct Where {
    std::string file;
    int line;
    std::string text;
    std::string At() const { return file + ":" + std::to_string(line); }
    bool operator==(const Where& o) const { return line == o.line && file == o.file; }
  };
  struct Frame {
    std::string path;
    std::vector<Where> keys;  // key rows of the block being read in this file
  };

  void CheckKeys(const std::string& block) {
    if (stack_.empty()) return;
    std::map<std::string, const Where*> first;
    for (const Where& k : stack_.back().keys) {
      const auto seen = first.emplace(Folded(k.text), &k);
      if (!seen.second)
        Report(k.file, k.line,
               "key " + Quote(k.text) + " repeats the key at line " + std::to_string(seen.first->second->line) +
                   " in block " + Quote(block) + ": it is unreachable by name");
    }
    stack_.back().keys.clear();
  }

  // Each message once, however often a cyclic include re-reads its file.
  void Report(const std::string& file, int line, const std::string& message) {
    std::string text = mapcfg::sToNativePath(file);
    if (line > 0) text += ":" + std::to_string(line);
    text += ": " + message;
    if (reported_.insert(text).second) std::printf("%s\n", text.c_str());
  }

  std::vector<Frame> stack_;
  std::set<std::string> checked_;
  std::map<std::string, Where> blocks_;
  std::set<std::string> reported_;
};

}  // namespace

int RunCheck(const Args& args) {
  if (args.empty()) return Fail(2, "usage: mapcfg check FILE...");
  int status = 0;
  for (const std::string& file : args) {
    if (!file.empty() && file[0] == '-') return Fail(2, "unknown option '" + file + "'");
    if (!CanRead(file)) {
      status = Fail(1, "cannot read " + file);
      continue;
    }
    Linter linter;
    mapcfg::CCfgScript script;
    script.Open(file.c_str(), 0, &linter);
    if (linter.problems() > 0) status = 1;
  }
  return status;
}

}  // namespace mapcfg_tool
