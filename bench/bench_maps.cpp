// Speed of the four map kinds of the example configuration
// (examples/en/field.cfg): read from the script, and through their archive
// streams.
//
// Baselines in the same run: CCfgScript::Open of the same file alone, and a
// plain decode of the same stream that reads every value with the typed Get
// of its tag (no records, no fields), as a host without the record layer
// would.
#include <benchmark/benchmark.h>
#include <mapcfg/mapcfg.h>

#include <memory>
#include <string>

#include "plain_decode.h"

namespace {

using namespace mapcfg;

const std::string& ExampleScript() {
  static const std::string path = [] {
    std::string here = __FILE__;
    return here.substr(0, here.rfind('/')) + "/../examples/en/field.cfg";
  }();
  return path;
}

void ReadKinds(CCfgScript& script) {
  sCfgReadMapWellLoc(script);
  sCfgReadMapReserv(script);
  sCfgReadMapFence(script);
  sCfgReadMapCorrel(script);
}

void WriteKinds(CFFArchive& a) {
  sCfgWriteMapWellLoc(a);
  sCfgWriteMapReserv(a);
  sCfgWriteMapFence(a);
  sCfgWriteMapCorrel(a);
}

const std::string& KindsStream() {
  static const std::string bytes = [] {
    *sGetCfgLang() = 0;
    CCfgScript script;
    script.Open(ExampleScript().c_str(), 0);
    ReadKinds(script);
    CFFArchive a;
    WriteKinds(a);
    uint32_t n = 0;
    auto data = a.ToData(n);
    return std::string(reinterpret_cast<const char*>(data.get()), n);
  }();
  return bytes;
}

void BM_OpenExample(benchmark::State& state) {
  for (auto _ : state) {
    CCfgScript script;
    script.Open(ExampleScript().c_str(), 0);
    benchmark::DoNotOptimize(script.GetCfgCnt());
  }
}
BENCHMARK(BM_OpenExample)->Unit(benchmark::kMicrosecond);

void BM_KindsFromScript(benchmark::State& state) {
  *sGetCfgLang() = 0;
  for (auto _ : state) {
    CCfgScript script;
    script.Open(ExampleScript().c_str(), 0);
    ReadKinds(script);
    benchmark::DoNotOptimize(sCfgGetCurveParmsPtr("Fence Map")->size());
    for (const char* kind : {"Reservoir Profile Map", "Fence Map", "Multi-well Correlation Map"})
      sCfgClearCurveParms(*sCfgGetCurveParmsPtr(kind));
  }
}
BENCHMARK(BM_KindsFromScript)->Unit(benchmark::kMicrosecond);

void BM_WriteKinds(benchmark::State& state) {
  KindsStream();
  for (auto _ : state) {
    CFFArchive a;
    WriteKinds(a);
    benchmark::DoNotOptimize(a.GetCount());
  }
  state.counters["bytes"] = static_cast<double>(KindsStream().size());
}
BENCHMARK(BM_WriteKinds)->Unit(benchmark::kMicrosecond);

void BM_ReadKinds(benchmark::State& state) {
  const std::string& bytes = KindsStream();
  for (auto _ : state) {
    CFFArchive a;
    a.FromData(bytes.data(), static_cast<uint32_t>(bytes.size()));
    benchmark::DoNotOptimize(sCfgReadMapWellLoc(a, 0xFFFFFFFFu));
    benchmark::DoNotOptimize(sCfgReadMapReserv(a, 0xFFFFFFFFu));
    benchmark::DoNotOptimize(sCfgReadMapFence(a, 0xFFFFFFFFu));
    benchmark::DoNotOptimize(sCfgReadMapCorrel(a, 0xFFFFFFFFu));
    for (const char* kind : {"Reservoir Profile Map", "Fence Map", "Multi-well Correlation Map"})
      sCfgClearCurveParms(*sCfgGetCurveParmsPtr(kind));
  }
}
BENCHMARK(BM_ReadKinds)->Unit(benchmark::kMicrosecond);

// Every value read with the Get of its stored tag.
void BM_PlainGetDecode(benchmark::State& state) {
  const std::string& bytes = KindsStream();
  for (auto _ : state) mapcfg_bench::PlainDecode(bytes);
}
BENCHMARK(BM_PlainGetDecode)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
