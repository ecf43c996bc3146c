// The plane-shape and migration templates on any input. Bit 1 of the first
// byte chooses what the rest is:
//   0: a script, read in either language (bit 0: Chinese) by both tables'
//      readers; the tables' streams are written, read back and written
//      again, which must give the same bytes;
//   1: an archive stream: four bytes of version, a byte choosing a record
//      reader or a table's stream reader, then the stream. What a reader
//      leaves is written, read back with the current version and written
//      again, which must give the same bytes, and described.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "fuzz_util.h"

namespace {

using namespace mapcfg;

constexpr uint32_t kCurrent = 0xFFFFFFFFu;

std::string Bytes(CFFArchive& a) {
  uint32_t n = 0;
  std::unique_ptr<uint8_t[]> bytes = a.ToData(n);
  return std::string(reinterpret_cast<const char*>(bytes.get()), n);
}

std::string Tables() {
  CFFArchive a;
  if (!sCfgWritePlaneShapes(a).empty() || !sCfgWriteDataMigrate(a).empty()) std::abort();
  return Bytes(a);
}

// The tables through their streams and back.
void TablesRoundTrip() {
  (void)sDescribePlaneShapes();
  (void)sDescribeDataMigrate();
  const std::string first = Tables();
  mapcfg_fuzz::StoreReset::Clear();
  CFFArchive in;
  in.FromData(first.data(), static_cast<uint32_t>(first.size()));
  if (!sCfgReadPlaneShapes(in, kCurrent).empty() || !sCfgReadDataMigrate(in, kCurrent).empty()) std::abort();
  if (Tables() != first) std::abort();
}

// A record that a reader left, through its layout and back.
template <class R>
void RecordRoundTrip(const R& r, int (CFFArchive::*put)(const R*), int (CFFArchive::*get)(R*, uint32_t)) {
  (void)sDescribe(r);
  CFFArchive out;
  (out.*put)(&r);
  const std::string first = Bytes(out);
  CFFArchive in;
  in.FromData(first.data(), static_cast<uint32_t>(first.size()));
  R again{};
  if (!(in.*get)(&again, kCurrent)) std::abort();
  CFFArchive out2;
  (out2.*put)(&again);
  if (Bytes(out2) != first) std::abort();
}

void ReadStream(const uint8_t* data, size_t size) {
  if (size < 5) return;
  uint32_t version = 0;
  std::memcpy(&version, data, 4);
  const uint8_t op = data[4];
  CFFArchive a;
  a.FromData(data + 5, static_cast<uint32_t>(size - 5));
  switch (op % 6) {
    case 0: {
      _PlaneShapeTempl r{};
      a.GetPlaneShapeTempl(&r, version);
      RecordRoundTrip(r, &CFFArchive::PutPlaneShapeTempl, &CFFArchive::GetPlaneShapeTempl);
      break;
    }
    case 1: {
      _NoDiviType r{};
      a.GetNoDiviType(&r, version);
      RecordRoundTrip(r, &CFFArchive::PutNoDiviType, &CFFArchive::GetNoDiviType);
      break;
    }
    case 2: {
      _MigraTempl r;
      a.GetMigraTempl(&r, version);
      RecordRoundTrip(r, &CFFArchive::PutMigraTempl, &CFFArchive::GetMigraTempl);
      break;
    }
    case 3: {
      _MigraItem r;
      a.GetMigraItem(&r, version);
      RecordRoundTrip(r, &CFFArchive::PutMigraItem, &CFFArchive::GetMigraItem);
      break;
    }
    case 4:
      (void)sCfgReadPlaneShapes(a, version);
      TablesRoundTrip();
      break;
    default:
      (void)sCfgReadDataMigrate(a, version);
      TablesRoundTrip();
      break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  mapcfg_fuzz::StoreReset reset;
  if (data[0] & 2) {
    ReadStream(data + 1, size - 1);
    return 0;
  }
  *sGetCfgLang() = static_cast<char>(data[0] & 1);
  CCfgScript script;
  script.Open(mapcfg_fuzz::WriteScratch("templates.cfg", data + 1, size - 1).c_str(), 0);
  sCfgReadPlaneShapes(script);
  sCfgReadDataMigrate(script);
  TablesRoundTrip();
  return 0;
}
