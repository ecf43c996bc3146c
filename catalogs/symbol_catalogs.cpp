// Symbol-picture, colour, preset-colour, text-format, data-source,
// label-curve and contour-parameter tables.
#include <algorithm>
#include <memory>

#include "base/text_bytes.h"
#include "catalogs/catalog_fields.h"
#include "catalogs/catalog_tables.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "store/script_fields.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

// A two-array table filled from `Block`: names (or codes) and their values.
template <cfg::Str Block>
struct NameValueTable {
  StringArray names;
  StringArray values;
};

template <cfg::Str Block>
NameValueTable<Block>& Pairs() {
  return detail::StoreTable<NameValueTable<Block>>();
}

// The tables kept ascending by name.
template <cfg::Str Block>
void ReadSorted(const CCfgScript& script) {
  NameValueTable<Block>& t = Pairs<Block>();
  detail::ReadSortedBlock(script, Block, t.names, t.values, [](const String& value) { return value; });
}

template <cfg::Str Block>
String FindSorted(const String& name) {
  NameValueTable<Block>& t = Pairs<Block>();
  const String* value = detail::FindByKey(t.names, t.values, name);
  return value ? *value : String();
}

constexpr cfg::Str kYQXS = cfg::kOilGasControlTable;
constexpr cfg::Str kHYW = cfg::kMaterialContainingTable;
constexpr cfg::Str kYXQZ = cfg::kLithPrefixCorrelation;
constexpr cfg::Str kGZFH = cfg::kStructureSymbolTable;
constexpr cfg::Str kLabelCrv = cfg::kLabelCurve;
constexpr cfg::Str kDataSrc = cfg::kDataSource;
constexpr cfg::Str kIso = cfg::kContourCreatingParameters;

struct ColorTable {
  StringArray names;
  std::vector<uint32_t> colors;
};

constexpr int kPrevColorCount = 16;
constexpr uint32_t kWhite = 0xFFFFFF;

struct PrevColorTable {
  uint32_t colors[kPrevColorCount] = {};
};

struct TextFmtTable {
  StringArray names;
  RecordArray<_TextFmt> fmts;
};

// The separator of a text format: "[SPACE]" or nothing a blank, "[RETURN]"
// a line feed, else the first character in upper case.
char Separator(const String& group) {
  const String upper = detail::UpperCopy(group);
  if (upper.empty() || upper == "[SPACE]") return ' ';
  if (upper == "[RETURN]") return '\n';
  return upper[0];
}

// Value "texts1[0]; texts1[1]; texts1[2] : texts2[0]; texts2[1]; num1 :
// num2 : char1 : upper1 : upper2 : num3 : char2 : text3".
std::unique_ptr<_TextFmt> ParseTextFmt(const String& value) {
  auto r = std::make_unique<_TextFmt>();
  detail::ValueFields groups(value);
  const String group1 = groups.Text(':');
  detail::ValueFields parts1(group1);
  for (String& text : r->texts1) text = parts1.Text(';');
  const String group2 = groups.Text(':');
  detail::ValueFields parts2(group2);
  for (String& text : r->texts2) text = parts2.Text(';');
  r->num1 = parts2.Int(';');
  r->num2 = groups.Int(':');
  r->char1 = Separator(groups.Text(':'));
  r->upper1 = detail::UpperCopy(groups.Text(':'));
  r->upper2 = detail::UpperCopy(groups.Text(':'));
  r->num3 = groups.Int(':');
  r->char2 = Separator(groups.Text(':'));
  r->text3 = groups.Text(':');
  return r;
}

}  // namespace

StringArray* sCfgGetYQXSNamesPtr() { return &Pairs<kYQXS>().names; }
StringArray* sCfgGetYQXSPictsPtr() { return &Pairs<kYQXS>().values; }
StringArray* sCfgGetHYWNamesPtr() { return &Pairs<kHYW>().names; }
StringArray* sCfgGetHYWPictsPtr() { return &Pairs<kHYW>().values; }
StringArray* sCfgGetYXQZNamesPtr() { return &Pairs<kYXQZ>().names; }
StringArray* sCfgGetYXQZPictsPtr() { return &Pairs<kYXQZ>().values; }
StringArray* sCfgGetGZFHNamesPtr() { return &Pairs<kGZFH>().names; }
StringArray* sCfgGetGZFHPictsPtr() { return &Pairs<kGZFH>().values; }
void sCfgReadYQXSs(CCfgScript& script) { ReadSorted<kYQXS>(script); }
void sCfgReadHYWs(CCfgScript& script) { ReadSorted<kHYW>(script); }
void sCfgReadYXQZs(CCfgScript& script) { ReadSorted<kYXQZ>(script); }
void sCfgReadGZFHs(CCfgScript& script) { ReadSorted<kGZFH>(script); }
String sCfgFindYQXS(const String& name) { return FindSorted<kYQXS>(name); }
String sCfgFindHYW(const String& name) { return FindSorted<kHYW>(name); }
String sCfgFindYXQZ(const String& name) { return FindSorted<kYXQZ>(name); }
String sCfgFindGZFH(const String& name) { return FindSorted<kGZFH>(name); }

