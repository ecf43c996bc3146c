// What several fuzz targets share: a scratch file to hand the library a
// script, and putting the store back after an input.
#ifndef MAPCFG_FUZZ_FUZZ_UTIL_H_
#define MAPCFG_FUZZ_FUZZ_UTIL_H_

#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>

namespace mapcfg_fuzz {

// A folder of this process's own for the scripts it writes.
inline const std::string& ScratchDir() {
  static const std::string dir = [] {
    namespace fs = std::filesystem;
    std::random_device seed;
    std::mt19937_64 random(seed());
    for (int attempt = 0; attempt < 100; ++attempt) {
      const fs::path p = fs::temp_directory_path() / ("mapcfg-fuzz-" + std::to_string(random() % 1000000000));
      std::error_code ec;
      if (fs::create_directory(p, ec)) return p.generic_string();
    }
    std::abort();
  }();
  return dir;
}

// Writes `size` bytes to `name` in the scratch folder; returns its path.
inline std::string WriteScratch(const char* name, const void* data, size_t size) {
  const std::string path = ScratchDir() + "/" + name;
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) std::abort();
  if (size) std::fwrite(data, 1, size, f);
  std::fclose(f);
  return path;
}

// Opens the script of a fuzz input whose first byte chooses the language
// (bit 0: Chinese) and whose other bytes are the script, written to `name`.
// The input must not be empty.
inline void OpenScript(mapcfg::CCfgScript& script, const uint8_t* data, size_t size, const char* name) {
  *mapcfg::sGetCfgLang() = static_cast<char>(data[0] & 1);
  script.Open(WriteScratch(name, data + 1, size - 1).c_str(), 0);
}

// The bytes of an archive's stream.
inline std::string Bytes(mapcfg::CFFArchive& a) {
  uint32_t n = 0;
  std::unique_ptr<uint8_t[]> bytes = a.ToData(n);
  return std::string(reinterpret_cast<const char*>(bytes.get()), n);
}

// Empties every table and the extension and menu lists, and restores the
// language byte, when it goes out of scope.
class StoreReset {
 public:
  StoreReset() : lang_(*mapcfg::sGetCfgLang()) {}
  ~StoreReset() {
    Clear();
    *mapcfg::sGetCfgLang() = lang_;
  }
  StoreReset(const StoreReset&) = delete;
  StoreReset& operator=(const StoreReset&) = delete;
  static void Clear() {
    mapcfg::sCfgClearPlate();
    for (mapcfg::StringArray* list : {mapcfg::sCfgGetLibNamesPtr(), mapcfg::sCfgGetLibDllsPtr(),
                                      mapcfg::sCfgGetMenuNamesPtr(), mapcfg::sCfgGetMenuFunsPtr()})
      list->clear();
  }

 private:
  char lang_;
};

}  // namespace mapcfg_fuzz

#endif  // MAPCFG_FUZZ_FUZZ_UTIL_H_
