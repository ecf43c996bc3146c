// Speed of loading a folder of 200 statistics template files
// (sCfgReadCTPFiles), against reading the same files' bytes in the same run:
// listing the folder the same way and reading each file whole with stdio,
// and loading each into an archive (CFFArchive::FromFile) without reading
// its templates.
//
// The files are the three example files (examples/stat), 200 of them in
// turn, written to a scratch folder that is removed at the end.
#include <benchmark/benchmark.h>
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

using namespace mapcfg;

constexpr int kFiles = 200;

class Folder {
 public:
  Folder() {
    path_ = (std::filesystem::temp_directory_path() / "mapcfg-bench-ctp-XXXXXX").string();
    if (!mkdtemp(path_.data())) std::abort();
    std::string here = __FILE__;
    const std::string examples = here.substr(0, here.rfind('/')) + "/../examples/stat/";
    const char* names[] = {"production.ctp", "water_cut.ctp", "injection.ctp"};
    const size_t templates[] = {2, 1, 1};
    for (int i = 0; i < kFiles; ++i) {
      std::ifstream in(examples + names[i % 3], std::ios::binary);
      const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
      if (bytes.empty()) std::abort();
      bytes_ += bytes.size();
      templates_ += templates[i % 3];
      std::ofstream(path_ + "/t" + std::to_string(i) + ".ctp", std::ios::binary) << bytes;
    }
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  const std::string& path() const { return path_; }
  size_t bytes() const { return bytes_; }
  size_t templates() const { return templates_; }

 private:
  std::string path_;
  size_t bytes_ = 0;
  size_t templates_ = 0;
};

const Folder& TheFolder() {
  static const Folder folder;
  return folder;
}

StringArray List(const std::string& dir) {
  StringArray names;
  sGetFiles((dir + "\\*.ctp").c_str(), &names);
  return names;
}

void BM_ReadCTPFiles(benchmark::State& state) {
  const Folder& folder = TheFolder();
  for (auto _ : state) {
    benchmark::DoNotOptimize(sCfgReadCTPFiles(folder.path()));
    if (sCfgGetMapStatPtr()->size() != folder.templates()) state.SkipWithError("not every template was read");
    sCfgClearMapStat();
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * folder.bytes()));
}
BENCHMARK(BM_ReadCTPFiles)->Unit(benchmark::kMicrosecond);

// Baseline: the same listing, then each file's bytes with fopen and fread.
void BM_ReadFileBytes(benchmark::State& state) {
  const Folder& folder = TheFolder();
  std::string buffer(1 << 16, '\0');
  for (auto _ : state) {
    size_t total = 0;
    for (const String& name : List(folder.path())) {
      std::FILE* f = std::fopen((folder.path() + "/" + name).c_str(), "rb");
      if (!f) continue;
      total += std::fread(buffer.data(), 1, buffer.size(), f);
      std::fclose(f);
    }
    benchmark::DoNotOptimize(total);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * folder.bytes()));
}
BENCHMARK(BM_ReadFileBytes)->Unit(benchmark::kMicrosecond);

// Baseline: the same listing, then each file loaded into an archive.
void BM_LoadArchives(benchmark::State& state) {
  const Folder& folder = TheFolder();
  for (auto _ : state) {
    uint32_t total = 0;
    for (const String& name : List(folder.path())) {
      CFFArchive a;
      a.FromFile(folder.path() + "\\" + name);
      total += a.GetCount();
    }
    benchmark::DoNotOptimize(total);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * folder.bytes()));
}
BENCHMARK(BM_LoadArchives)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
