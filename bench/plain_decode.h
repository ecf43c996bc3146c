// The baseline of the stream benchmarks: a plain decode that reads every
// value of a stream with the typed Get of its stored tag (no records, no
// fields), as a host without the record layer would.
#ifndef MAPCFG_BENCH_PLAIN_DECODE_H_
#define MAPCFG_BENCH_PLAIN_DECODE_H_

#include <benchmark/benchmark.h>
#include <mapcfg/mapcfg.h>

#include <string>

#include "archive/archive_core.h"

namespace mapcfg_bench {

inline void PlainDecode(const std::string& bytes) {
  using mapcfg::detail::ArchiveCore;
  mapcfg::CFFArchive a;
  a.FromData(bytes.data(), static_cast<uint32_t>(bytes.size()));
  double sum = 0;
  size_t text = 0;
  uint8_t tag = 0;
  while (a.ReadUnit(&tag, 1)) {
    ArchiveCore::StepBack(a, 1);
    switch (tag) {
      case 1: sum += a.GetByte(); break;
      case 2: sum += a.GetShort(); break;
      case 3: sum += a.GetLong(); break;
      case 4: sum += a.GetFloat(); break;
      case 5: sum += a.GetDouble(); break;
      default: text += a.GetString().size(); break;
    }
    if (ArchiveCore::HasError(a)) break;  // a value no Get above reads
  }
  benchmark::DoNotOptimize(sum);
  benchmark::DoNotOptimize(text);
}

}  // namespace mapcfg_bench

#endif  // MAPCFG_BENCH_PLAIN_DECODE_H_
