// The archive against plain baselines measured in the same run:
// - 1,000,000 mixed values (half int32, a fifth doubles, a fifth strings of 8
//   to 24 bytes, a tenth arrays of 4 doubles) put and got, next to a plain
//   loop that appends the same tagged bytes to a std::vector (growing, and
//   reserved at the final size) and one that decodes them into the same
//   results;
// - one 64 MB double array put and got, next to memcpy of the same bytes into
//   a fresh block;
// - FromFile and ToFile of a 64 MB archive, next to copying the file with
//   fread/fwrite in 1 MB blocks.
// Compare the times of each pair (Archive / Plain).
#include <benchmark/benchmark.h>
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kValues = 1000000;
constexpr size_t kBulkDoubles = 64u * 1024 * 1024 / sizeof(double);
constexpr size_t kFileBlock = 1u << 20;

enum Kind : uint8_t { kInt, kDouble, kText, kDoubles };

struct Mixed {
  std::vector<Kind> kinds;
  std::vector<int32_t> ints;
  std::vector<double> doubles;  // scalars, and 4 per array
  std::vector<std::string> texts;
  Mixed() {
    std::mt19937 rng(11);
    for (int i = 0; i < kValues; ++i) {
      const uint32_t pick = rng() % 10;  // 5 ints, 2 doubles, 2 texts, 1 array in 10
      const Kind k = pick < 5 ? kInt : pick < 7 ? kDouble : pick < 9 ? kText : kDoubles;
      kinds.push_back(k);
      if (k == kInt) ints.push_back(static_cast<int32_t>(rng()));
      if (k == kDouble || k == kDoubles)
        for (int n = k == kDouble ? 1 : 4; n-- > 0;) doubles.push_back(static_cast<double>(rng()) / 7.0);
      if (k == kText) texts.push_back(std::string(8 + rng() % 17, static_cast<char>('a' + rng() % 26)));
    }
  }
};

const Mixed& Values() {
  static const Mixed mixed;
  return mixed;
}

void PutAll(mapcfg::CFFArchive& a) {
  const Mixed& m = Values();
  size_t i = 0, d = 0, t = 0;
  for (Kind k : m.kinds) {
    switch (k) {
      case kInt:
        a.PutLong(m.ints[i++]);
        break;
      case kDouble:
        a.PutDouble(m.doubles[d++]);
        break;
      case kText:
        a.PutString(m.texts[t++].c_str());
        break;
      case kDoubles:
        a.PutDouble(&m.doubles[d], 4), d += 4;
        break;
    }
  }
}

// The same bytes, appended to a vector without the archive.
template <class T>
void Append(std::vector<uint8_t>& out, uint8_t tag, const T* v, size_t n, bool counted) {
  const size_t at = out.size();
  const uint32_t count = static_cast<uint32_t>(n);
  out.resize(at + 1 + (counted ? 4 : 0) + n * sizeof(T));
  uint8_t* p = &out[at];
  *p++ = tag;
  if (counted) std::memcpy(p, &count, 4), p += 4;
  std::memcpy(p, v, n * sizeof(T));
}

std::vector<uint8_t> PlainPut(size_t reserve = 0) {
  const Mixed& m = Values();
  std::vector<uint8_t> out;
  out.reserve(reserve);
  size_t i = 0, d = 0, t = 0;
  for (Kind k : m.kinds) {
    switch (k) {
      case kInt:
        Append(out, 3, &m.ints[i++], 1, false);
        break;
      case kDouble:
        Append(out, 5, &m.doubles[d++], 1, false);
        break;
      case kText:
        Append(out, 21, m.texts[t].data(), m.texts[t].size(), true), ++t;
        break;
      case kDoubles:
        Append(out, 35, &m.doubles[d], 4, true), d += 4;
        break;
    }
  }
  return out;
}

void BM_MixedPut_Archive(benchmark::State& state) {
  for (auto _ : state) {
    mapcfg::CFFArchive a;
    PutAll(a);
    benchmark::DoNotOptimize(a.GetCount());
  }
  state.SetItemsProcessed(state.iterations() * kValues);
}

void BM_MixedPut_Plain(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PlainPut().data());
  state.SetItemsProcessed(state.iterations() * kValues);
}

// The plain loop again into a vector reserved at the final size: no
// reallocation at all, the best any appender can do.
void BM_MixedPut_PlainReserved(benchmark::State& state) {
  const size_t size = PlainPut().size();
  for (auto _ : state) benchmark::DoNotOptimize(PlainPut(size).data());
  state.SetItemsProcessed(state.iterations() * kValues);
}

void BM_MixedGet_Archive(benchmark::State& state) {
  mapcfg::CFFArchive a;
  PutAll(a);
  for (auto _ : state) {
    a.Rewind();
    for (Kind k : Values().kinds) {
      switch (k) {
        case kInt:
          benchmark::DoNotOptimize(a.GetLong());
          break;
        case kDouble:
          benchmark::DoNotOptimize(a.GetDouble());
          break;
        case kText: {
          std::string s = a.GetString();
          benchmark::DoNotOptimize(s.data());
          break;
        }
        case kDoubles: {
          std::unique_ptr<double[]> block;
          benchmark::DoNotOptimize(a.GetDouble(block));
          benchmark::DoNotOptimize(block.get());
          break;
        }
      }
    }
  }
  state.SetItemsProcessed(state.iterations() * kValues);
}

