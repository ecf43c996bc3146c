// The script reader on any bytes: a main script and, after the first line
// "#--split--", a second file "inc.cfg" beside it that the main script may
// include (itself, too). Every block and key is then looked up by name and
// by index.
#include <mapcfg/script.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

const std::string& ScratchDir() {
  static const std::string dir = [] {
    char tmpl[] = "/tmp/mapcfg-fuzz-script-XXXXXX";
    if (!mkdtemp(tmpl)) std::abort();
    return std::string(tmpl);
  }();
  return dir;
}

void WriteFile(const std::string& path, const char* data, size_t size) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) std::abort();
  if (size) std::fwrite(data, 1, size, f);
  std::fclose(f);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const char kSplit[] = "#--split--\n";
  const char* text = reinterpret_cast<const char*>(data);
  const std::string all(text, size);
  const size_t cut = all.find(kSplit);
  const std::string main_part = cut == std::string::npos ? all : all.substr(0, cut);
  const std::string inc_part = cut == std::string::npos ? std::string() : all.substr(cut + sizeof kSplit - 1);
  const std::string dir = ScratchDir();
  WriteFile(dir + "/main.cfg", main_part.data(), main_part.size());
  WriteFile(dir + "/inc.cfg", inc_part.data(), inc_part.size());

  mapcfg::CCfgScript script;
  script.Open((dir + "/main.cfg").c_str(), 0);
  size_t total = 0;
  for (int b = -1; b <= script.GetCfgCnt(); ++b) {
    const std::string name = script.GetCfgName(b);
    const int keys = script.GetKeyCnt(name.c_str());
    if (b >= 0 && b < script.GetCfgCnt() && keys < 0) std::abort();  // every block is reachable by its name
    for (int k = -1; k <= keys; ++k) {
      const std::string key = script.GetKeyName(name.c_str(), k);
      total += script.GetKeyVal(name.c_str(), key.c_str()).size() + script.GetKeyVal(name.c_str(), k).size();
    }
    for (int k = -1; k <= script.GetKeyCntAt(b); ++k)
      total += script.GetKeyNameAt(b, k).size() + script.GetKeyValAt(b, k).size();
  }
  return total == static_cast<size_t>(-1);
}
