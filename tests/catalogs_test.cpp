// Catalogues read from scripts: well status, interpretation and lithology
// records, symbol pictures, colours, preset colours, text formats, data
// sources, label curves, contour parameters, and the lithology-description
// splitter. The records' archive layouts are golden streams in
// tests/data/archive/records.hex.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "test_util.h"

using namespace mapcfg;

namespace {

std::string Block(const std::string& name, const std::string& rows) {
  return "Config: " + name + "\nBegin\n" + rows + "End\n";
}

// Opens `text` as a script and runs `readers` on it.
void Read(const std::string& text, std::initializer_list<void (*)(CCfgScript&)> readers) {
  mapcfg_test::TempDir dir;
  CCfgScript script;
  script.Open(dir.Write("main.cfg", text).c_str(), 0);
  for (const auto read : readers) read(script);
}

// The field texts of a record joined by ",", of records by "|".
template <class R>
std::string Described(const R* r) {
  if (!r) return "null";
  std::string s;
  for (const FieldText& f : sDescribe(*r)) s += "," + f.value;
  return s.substr(1);
}
template <class R>
std::string Described(const RecordArray<R>& records) {
  std::string s;
  for (const std::unique_ptr<R>& r : records) s += "|" + Described(r.get());
  return s.substr(1);
}

std::string Hex(uint32_t v) {
  char text[16];
  std::snprintf(text, sizeof text, "%06x", v);
  return text;
}

TEST(RecordCatalogs, ReadInCodeOrderFindWithTheDefaultOfTheLanguage) {
  mapcfg_test::StoreGuard guard;
  *sGetCfgLang() = 0;
  const std::string text =
      Block("ClassificationCorrelation", "B = Oil; 0000FF; 3; 00ff00\na = Gas; x; 2.9\nA = Dry\n") +
      Block("InterpretationCorrelation", "Oil = Oil layer: 300; S1; FFFF00; P1; 2; Std; 0000FF\nDry = Dry:\n") +
      Block("LithologyCorrelation", "Sand = Sandstone: 0.5; SS; PSS; 00FFFF; 7; extra\nDefault = Unknown: x\n");
  Read(text, {sCfgReadStatusProps});
  EXPECT_EQ(*sCfgGetStatusCodesPtr(), (StringArray{"a", "A", "B"}));
  // Read again: an equal code goes after the one found, its record beside it.
  Read(text, {sCfgReadStatusProps, sCfgReadInterpretProps, sCfgReadLithProps});
  EXPECT_EQ(*sCfgGetStatusCodesPtr(), (StringArray{"a", "A", "a", "A", "B", "B"}));
  EXPECT_EQ(Described(*sCfgGetStatusPropsPtr()),
            "Gas,0x000000,2,0x000000|Dry,0x000000,0,0x000000|Gas,0x000000,2,0x000000|Dry,0x000000,0,0x000000|"
            "Oil,0x0000FF,3,0x00FF00|Oil,0x0000FF,3,0x00FF00");
  EXPECT_EQ(Described(*sCfgGetInterpretPropsPtr()),
            "Dry,0,,0x000000,,0,,0x000000|Oil layer,300,S1,0xFFFF00,P1,2,Std,0x0000FF");
  EXPECT_EQ(*sCfgGetLithCodesPtr(), (StringArray{"Default", "Sand"}));
  EXPECT_EQ(Described(sCfgFindLithProp("SAND", 1)), "Sandstone,0.5,SS,PSS,0x00FFFF,7");
  EXPECT_EQ(Described(sCfgFindLithProp("Clay", 0)), "Unknown,0,,,0x000000,0");
  EXPECT_EQ(Described(sCfgFindLithProp("Clay", 1)), "null");
  EXPECT_EQ(Described(sCfgFindStatusProp("Clay", 0)), "null");  // no default code

  for (const auto& [code, expected] :
       {std::pair<String, String>{"OIL", "Oil layer|44|S1|ffff00|P1|0000ff"}, {"Gas", "|0||ffffff||000000"}}) {
    String type = "x", symbol = "x", pattern = "x";
    char density = 9;  // 300 cut to a byte is 44
    uint32_t background = 9, color = 9;
    sCfgGetResultPropByCode(code, type, density, symbol, background, pattern, color);
    EXPECT_EQ(
        type + "|" + std::to_string(density) + "|" + symbol + "|" + Hex(background) + "|" + pattern + "|" + Hex(color),
        expected);
  }

  // In Chinese the default code is the Chinese word.
  *sGetCfgLang() = 1;
  EXPECT_EQ(sCfgFindLithProp("Clay", 0), nullptr);
  // 岩性符号配置表, 缺省
  Read(Block("\xD1\xD2\xD0\xD4\xB7\xFB\xBA\xC5\xC5\xE4\xD6\xC3\xB1\xED", "\xC8\xB1\xCA\xA1 = Other: 2\n"),
       {sCfgReadLithProps});
  EXPECT_EQ(Described(sCfgFindLithProp("Clay", 0)), "Other,2,,,0x000000,0");
}

// Interleaving, and what a failed read keeps, are golden streams
// (records.hex).
TEST(RecordCatalogs, ArrayFormsThrowAtAShorterSecondArray) {
  RecordArray<_LithProp> first, second;
  for (RecordArray<_LithProp>* records : {&first, &first, &second}) records->push_back(std::make_unique<_LithProp>());
  CFFArchive a;
  EXPECT_THROW(a.PutLithPropArray(first, &second), std::out_of_range);
  EXPECT_THROW(a.PutLithPropArray(first, &first, &second), std::out_of_range);
}

}  // namespace
