// Speed of the record layer on a realistic store: 2,000 lithology, 300
// status and 300 interpretation codes, 200 colours, 4 x 200 name-to-picture
// rows, 50 text formats, data sources and label curves.
//
// Baselines in the same run: the whole-store stream against the same values
// put and got with plain CFFArchive calls into local vectors, and reading the
// store from its script against CCfgScript::Open of the same file alone.
#include <benchmark/benchmark.h>
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace mapcfg;

// Writes the store's script (English names); returns its path.
std::string MakeStoreScript() {
  const std::string path = "/tmp/mapcfg-bench-store.cfg";
  std::FILE* f = std::fopen(path.c_str(), "wb");
  std::mt19937 rng(7);
  auto n = [&rng](unsigned m) { return static_cast<unsigned>(rng() % m); };
  auto block = [f](const char* name) { std::fprintf(f, "Config: %s\r\nBegin\r\n", name); };
  auto end = [f] { std::fprintf(f, "End\r\n"); };
  block("SysCfgParam");
  std::fprintf(f, "DatumHeight = 1250.5\r\nDepthDispSystem = 0\r\nCoordDispSystem = 1\r\nEnd\r\n");
  block("ClassificationCorrelation");
  for (int i = 0; i < 300; ++i) std::fprintf(f, "W%03d = Status %d; %06X; %u; %06X\r\n", i, i, n(1 << 24), n(50), n(1 << 24));
  end();
  block("InterpretationCorrelation");
  for (int i = 0; i < 300; ++i)
    std::fprintf(f, "I%03d = Result %d: %u; Sym%u; %06X; Patt%u; %u; Std %d; %06X\r\n", i, i, n(9), n(40), n(1 << 24),
                 n(40), n(50), i, n(1 << 24));
  end();
  block("LithologyCorrelation");
  for (int i = 0; i < 2000; ++i)
    std::fprintf(f, "L%04d = Lith %d: %u.%u; Sym%u; Patt%u; %06X; %u\r\n", i, i, n(3), n(100), n(90), n(90), n(1 << 24),
                 n(100));
  end();
  block("ColorTable");
  for (int i = 0; i < 200; ++i) std::fprintf(f, "Colour %d = %06X\r\n", i, n(1 << 24));
  end();
  for (const char* b : {"OilGasControlTable", "MaterialContainingTable", "LithPrefixCorrelation", "StructureSymbolTable"}) {
    block(b);
    for (int i = 0; i < 200; ++i) std::fprintf(f, "%s %d = Picture%u\r\n", b, i, n(500));
    end();
  }
  block("Init_Colors");
  for (int i = 0; i < 16; ++i) std::fprintf(f, "C%d = %06X\r\n", i, n(1 << 24));
  end();
  block("Text_Format");
  for (int i = 0; i < 50; ++i) std::fprintf(f, "Fmt%d = a;b;c : d;e;%u : %u : [SPACE] : up : lo : %u : x : tail\r\n", i, n(9), n(9), n(9));
  end();
  block("Data_Source");
  for (int i = 0; i < 50; ++i) std::fprintf(f, "Source%d = DSN=field%d;UID=geo\r\n", i, i);
  end();
  block("Label_Curve");
  for (int i = 0; i < 50; ++i) std::fprintf(f, "CRV%02d = Curve %d; 0; 150\r\n", i, i);
  end();
  std::fclose(f);
  return path;
}

const std::string& StoreScript() {
  static const std::string path = MakeStoreScript();
  return path;
}

void ClearStore() {
  sCfgClearPlate();
  for (StringArray* list : {sCfgGetLibNamesPtr(), sCfgGetLibDllsPtr(), sCfgGetMenuNamesPtr(), sCfgGetMenuFunsPtr()})
    list->clear();
}

void ReadStoreFromScript(CCfgScript& script) {
  for (auto read : {sCfgReadSysCfgParam, sCfgReadStatusProps, sCfgReadInterpretProps, sCfgReadLithProps, sCfgReadColors,
                    sCfgReadYQXSs, sCfgReadHYWs, sCfgReadYXQZs, sCfgReadGZFHs, sCfgReadPrevColor, sCfgReadTextFmts,
                    sCfgReadDataSrcs, sCfgReadLabelCrvs})
    read(script);
}

// The store loaded once, and its stream.
const std::string& StoreStream() {
  static const std::string bytes = [] {
    *sGetCfgLang() = 0;
    ClearStore();
    CCfgScript script;
    script.Open(StoreScript().c_str(), 0);
    ReadStoreFromScript(script);
    CFFArchive a;
    sCfgWriteMain(a);
    uint32_t n = 0;
    auto data = a.ToData(n);
    return std::string(reinterpret_cast<const char*>(data.get()), n);
  }();
  return bytes;
}

void BM_ScriptOpen(benchmark::State& state) {
  for (auto _ : state) {
    CCfgScript script;
    script.Open(StoreScript().c_str(), 0);
    benchmark::DoNotOptimize(script.GetCfgCnt());
  }
}
BENCHMARK(BM_ScriptOpen)->Unit(benchmark::kMicrosecond);

