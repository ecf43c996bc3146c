// The script reader on any bytes: a main script and, after the first line
// "#--split--", a second file "inc.cfg" beside it that the main script may
// include (itself, too). Every block and key is then looked up by name and
// by index. A main script whose last line has no line end must read exactly
// as it does with one.
#include <mapcfg/script.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fuzz_util.h"

namespace {

// What a read reports: stray rows, and the number of files opened.
struct Collector : mapcfg::ScriptEvents {
  std::string text;
  int files = 0;
  void OnFileBegin(const std::string&, int) override { ++files; }
  void OnStrayRow(const std::string&, int line, const std::string& row) override {
    text += std::to_string(line) + ":" + row + "\n";
  }
};

// Looks blocks and keys up by name and by index. Returns what was read, or
// "" when the script includes more than a few files: a script may include
// 256, and the comparison of such reads would cost more than the read.
std::string ReadBack(const std::string& path) {
  constexpr int kLookedUp = 64;
  constexpr int kComparedFiles = 8;
  mapcfg::CCfgScript script;
  Collector seen;
  script.Open(path.c_str(), 0, &seen);
  const bool dump = seen.files <= kComparedFiles;
  std::string& out = seen.text;
  for (int b = -1; b <= script.GetCfgCnt(); ++b) {
    const std::string name = script.GetCfgName(b);
    if (b < kLookedUp) {
      const int keys = script.GetKeyCnt(name.c_str());
      if (b >= 0 && b < script.GetCfgCnt() && keys < 0) std::abort();  // every block is reachable by its name
      for (int k = -1; k <= keys; ++k) {
        const std::string key = script.GetKeyName(name.c_str(), k);
        const std::string by_key = script.GetKeyVal(name.c_str(), key.c_str());
        if (dump) out += key + "=" + by_key + "|" + script.GetKeyVal(name.c_str(), k) + "\n";
      }
    }
    if (!dump) continue;
    out += "[" + name + "]\n";
    for (int k = -1; k <= script.GetKeyCntAt(b); ++k)
      out += script.GetKeyNameAt(b, k) + "=" + script.GetKeyValAt(b, k) + "\n";
  }
  return dump ? out : std::string();
}

// Whether adding a line end after `text` must leave what is read unchanged:
// not when its last line continues ("_"), holds a CR, or reaches the
// 2047-byte piece (a line end after a full piece reads as an empty row).
bool LineEndChangesNothing(const std::string& text) {
  if (text.empty() || text.back() == '\n') return false;
  const size_t start = text.rfind('\n') == std::string::npos ? 0 : text.rfind('\n') + 1;
  const std::string last = text.substr(start);
  if (text.find('\x1a') != std::string::npos) return true;  // the line end is never read
  if (last.size() >= static_cast<size_t>(mapcfg::kMaxPhysicalLine) || last.find('\r') != std::string::npos) return false;
  const size_t end = last.find_last_not_of(" \t\v\f");
  return end == std::string::npos || last[end] != '_';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const char kSplit[] = "#--split--\n";
  const char* text = reinterpret_cast<const char*>(data);
  const std::string all(text, size);
  const size_t cut = all.find(kSplit);
  const std::string main_part = cut == std::string::npos ? all : all.substr(0, cut);
  const std::string inc_part = cut == std::string::npos ? std::string() : all.substr(cut + sizeof kSplit - 1);
  using mapcfg_fuzz::WriteScratch;
  const std::string path = WriteScratch("main.cfg", main_part.data(), main_part.size());
  WriteScratch("inc.cfg", inc_part.data(), inc_part.size());
  const std::string read = ReadBack(path);
  if (!read.empty() && LineEndChangesNothing(main_part)) {
    const std::string ended = main_part + "\n";
    WriteScratch("main.cfg", ended.data(), ended.size());
    if (ReadBack(path) != read) std::abort();
  }
  return 0;
}