// Decodes the same stream into the same results (texts as Strings, arrays as
// owned blocks with a spare element), trusting the tags.
void BM_MixedGet_Plain(benchmark::State& state) {
  const std::vector<uint8_t> bytes = PlainPut();
  for (auto _ : state) {
    const uint8_t* p = bytes.data();
    for (size_t n = 0; n < Values().kinds.size(); ++n) {
      const uint8_t tag = *p++;
      uint32_t count = 0;
      if (tag >= 20) std::memcpy(&count, p, 4), p += 4;
      if (tag == 3) {
        int32_t v;
        std::memcpy(&v, p, 4), p += 4;
        benchmark::DoNotOptimize(v);
      } else if (tag == 5) {
        double v;
        std::memcpy(&v, p, 8), p += 8;
        benchmark::DoNotOptimize(v);
      } else if (tag == 21) {
        std::string s(reinterpret_cast<const char*>(p), count);
        p += count;
        benchmark::DoNotOptimize(s.data());
      } else {
        std::unique_ptr<double[]> block(new double[count + 1]);
        std::memcpy(block.get(), p, count * 8u), p += count * 8u;
        benchmark::DoNotOptimize(block.get());
      }
    }
  }
  state.SetItemsProcessed(state.iterations() * kValues);
}

const std::vector<double>& Bulk() {
  static const std::vector<double> v = [] {
    std::vector<double> d(kBulkDoubles);
    for (size_t i = 0; i < d.size(); ++i) d[i] = static_cast<double>(i) * 0.25;
    return d;
  }();
  return v;
}

void BM_BulkPut_Archive(benchmark::State& state) {
  for (auto _ : state) {
    mapcfg::CFFArchive a;
    a.PutDouble(Bulk().data(), static_cast<uint32_t>(Bulk().size()));
    benchmark::DoNotOptimize(a.GetCount());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(kBulkDoubles * 8));
}

void BM_BulkGet_Archive(benchmark::State& state) {
  mapcfg::CFFArchive a;
  a.PutDouble(Bulk().data(), static_cast<uint32_t>(Bulk().size()));
  for (auto _ : state) {
    a.Rewind();
    std::unique_ptr<double[]> block;
    benchmark::DoNotOptimize(a.GetDouble(block));
    benchmark::DoNotOptimize(block.get());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(kBulkDoubles * 8));
}

// memcpy of the same bytes into a block allocated for them.
void BM_Bulk_Memcpy(benchmark::State& state) {
  for (auto _ : state) {
    std::unique_ptr<double[]> block(new double[kBulkDoubles + 1]);
    std::memcpy(block.get(), Bulk().data(), kBulkDoubles * 8);
    benchmark::DoNotOptimize(block.get());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(kBulkDoubles * 8));
}

std::string TempPath(const char* name) {
  const char* dir = std::getenv("TMPDIR");
  return std::string(dir && *dir ? dir : "/tmp") + "/mapcfg_bench_" + name;
}

const std::string& BulkFile() {
  static const std::string path = [] {
    const std::string p = TempPath("bulk.arc");
    mapcfg::CFFArchive a;
    a.PutDouble(Bulk().data(), static_cast<uint32_t>(Bulk().size()));
    a.ToFile(p);
    return p;
  }();
  return path;
}

void BM_FileLoadSave_Archive(benchmark::State& state) {
  const std::string out = TempPath("copy_archive.arc");
  for (auto _ : state) {
    mapcfg::CFFArchive a;
    benchmark::DoNotOptimize(a.FromFile(BulkFile()));
    benchmark::DoNotOptimize(a.ToFile(out));
  }
  std::remove(out.c_str());
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(kBulkDoubles * 8));
}

void BM_FileLoadSave_Plain(benchmark::State& state) {
  const std::string out = TempPath("copy_plain.arc");
  std::unique_ptr<char[]> buffer(new char[kFileBlock]);
  for (auto _ : state) {
    std::FILE* in = std::fopen(BulkFile().c_str(), "rb");
    std::FILE* to = std::fopen(out.c_str(), "wb");
    size_t got;
    while (in && to && (got = std::fread(buffer.get(), 1, kFileBlock, in)) > 0) std::fwrite(buffer.get(), 1, got, to);
    if (in) std::fclose(in);
    if (to) std::fclose(to);
  }
  std::remove(out.c_str());
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(kBulkDoubles * 8));
}

}  // namespace

BENCHMARK(BM_MixedPut_Archive)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedPut_Plain)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedPut_PlainReserved)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedGet_Archive)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedGet_Plain)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BulkPut_Archive)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BulkGet_Archive)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Bulk_Memcpy)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FileLoadSave_Archive)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FileLoadSave_Plain)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  std::remove(BulkFile().c_str());
  return 0;
}
