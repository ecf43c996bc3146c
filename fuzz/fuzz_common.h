// Round trips several fuzz targets share: a record, or a part of the store,
// written, read back with the current layout and written again must give
// the same bytes; and the input layout of the stream targets.
#ifndef MAPCFG_FUZZ_FUZZ_COMMON_H_
#define MAPCFG_FUZZ_FUZZ_COMMON_H_

#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fuzz_util.h"

namespace mapcfg_fuzz {

constexpr uint32_t kCurrent = 0xFFFFFFFFu;

// `a` holding exactly `bytes`, ready to read.
inline mapcfg::CFFArchive& Loaded(mapcfg::CFFArchive& a, const std::string& bytes) {
  a.FromData(bytes.data(), static_cast<uint32_t>(bytes.size()));
  return a;
}

// A stream input: four bytes of archive version, a byte choosing the reader,
// then the stream itself, loaded in `archive`. False when it is too short.
struct StreamInput {
  uint32_t version = 0;
  uint8_t op = 0;
  mapcfg::CFFArchive archive;
  bool Parse(const uint8_t* data, size_t size) {
    if (size < 5) return false;
    std::memcpy(&version, data, 4);
    op = data[4];
    archive.FromData(data + 5, static_cast<uint32_t>(size - 5));
    return true;
  }
};

// `r` written by write(archive, r), read back by read(archive, fresh R)
// (true when it succeeds) and written again: the two streams must agree.
template <class R, class Write, class Read>
void Stable(const R& r, Write write, Read read) {
  mapcfg::CFFArchive first, in, second;
  write(first, r);
  const std::string bytes = Bytes(first);
  R again{};
  if (!read(Loaded(in, bytes), again)) std::abort();
  write(second, again);
  if (Bytes(second) != bytes) std::abort();
}

// The same for a record with a member writer and a versioned member reader;
// the record is described, too.
template <class R>
void Stable(const R& r, int (mapcfg::CFFArchive::*put)(const R*), int (mapcfg::CFFArchive::*get)(R*, uint32_t)) {
  (void)mapcfg::sDescribe(r);
  Stable(r, [put](mapcfg::CFFArchive& a, const R& v) { (a.*put)(&v); },
         [get](mapcfg::CFFArchive& a, R& v) { return (a.*get)(&v, kCurrent) != 0; });
}

// The part of the store that write(archive) writes (each write returning
// "" on success) through its stream: written, the store cleared, read by
// read(archive) and written again, which must give the same bytes.
template <class Write, class Read>
void StoreStable(Write write, Read read) {
  const auto stream = [&write] {
    mapcfg::CFFArchive a;
    if (!write(a)) std::abort();
    return Bytes(a);
  };
  const std::string first = stream();
  StoreReset::Clear();
  mapcfg::CFFArchive in;
  if (!read(Loaded(in, first))) std::abort();
  if (stream() != first) std::abort();
}

}  // namespace mapcfg_fuzz

#endif  // MAPCFG_FUZZ_FUZZ_COMMON_H_