void BM_ReadStoreFromScript(benchmark::State& state) {
  *sGetCfgLang() = 0;
  for (auto _ : state) {
    ClearStore();
    CCfgScript script;
    script.Open(StoreScript().c_str(), 0);
    ReadStoreFromScript(script);
    benchmark::DoNotOptimize(sCfgGetLithCodesPtr()->size());
  }
}
BENCHMARK(BM_ReadStoreFromScript)->Unit(benchmark::kMicrosecond);

// The same values as plain data, for the baselines.
struct Plain {
  _SysCfgParam sys;
  StringArray lists[4];
  StringArray status_codes, interpret_codes, lith_codes, color_names, picts[8], fmt_names, src[2], crv[2];
  std::vector<_StatusProp> status;
  std::vector<_IntepretProp> interpret;
  std::vector<_LithProp> lith;
  std::vector<uint32_t> colors;
  uint32_t prev[16];
  std::vector<_TextFmt> fmts;
};

Plain LoadedPlain() {
  StoreStream();
  Plain p;
  p.sys = *sCfgGetSysCfgParamPtr();
  p.status_codes = *sCfgGetStatusCodesPtr();
  p.interpret_codes = *sCfgGetInterpretCodesPtr();
  p.lith_codes = *sCfgGetLithCodesPtr();
  for (auto& r : *sCfgGetStatusPropsPtr()) p.status.push_back(*r);
  for (auto& r : *sCfgGetInterpretPropsPtr()) p.interpret.push_back(*r);
  for (auto& r : *sCfgGetLithPropsPtr()) p.lith.push_back(*r);
  p.color_names = *sCfgGetColorNamesPtr();
  p.colors = *sCfgGetColorsPtr();
  StringArray* picts[8] = {sCfgGetYQXSNamesPtr(), sCfgGetYQXSPictsPtr(), sCfgGetHYWNamesPtr(), sCfgGetHYWPictsPtr(),
                           sCfgGetYXQZNamesPtr(), sCfgGetYXQZPictsPtr(), sCfgGetGZFHNamesPtr(), sCfgGetGZFHPictsPtr()};
  for (int i = 0; i < 8; ++i) p.picts[i] = *picts[i];
  for (int i = 0; i < 16; ++i) p.prev[i] = sCfgGetPrevColorPtr()[i];
  p.fmt_names = *sCfgGetTextFmtNamesPtr();
  for (auto& r : *sCfgGetTextFmtsPtr()) p.fmts.push_back(*r);
  p.src[0] = *sCfgGetDataSrcNamesPtr();
  p.src[1] = *sCfgGetDataSrcValsPtr();
  p.crv[0] = *sCfgGetLabelCrvCodesPtr();
  p.crv[1] = *sCfgGetLabelCrvValsPtr();
  return p;
}

void PutPlain(CFFArchive& a, const Plain& p) {
  a.PutDouble(p.sys.datumHeight);
  a.PutByte(p.sys.depthSystem);
  a.PutByte(p.sys.coordSystem);
  a.PutLong(0);
  a.PutLong(0);
  for (const StringArray& l : p.lists) a.PutStringArray(l);
  a.PutStringArray(p.status_codes);
  a.PutLong(static_cast<int32_t>(p.status.size()));
  for (const _StatusProp& r : p.status) {
    a.PutString(r.name.c_str());
    a.PutLong(static_cast<int32_t>(r.color));
    a.PutLong(r.displayNo);
    a.PutLong(static_cast<int32_t>(r.color2));
  }
  a.PutStringArray(p.interpret_codes);
  a.PutLong(static_cast<int32_t>(p.interpret.size()));
  for (const _IntepretProp& r : p.interpret) {
    a.PutString(r.type.c_str());
    a.PutLong(r.density);
    a.PutString(r.symbolName.c_str());
    a.PutLong(static_cast<int32_t>(r.patternBG));
    a.PutString(r.patternName.c_str());
    a.PutLong(r.displayNo);
    a.PutString(r.standardName.c_str());
    a.PutLong(static_cast<int32_t>(r.patternColor));
  }
  a.PutStringArray(p.lith_codes);
  a.PutLong(static_cast<int32_t>(p.lith.size()));
  for (const _LithProp& r : p.lith) {
    a.PutString(r.name.c_str());
    a.PutDouble(r.ratio);
    a.PutString(r.symbolName.c_str());
    a.PutString(r.patternName.c_str());
    a.PutLong(static_cast<int32_t>(r.color));
    a.PutLong(r.displayNo);
  }
  a.PutStringArray(p.color_names);
  a.PutDWordArray(p.colors);
  for (const StringArray& l : p.picts) a.PutStringArray(l);
  a.PutLong(reinterpret_cast<const int32_t*>(p.prev), 16);
  a.PutStringArray(p.fmt_names);
  a.PutLong(static_cast<int32_t>(p.fmts.size()));
  for (const _TextFmt& r : p.fmts) {
    for (const String& s : r.texts1) a.PutString(s.c_str());
    for (const String& s : r.texts2) a.PutString(s.c_str());
    a.PutLong(r.num1);
    a.PutLong(r.num2);
    a.PutByte(static_cast<uint8_t>(r.char1));
    a.PutString(r.upper1.c_str());
    a.PutString(r.upper2.c_str());
    a.PutLong(r.num3);
    a.PutByte(static_cast<uint8_t>(r.char2));
    a.PutString(r.text3.c_str());
  }
  for (const StringArray& l : p.src) a.PutStringArray(l);
  for (const StringArray& l : p.crv) a.PutStringArray(l);
}

