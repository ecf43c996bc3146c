// Speed of the script reader and of lookups.
//
// Open is compared with the cheapest possible pass over the same file in the
// same run: reading it into memory in large blocks and counting its lines
// with memchr. Lookups are timed per (block, key) pair; the median is
// reported as the counter "median_ns".
#include <benchmark/benchmark.h>
#include <mapcfg/script.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

// Writes a script of `blocks` blocks of `keys` keys with realistic values
// and comment rows; returns its path.
std::string MakeScript(int blocks, int keys) {
  const std::string path = "/tmp/mapcfg-bench-" + std::to_string(blocks) + "x" + std::to_string(keys) + ".cfg";
  std::FILE* f = std::fopen(path.c_str(), "wb");
  std::mt19937 rng(42);
  auto next = [&rng] { return static_cast<unsigned>(rng()); };
  const char* names[] = {"Sand", "Mud", "Gravel", "Lime", "Dolo", "Coal"};
  for (int b = 0; b < blocks; ++b) {
    std::fprintf(f, "// Catalogue %d: code = name; pattern; line colour; fill colour\r\n", b);
    std::fprintf(f, "Config: \"Catalogue %d\"\r\nBegin\r\n", b);
    for (int k = 0; k < keys; ++k) {
      if (k % 25 == 0) std::fprintf(f, "// group %d\r\n", k / 25);
      std::fprintf(f, "K%d = %s; %u; %06X\r\n", k, names[next() % 6], next() % 64, next() & 0xFFFFFF);
    }
    std::fprintf(f, "End\r\n\r\n");
  }
  std::fclose(f);
  return path;
}

const std::string& BigScript() {
  static const std::string path = MakeScript(2000, 200);
  return path;
}

long FileSize(const std::string& path) {
  std::FILE* f = std::fopen(path.c_str(), "rb");
  std::fseek(f, 0, SEEK_END);
  const long n = std::ftell(f);
  std::fclose(f);
  return n;
}

void BM_ReadAndCountLines(benchmark::State& state) {
  const std::string& path = BigScript();
  std::vector<char> buf(1 << 20);
  for (auto _ : state) {
    std::FILE* f = std::fopen(path.c_str(), "rb");
    size_t lines = 0;
    size_t n;
    while ((n = std::fread(buf.data(), 1, buf.size(), f)) > 0)
      for (const char* p = buf.data(); (p = static_cast<const char*>(std::memchr(p, '\n', n - (p - buf.data()))));
           ++p)
        ++lines;
    std::fclose(f);
    benchmark::DoNotOptimize(lines);
  }
  state.SetBytesProcessed(state.iterations() * FileSize(path));
}
BENCHMARK(BM_ReadAndCountLines)->Unit(benchmark::kMillisecond);

void BM_Open(benchmark::State& state) {
  const std::string& path = BigScript();
  for (auto _ : state) {
    mapcfg::CCfgScript script;
    script.Open(path.c_str(), 0);
    benchmark::DoNotOptimize(script.GetCfgCnt());
  }
  state.SetBytesProcessed(state.iterations() * FileSize(path));
}
BENCHMARK(BM_Open)->Unit(benchmark::kMillisecond);

// Every (block, key) pair of a 500 x 50 script, looked up by name in a
// shuffled order; the median time of one lookup over all pairs.
void BM_GetKeyVal(benchmark::State& state) {
  const std::string path = MakeScript(500, 50);
  mapcfg::CCfgScript script;
  script.Open(path.c_str(), 0);
  std::vector<std::pair<std::string, std::string>> pairs;
  for (int b = 0; b < 500; ++b)
    for (int k = 0; k < 50; ++k) {
      char key[16];
      std::snprintf(key, sizeof key, "k%d", k);  // other case than written
      pairs.emplace_back("catalogue " + std::to_string(b), key);
    }
  std::shuffle(pairs.begin(), pairs.end(), std::mt19937(7));
  std::vector<double> ns;
  ns.reserve(pairs.size());
  constexpr int kRepeat = 16;
  for (auto _ : state) {
    ns.clear();
    for (const auto& p : pairs) {
      const auto t0 = std::chrono::steady_clock::now();
      for (int r = 0; r < kRepeat; ++r) benchmark::DoNotOptimize(script.GetKeyVal(p.first.c_str(), p.second.c_str()));
      const auto t1 = std::chrono::steady_clock::now();
      ns.push_back(std::chrono::duration<double, std::nano>(t1 - t0).count() / kRepeat);
    }
  }
  std::nth_element(ns.begin(), ns.begin() + ns.size() / 2, ns.end());
  state.counters["median_ns"] = ns[ns.size() / 2];
  state.counters["lookups"] = static_cast<double>(pairs.size());
}
BENCHMARK(BM_GetKeyVal)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
