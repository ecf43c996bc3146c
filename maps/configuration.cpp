// The whole configuration: one list of its sections, which the pack writer,
// the pack reader and the describer walk in the same order.
#include "mapcfg/configuration.h"

#include <iterator>
#include <string>

#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "mapcfg/store.h"
#include "store/config_strings.h"

namespace mapcfg {

namespace {

static_assert(kPackLayoutVersion >= kMapRecordsVersion1 && kPackLayoutVersion >= kShapeTemplsVersion1,
              "a pack must be read with the newest layout of every record it holds");

constexpr const char* kPackMagic = "mapcfg configuration pack";

struct Section {
  const char* name;
  String (*write)(CFFArchive&);
  String (*read)(CFFArchive&, uint32_t version);
  FieldTexts (*describe)();
};

template <cfg::Str Kind>
FieldTexts DescribeKind() {
  return sDescribeMapKind(cfg::Name(Kind));
}

using Reader = String (*)(CFFArchive&, uint32_t);

// The statistics templates, as one template file without a path.
String WriteStatis(CFFArchive& a) { return sCfgWriteMapStat(a, ""); }
String ReadStatis(CFFArchive& a, uint32_t version) { return sCfgReadMapStat("", a, version, 0); }
FieldTexts DescribeStatis() {
  FieldTexts all;
  const RecordArray<_CfgStatTempl>& templs = *sCfgGetMapStatPtr();
  for (size_t i = 0; i < templs.size(); ++i) {
    for (FieldText& f : sDescribe(*templs[i])) {
      f.name = "templs[" + std::to_string(i) + "]." + f.name;
      all.push_back(std::move(f));
    }
  }
  return all;
}

const Section kSections[] = {
    {"store", sCfgWriteMain, sCfgReadMain, sDescribeMainStore},
    {"wellloc", sCfgWriteMapWellLoc, Reader(sCfgReadMapWellLoc), DescribeKind<cfg::kWellLocationMap>},
    {"reserv", sCfgWriteMapReserv, Reader(sCfgReadMapReserv), DescribeKind<cfg::kReservoirProfileMap>},
    {"fence", sCfgWriteMapFence, Reader(sCfgReadMapFence), DescribeKind<cfg::kFenceMap>},
    {"correl", sCfgWriteMapCorrel, Reader(sCfgReadMapCorrel), DescribeKind<cfg::kMultiWellCorrelationMap>},
    {"single", sCfgWriteMapSingle, Reader(sCfgReadMapSingle), DescribeKind<cfg::kSingleWellMap>},
    {"planeshape", sCfgWritePlaneShapes, Reader(sCfgReadPlaneShapes), sDescribePlaneShapes},
    {"migrate", sCfgWriteDataMigrate, Reader(sCfgReadDataMigrate), sDescribeDataMigrate},
    {"statis", WriteStatis, ReadStatis, DescribeStatis},
};

}  // namespace

void sCfgReadAll(CCfgScript& script) {
  using ScriptReader = void (*)(CCfgScript&);
  for (ScriptReader read :
       {sCfgReadSysCfgParam, sCfgReadLibDlls, sCfgReadMenuFuns, sCfgReadStatusProps, sCfgReadInterpretProps,
        sCfgReadLithProps, sCfgReadColors, sCfgReadPrevColor, sCfgReadYQXSs, sCfgReadHYWs, sCfgReadYXQZs,
        sCfgReadGZFHs, sCfgReadTextFmts, sCfgReadDataSrcs, sCfgReadLabelCrvs, sCfgIsoLineProp,
        ScriptReader(sCfgReadMapWellLoc), ScriptReader(sCfgReadMapReserv), ScriptReader(sCfgReadMapFence),
        ScriptReader(sCfgReadMapCorrel), ScriptReader(sCfgReadPlaneShapes), ScriptReader(sCfgReadDataMigrate),
        ScriptReader(sCfgReadMapSingle)})
    read(script);
}

String sCfgWritePack(CFFArchive& archive) {
  archive.PutString(kPackMagic);
  archive.PutLong(static_cast<int32_t>(kPackLayoutVersion));
  archive.PutByte(static_cast<uint8_t>(*sGetCfgLang()));
  archive.PutLong(static_cast<int32_t>(std::size(kSections)));
  for (const Section& s : kSections) {
    archive.PutString(s.name);
    const String error = s.write(archive);
    if (!error.empty()) return error;
  }
  return archive.GetLastError();
}

String sCfgReadPack(CFFArchive& archive, char* language) {
  if (archive.GetString() != kPackMagic || !archive.GetLastError().empty()) return "not a configuration pack";
  // Each read is checked at once: a later read clears the error of an
  // earlier one.
  const auto failed = [&archive] { return !archive.GetLastError().empty(); };
  const uint32_t version = static_cast<uint32_t>(archive.GetLong());
  if (failed()) return archive.GetLastError();
  if (version > kPackLayoutVersion) return "a pack of a newer layout than this library reads";
  const char lang = static_cast<char>(archive.GetByte());
  if (failed()) return archive.GetLastError();
  const int32_t count = archive.GetLong();
  if (failed()) return archive.GetLastError();
  if (language) *language = lang;
  for (int32_t i = 0; i < count; ++i) {
    const String name = archive.GetString();
    if (failed()) return archive.GetLastError();
    const Section* section = nullptr;
    for (const Section& s : kSections)
      if (name == s.name) section = &s;
    if (!section) return "unknown section \"" + name + "\" in the pack";
    const String error = section->read(archive, version);
    if (!error.empty()) return error;
  }
  return "";
}

FieldTexts sDescribeAll() {
  FieldTexts all;
  for (const Section& s : kSections) {
    for (FieldText& f : s.describe()) {
      f.name = std::string(s.name) + "." + f.name;
      all.push_back(std::move(f));
    }
  }
  return all;
}

}  // namespace mapcfg
