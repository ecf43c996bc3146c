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

#include "store_test_util.h"
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
  return r ? mapcfg_test::Values(*r) : "null";
}
template <class R>
std::string Described(const RecordArray<R>& records) {
  std::string s;
  for (const std::unique_ptr<R>& r : records) s += "|" + Described(r.get());
  return s.erase(0, 1);
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

TEST(SymbolCatalogs, SortedTablesPresetColoursTextFormatsSourcesAndContours) {
  mapcfg_test::StoreGuard guard;
  *sGetCfgLang() = 0;
  struct Table {
    const char* block;
    void (*read)(CCfgScript&);
    StringArray* (*names)();
    StringArray* (*values)();
    String (*find)(const String&);
  };
  const Table kTables[] = {
      {"OilGasControlTable", sCfgReadYQXSs, sCfgGetYQXSNamesPtr, sCfgGetYQXSPictsPtr, sCfgFindYQXS},
      {"MaterialContainingTable", sCfgReadHYWs, sCfgGetHYWNamesPtr, sCfgGetHYWPictsPtr, sCfgFindHYW},
      {"LithPrefixCorrelation", sCfgReadYXQZs, sCfgGetYXQZNamesPtr, sCfgGetYXQZPictsPtr, sCfgFindYXQZ},
      {"StructureSymbolTable", sCfgReadGZFHs, sCfgGetGZFHNamesPtr, sCfgGetGZFHPictsPtr, sCfgFindGZFH},
      {"Label_Curve", sCfgReadLabelCrvs, sCfgGetLabelCrvCodesPtr, sCfgGetLabelCrvValsPtr, sCfgFindLabelCrv},
  };
  for (const Table& t : kTables) {  // the values name their table, so a mix-up shows
    const std::string b = t.block;
    Read(Block(b, "Oil Spot = 1" + b + "\nOil = 2" + b + "\noil = 3" + b + "\n"), {t.read});
    EXPECT_EQ(*t.names(), (StringArray{"Oil", "oil", "Oil Spot"})) << b;
    EXPECT_EQ(*t.values(), (StringArray{"2" + b, "3" + b, "1" + b})) << b;
    EXPECT_EQ(t.find("OIL SPOT") + "|" + t.find("Oil Spots"), "1" + b + "|");
  }

  // Preset colours: three keys leave the other slots white, of twenty keys
  // sixteen are used.
  std::string twenty;
  for (int i = 1; i <= 20; ++i) twenty += "c = " + std::to_string(i) + "\n";
  for (const auto& [rows, expected] : {std::pair<std::string, std::string>{"a = 0000FF\nb =\nc = 00ff00\n",
                                                                           "0000ff00000000ff00" + std::string(78, 'f')},
                                       {twenty,
                                        "000001000002000003000004000005000006000007000008000009000010"
                                        "000011000012000013000014000015000016"}}) {
    std::fill_n(sCfgGetPrevColorPtr(), 16, 7u);
    Read(Block("Init_Colors", rows), {sCfgReadPrevColor});
    std::string got;
    for (int i = 0; i < 16; ++i) got += Hex(sCfgGetPrevColorPtr()[i]);
    EXPECT_EQ(got, expected);
  }

  // {text format, its fields}; a separator is described as its character code.
  const std::pair<std::string, std::string> kFormats[] = {
      {"a; b; c : d; e; 12 : 3 : [return] : mm : Nn : 4 : x : Tail", "a,b,c,d,e,12,3,10,MM,NN,4,88,Tail"},
      {"only", "only,,,,,0,0,32,,,0,32,"},
      {":::[Space]::::[RETURN]", ",,,,,0,0,32,,,0,10,"},
      {"::: ;x : \x95\x73s", ",,,,,0,0,59,\x95\x73S,,0,32,"},  // 晄 keeps its second byte
  };
  std::string rows, fields;
  for (const auto& [value, described] : kFormats) {
    rows += "f = " + value + "\nempty =\n";
    fields += "|" + described;
  }
  Read(Block("Text_Format", rows) + Block("ColorTable", "Red = 0000FF\nblack =\nGrey = 0x808080\n") +
           Block("Data_Source", "Wells = a.db\nLogs = b.db\nWells = c.db\n") +
           Block("ContourCreatingParameters", "1 = GR ; 100\n2 = SP;\n3 = none\n4 = ; v\n5 = a;b;c\n"),
       {sCfgReadTextFmts, sCfgReadColors, sCfgReadDataSrcs, sCfgIsoLineProp});
  EXPECT_EQ(*sCfgGetTextFmtNamesPtr(), StringArray(std::size(kFormats), "f"));
  EXPECT_EQ("|" + Described(*sCfgGetTextFmtsPtr()), fields);
  sCfgClearTextFmts();
  EXPECT_TRUE(sCfgGetTextFmtNamesPtr()->empty() && sCfgGetTextFmtsPtr()->empty());
  EXPECT_EQ(*sCfgGetColorNamesPtr(), (StringArray{"black", "Grey", "Red"}));
  EXPECT_EQ(*sCfgGetColorsPtr(), (std::vector<uint32_t>{0, 0x808080, 0xFF}));
  EXPECT_EQ(Hex(sCfgFindColor("RED")) + Hex(sCfgFindColor("Blue")), "0000ffffffff");
  EXPECT_EQ(*sCfgGetDataSrcNamesPtr(), (StringArray{"Wells", "Logs", "Wells"}));
  EXPECT_EQ(*sCfgGetDataSrcValsPtr(), (StringArray{"a.db", "b.db", "c.db"}));
  EXPECT_EQ(*sCfgGetIsoPropCodesPtr(), (StringArray{"GR", "", "a"}));
  EXPECT_EQ(*sCfgGetIsoPropValsPtr(), (StringArray{"100", "v", "b;c"}));
}

TEST(LithDescription, SplitsColourShowModifiersAndBase) {
  mapcfg_test::StoreGuard guard;
  *sGetCfgLang() = 1;
  const std::string grey = "\xBB\xD2\xC9\xAB", fluor = "\xD3\xAB\xB9\xE2", oil = "\xD3\xCD", spot = "\xB0\xDF";
  const std::string gravel = "\xBA\xAC\xC0\xF9", shaly = "\xC4\xE0\xD6\xCA", massive = "\xBF\xE9\xD7\xB4";
  const std::string sand = "\xC9\xB0\xD1\xD2", mud = "\xC4\xE0\xD1\xD2";
  // 灰色 荧光 油 斑 含砾 泥质 块状 砂岩 泥岩 above; the blocks below: 颜色对照表,
  // 油气显示对照表, 含有物对照表, 岩性前缀对照表, 构造符号对照表, 岩性符号配置表.
  Read(Block("\xD1\xD5\xC9\xAB\xB6\xD4\xD5\xD5\xB1\xED", grey + " = 808080\n") +
           Block("\xD3\xCD\xC6\xF8\xCF\xD4\xCA\xBE\xB6\xD4\xD5\xD5\xB1\xED",
                 oil + spot + " = YB\n" + fluor + " = YG\n" + oil + " = Y\n") +
           Block("\xBA\xAC\xD3\xD0\xCE\xEF\xB6\xD4\xD5\xD5\xB1\xED", gravel + " = HL\nCa = CA\n") +
           Block("\xD1\xD2\xD0\xD4\xC7\xB0\xD7\xBA\xB6\xD4\xD5\xD5\xB1\xED", shaly + " = NZ\n") +
           Block("\xB9\xB9\xD4\xEC\xB7\xFB\xBA\xC5\xB6\xD4\xD5\xD5\xB1\xED", massive + " = KZ\n") +
           Block("\xD1\xD2\xD0\xD4\xB7\xFB\xBA\xC5\xC5\xE4\xD6\xC3\xB1\xED",
                 mud + " = Mudstone: 0.8; MS; PMS\n" + sand + " = Sandstone: 0.6; SS; PSS\n" + massive + sand +
                     " = Massive: 0.7; KSS; PKSS\n" + gravel + sand + " = Gravelly: 0.9; GSS; PGSS\n"),
       {sCfgReadColors, sCfgReadYQXSs, sCfgReadHYWs, sCfgReadYXQZs, sCfgReadGZFHs, sCfgReadLithProps});

  // {description, caller's colour name (the oil show comes in as "o")} ->
  // description, oil show, colour name, lithology, ratio, parts 1-4, symbols
  // 1-4, pattern, oil-show symbol, colour
  const std::pair<std::vector<std::string>, std::vector<std::string>> kCases[] = {
      // every part; the containing material matched without ASCII case
      {{grey + fluor + "cA" + shaly + massive + mud, "c"},
       {mud, fluor, grey, "Mudstone", "0.8", mud, massive, shaly, "Ca", "MS", "KZ", "NZ", "CA", "PMS", "YG", "808080"}},
      // structure + base is one lithology code; no colour keeps the caller's
      {{massive + sand, grey},
       {sand, "o", grey, "Massive", "0.7", sand, "", "", "", "KSS", "", "", "", "PKSS", "", "808080"}},
      // material + base, with the empty parts between, is one code
      {{gravel + sand, "c"},
       {sand, "o", "c", "Gravelly", "0.9", sand, "", "", "", "GSS", "", "", "", "PGSS", "", "ffffff"}},
      // the shorter oil show sorts first and is cut; no lithology is found
      {{oil + spot + sand, "c"},
       {spot + sand, oil, "c", "", "1", spot + sand, "", "", "", "", "", "", "", "", "Y", "ffffff"}},
  };
  for (const auto& [in, expected] : kCases) {
    String description = in[0], show = "o", color_name = in[1], lith = "x", pattern = "x", symbol = "x";
    String parts[4] = {"x", "x", "x", "x"}, symbols[4] = {"x", "x", "x", "x"};
    double ratio = -1;
    uint32_t color = 0;
    EXPECT_EQ(sCfgGetLithPropByCode(description, show, color_name, lith, ratio, parts, symbols, pattern, symbol, color),
              4);
    std::ostringstream ratio_text;
    ratio_text << ratio;
    EXPECT_EQ((std::vector<std::string>{description, show, color_name, lith, ratio_text.str(), parts[0], parts[1],
                                        parts[2], parts[3], symbols[0], symbols[1], symbols[2], symbols[3], pattern,
                                        symbol, Hex(color)}),
              expected);
  }
}

}  // namespace
