// Speed of a single-well template of 5,000 tracks: read from its script
// (sCfgReadMapSingle) and from its archive stream.
//
// Baselines in the same run: CCfgScript::Open of the same file alone, and a
// plain decode of the same stream (plain_decode.h).
//
// The template: 100 top-level tracks, each with 2 curves and 49 child
// tracks of 2 curves each, every track with a block of its own.
#include <benchmark/benchmark.h>
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "plain_decode.h"

namespace {

using namespace mapcfg;

constexpr int kGroups = 100;
constexpr int kLeaves = 49;

std::string Track(const std::string& name, int left) {
  return name + " = " + name + ", " + name + "\\n(unit), " + std::to_string(left) + ", " + std::to_string(left + 40) +
         ", 0, 3, 50, 2, 0, , 0.3, 000000, Dash, 0.1, 808080, Arial, 3, 000000, Arial, 2.5, 000000, 0, 2, 50, 0, , "
         "0.1, C0C0C0\n";
}

std::string Block(const std::string& name, const std::string& rows) {
  return "Config: " + name + "\nBegin\n" + rows + "Curve = GR; Natural gamma ray; 0; 150; Dash; 0.3; 008000\n" +
         "Curve = RT; Deep laterolog resistivity; 1; 100; ; 0.5; FF0000\nEnd\n";
}

const std::string& BigScript() {
  static const std::string path = [] {
    std::string text = "Config: SingleWellTemplate\nBegin\nTemplate = Big\nEnd\nConfig: Big\nBegin\n";
    for (int g = 0; g < kGroups; ++g) text += Track("G" + std::to_string(g), g * 40);
    text += "End\n";
    for (int g = 0; g < kGroups; ++g) {
      std::string rows;
      for (int l = 0; l < kLeaves; ++l) rows += Track("L" + std::to_string(g) + "_" + std::to_string(l), l);
      text += Block("G" + std::to_string(g), rows);
      for (int l = 0; l < kLeaves; ++l) text += Block("L" + std::to_string(g) + "_" + std::to_string(l), "");
    }
    char dir[] = "/tmp/mapcfg-bench-XXXXXX";
    if (!mkdtemp(dir)) std::abort();
    const std::string file = std::string(dir) + "/single.cfg";
    std::FILE* f = std::fopen(file.c_str(), "wb");
    if (!f) std::abort();
    std::fwrite(text.data(), 1, text.size(), f);
    std::fclose(f);
    return file;
  }();
  return path;
}

void Clear() { *sCfgGetMapSinglePtr() = _CfgMapSingle(); }

const std::string& BigStream() {
  static const std::string bytes = [] {
    *sGetCfgLang() = 0;
    CCfgScript script;
    script.Open(BigScript().c_str(), 0);
    sCfgReadMapSingle(script);
    CFFArchive a;
    sCfgWriteMapSingle(a);
    Clear();
    uint32_t n = 0;
    auto data = a.ToData(n);
    return std::string(reinterpret_cast<const char*>(data.get()), n);
  }();
  return bytes;
}

void BM_OpenScript(benchmark::State& state) {
  for (auto _ : state) {
    CCfgScript script;
    script.Open(BigScript().c_str(), 0);
    benchmark::DoNotOptimize(script.GetCfgCnt());
  }
}
BENCHMARK(BM_OpenScript)->Unit(benchmark::kMillisecond);

void BM_TemplateFromScript(benchmark::State& state) {
  *sGetCfgLang() = 0;
  size_t tracks = 0;
  for (auto _ : state) {
    CCfgScript script;
    script.Open(BigScript().c_str(), 0);
    sCfgReadMapSingle(script);
    const _DJTTempl& t = *sCfgGetMapSinglePtr()->Templs.at(0);
    tracks = t.Tracks.size() * (1 + t.Tracks[0]->Children.size());
    Clear();
  }
  state.counters["tracks"] = static_cast<double>(tracks);
}
BENCHMARK(BM_TemplateFromScript)->Unit(benchmark::kMillisecond);

void BM_TemplateFromArchive(benchmark::State& state) {
  const std::string& bytes = BigStream();
  for (auto _ : state) {
    CFFArchive a;
    a.FromData(bytes.data(), static_cast<uint32_t>(bytes.size()));
    benchmark::DoNotOptimize(sCfgReadMapSingle(a, 0xFFFFFFFFu));
    Clear();
  }
  state.counters["bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_TemplateFromArchive)->Unit(benchmark::kMillisecond);

void BM_PlainGetDecode(benchmark::State& state) {
  const std::string& bytes = BigStream();
  for (auto _ : state) mapcfg_bench::PlainDecode(bytes);
}
BENCHMARK(BM_PlainGetDecode)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