void GetPlain(CFFArchive& a, Plain& p) {
  p.sys.datumHeight = a.GetDouble();
  p.sys.depthSystem = a.GetByte();
  p.sys.coordSystem = a.GetByte();
  a.GetLong();
  a.GetLong();
  for (StringArray& l : p.lists) a.GetStringArray(l);
  a.GetStringArray(p.status_codes);
  for (int32_t i = 0, n = a.GetLong(); i < n; ++i) {
    _StatusProp r;
    r.name = a.GetString();
    r.color = static_cast<uint32_t>(a.GetLong());
    r.displayNo = a.GetLong();
    r.color2 = static_cast<uint32_t>(a.GetLong());
    p.status.push_back(std::move(r));
  }
  a.GetStringArray(p.interpret_codes);
  for (int32_t i = 0, n = a.GetLong(); i < n; ++i) {
    _IntepretProp r;
    r.type = a.GetString();
    r.density = a.GetLong();
    r.symbolName = a.GetString();
    r.patternBG = static_cast<uint32_t>(a.GetLong());
    r.patternName = a.GetString();
    r.displayNo = a.GetLong();
    r.standardName = a.GetString();
    r.patternColor = static_cast<uint32_t>(a.GetLong());
    p.interpret.push_back(std::move(r));
  }
  a.GetStringArray(p.lith_codes);
  for (int32_t i = 0, n = a.GetLong(); i < n; ++i) {
    _LithProp r;
    r.name = a.GetString();
    r.ratio = a.GetDouble();
    r.symbolName = a.GetString();
    r.patternName = a.GetString();
    r.color = static_cast<uint32_t>(a.GetLong());
    r.displayNo = a.GetLong();
    p.lith.push_back(std::move(r));
  }
  a.GetStringArray(p.color_names);
  a.GetDWordArray(p.colors);
  for (StringArray& l : p.picts) a.GetStringArray(l);
  a.GetDWord(p.prev, 16);
  a.GetStringArray(p.fmt_names);
  for (int32_t i = 0, n = a.GetLong(); i < n; ++i) {
    _TextFmt r;
    for (String& s : r.texts1) s = a.GetString();
    for (String& s : r.texts2) s = a.GetString();
    r.num1 = a.GetLong();
    r.num2 = a.GetLong();
    r.char1 = static_cast<char>(a.GetByte());
    r.upper1 = a.GetString();
    r.upper2 = a.GetString();
    r.num3 = a.GetLong();
    r.char2 = static_cast<char>(a.GetByte());
    r.text3 = a.GetString();
    p.fmts.push_back(std::move(r));
  }
  for (StringArray& l : p.src) a.GetStringArray(l);
  for (StringArray& l : p.crv) a.GetStringArray(l);
}

void BM_WriteMain(benchmark::State& state) {
  StoreStream();
  for (auto _ : state) {
    CFFArchive a;
    sCfgWriteMain(a);
    benchmark::DoNotOptimize(a.GetCount());
  }
  state.counters["bytes"] = static_cast<double>(StoreStream().size());
}
BENCHMARK(BM_WriteMain)->Unit(benchmark::kMicrosecond);

void BM_PutLoop(benchmark::State& state) {
  const Plain p = LoadedPlain();
  for (auto _ : state) {
    CFFArchive a;
    PutPlain(a, p);
    benchmark::DoNotOptimize(a.GetCount());
  }
  CFFArchive check;
  PutPlain(check, p);
  if (check.GetCount() != StoreStream().size()) state.SkipWithError("the baseline does not write the same stream");
}
BENCHMARK(BM_PutLoop)->Unit(benchmark::kMicrosecond);

void BM_ReadMain(benchmark::State& state) {
  const std::string& bytes = StoreStream();
  for (auto _ : state) {
    ClearStore();
    CFFArchive a;
    a.FromData(bytes.data(), static_cast<uint32_t>(bytes.size()));
    benchmark::DoNotOptimize(sCfgReadMain(a, 0xFFFFFFFFu));
  }
}
BENCHMARK(BM_ReadMain)->Unit(benchmark::kMicrosecond);

void BM_GetLoop(benchmark::State& state) {
  const std::string& bytes = StoreStream();
  for (auto _ : state) {
    Plain p;
    CFFArchive a;
    a.FromData(bytes.data(), static_cast<uint32_t>(bytes.size()));
    GetPlain(a, p);
    benchmark::DoNotOptimize(p.lith.size());
  }
}
BENCHMARK(BM_GetLoop)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
