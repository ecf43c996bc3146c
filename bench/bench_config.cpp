// The whole example configuration (examples/: the English plate and the
// statistics templates of the Liuhe field): loaded from its scripts with every
// reader and its template files, and loaded from its pack.
//
// Baselines in the same run: CCfgScript::Open of the same scripts alone, and
// reading the pack file's bytes (CFFArchive::FromFile) alone.
#include <benchmark/benchmark.h>
#include <mapcfg/mapcfg.h>

#include <string>

namespace {

using namespace mapcfg;

const std::string& Examples() {
  static const std::string path = [] {
    std::string here = __FILE__;
    return here.substr(0, here.rfind('/')) + "/../examples";
  }();
  return path;
}

const std::string& ExampleScript() {
  static const std::string path = Examples() + "/en/field.cfg";
  return path;
}

void EmptyStore() {
  sCfgClearPlate();
  for (StringArray* list : {sCfgGetLibNamesPtr(), sCfgGetLibDllsPtr(), sCfgGetMenuNamesPtr(), sCfgGetMenuFunsPtr()})
    list->clear();
}

// The pack of the example configuration, written once.
const std::string& PackFile() {
  static const std::string path = [] {
    *sGetCfgLang() = 0;
    EmptyStore();
    CCfgScript script;
    script.Open(ExampleScript().c_str(), 0);
    sCfgReadAll(script);
    sCfgReadCTPFiles(Examples() + "/stat");
    CFFArchive a;
    sCfgWritePack(a);
    const std::string file = "/tmp/mapcfg-bench-liuhe.pack";
    a.ToFile(file);
    EmptyStore();
    return file;
  }();
  return path;
}

void BM_OpenScripts(benchmark::State& state) {
  for (auto _ : state) {
    CCfgScript script;
    script.Open(ExampleScript().c_str(), 0);
    benchmark::DoNotOptimize(script.GetKeyCnt("ColorTable"));
  }
}
BENCHMARK(BM_OpenScripts)->Unit(benchmark::kMicrosecond);

void BM_LoadFromScripts(benchmark::State& state) {
  *sGetCfgLang() = 0;
  for (auto _ : state) {
    EmptyStore();
    CCfgScript script;
    script.Open(ExampleScript().c_str(), 0);
    sCfgReadAll(script);
    sCfgReadCTPFiles(Examples() + "/stat");
    benchmark::DoNotOptimize(sCfgGetLithPropsPtr()->size());
  }
}
BENCHMARK(BM_LoadFromScripts)->Unit(benchmark::kMicrosecond);

void BM_ReadPackBytes(benchmark::State& state) {
  const std::string& file = PackFile();
  for (auto _ : state) {
    CFFArchive a;
    benchmark::DoNotOptimize(a.FromFile(file));
  }
}
BENCHMARK(BM_ReadPackBytes)->Unit(benchmark::kMicrosecond);

void BM_LoadFromPack(benchmark::State& state) {
  const std::string& file = PackFile();
  for (auto _ : state) {
    EmptyStore();
    CFFArchive a;
    a.FromFile(file);
    if (!sCfgReadPack(a).empty()) state.SkipWithError("the pack does not read");
    benchmark::DoNotOptimize(sCfgGetLithPropsPtr()->size());
  }
}
BENCHMARK(BM_LoadFromPack)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