StringArray* sCfgGetColorNamesPtr() { return &detail::StoreTable<ColorTable>().names; }
std::vector<uint32_t>* sCfgGetColorsPtr() { return &detail::StoreTable<ColorTable>().colors; }
void sCfgReadColors(CCfgScript& script) {
  ColorTable& t = detail::StoreTable<ColorTable>();
  detail::ReadSortedBlock(script, cfg::kColorTable, t.names, t.colors,
                          [](const String& value) { return sToDWord(value); });
}
uint32_t sCfgFindColor(const String& name) {
  ColorTable& t = detail::StoreTable<ColorTable>();
  const uint32_t* color = detail::FindByKey(t.names, t.colors, name);
  return color ? *color : kWhite;
}

uint32_t* sCfgGetPrevColorPtr() { return detail::StoreTable<PrevColorTable>().colors; }
void sCfgReadPrevColor(CCfgScript& script) {
  uint32_t* colors = sCfgGetPrevColorPtr();
  const String block = cfg::Name(cfg::kInitColors);
  const int count = std::min(script.GetKeyCnt(block.c_str()), kPrevColorCount);
  int i = 0;
  for (; i < count; ++i) colors[i] = sToDWord(script.GetKeyVal(block.c_str(), i));
  for (; i < kPrevColorCount; ++i) colors[i] = kWhite;
}

StringArray* sCfgGetTextFmtNamesPtr() { return &detail::StoreTable<TextFmtTable>().names; }
RecordArray<_TextFmt>* sCfgGetTextFmtsPtr() { return &detail::StoreTable<TextFmtTable>().fmts; }
void sCfgReadTextFmts(CCfgScript& script) {
  TextFmtTable& t = detail::StoreTable<TextFmtTable>();
  const String block = cfg::Name(cfg::kTextFormat);
  const int count = script.GetKeyCnt(block.c_str());
  for (int i = 0; i < count; ++i) {
    const String value = script.GetKeyVal(block.c_str(), i);
    if (value.empty()) continue;
    t.fmts.push_back(ParseTextFmt(value));
    t.names.push_back(script.GetKeyName(block.c_str(), i));
  }
}
void sCfgClearTextFmts() { detail::StoreTable<TextFmtTable>() = TextFmtTable(); }

StringArray* sCfgGetDataSrcNamesPtr() { return &Pairs<kDataSrc>().names; }
StringArray* sCfgGetDataSrcValsPtr() { return &Pairs<kDataSrc>().values; }
void sCfgReadDataSrcs(CCfgScript& script) {
  detail::ReadNameValueBlock(script, kDataSrc, Pairs<kDataSrc>().names, Pairs<kDataSrc>().values);
}

StringArray* sCfgGetLabelCrvCodesPtr() { return &Pairs<kLabelCrv>().names; }
StringArray* sCfgGetLabelCrvValsPtr() { return &Pairs<kLabelCrv>().values; }
void sCfgReadLabelCrvs(CCfgScript& script) { ReadSorted<kLabelCrv>(script); }
String sCfgFindLabelCrv(const String& code) { return FindSorted<kLabelCrv>(code); }

StringArray* sCfgGetIsoPropCodesPtr() { return &Pairs<kIso>().names; }
StringArray* sCfgGetIsoPropValsPtr() { return &Pairs<kIso>().values; }
// Each value "code; value" adds the pair when the value is not empty; the
// keys of the block are not used.
void sCfgIsoLineProp(CCfgScript& script) {
  NameValueTable<kIso>& t = Pairs<kIso>();
  const String block = cfg::Name(kIso);
  const int count = script.GetKeyCnt(block.c_str());
  for (int i = 0; i < count; ++i) {
    String line = script.GetKeyVal(block.c_str(), i);
    detail::Trim(line);
    const size_t sep = line.find(';');
    if (sep == String::npos) continue;
    String code = line.substr(0, sep), value = line.substr(sep + 1);
    detail::Trim(code);
    detail::Trim(value);
    if (value.empty()) continue;
    t.names.push_back(code);
    t.values.push_back(value);
  }
}

FieldTexts sDescribe(const _TextFmt& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
