// The map records read from a map kind's block in either language: every
// key, the defaults of a missing or empty key, the clamps, and the curve
// lines with their fills. Their archive layouts are golden streams in
// tests/data/archive/records.hex.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <functional>
#include <string>

#include "test_util.h"

using namespace mapcfg;

namespace {

// The field texts of a record joined by ",", of records by "|"; the default
// face name shows as "FACE".
template <class R>
std::string Described(const R& r) {
  const String face = sGetInfoStr(1251).substr(0, 31);
  std::string s;
  for (const FieldText& f : sDescribe(r)) s += "," + (f.value == face && !face.empty() ? "FACE" : f.value);
  return s.erase(0, 1);
}

// Every reader on block "Map" of `rows`; the text of each record on a line.
std::string ReadAll(const std::string& rows) {
  mapcfg_test::TempDir dir;
  CCfgScript script;
  script.Open(dir.Write("map.cfg", "Config: Map\nBegin\n" + rows + "End\n").c_str(), 0);
  _LayersProp layers;
  _HVSpaceProp space;
  _MapFrameProp frame;
  _LegendProp legend;
  _ScaleProp scale;
  RecordArray<_CurveParm> curves;
  const float ratio = sCfgReadLayersProp(script, "Map", &layers);
  sCfgReadHVSpaceProp(script, "Map", &space);
  sCfgReadMapFrameProp(script, "Map", &frame);
  sCfgReadLegendProp(script, "Map", &legend, ratio);
  sCfgReadScaleProp(script, "Map", &scale);
  sCfgReadCurveParms(script, "Map", curves, ratio);
  std::string s = "ratio " + std::to_string(ratio) + "\nlayers " + Described(layers) + "\nspace " +
                  Described(space) + "\nframe " + Described(frame) + "\nlegend " + Described(legend) + "\nscale " +
                  Described(scale) + "\ncurves";
  for (const auto& c : curves) s += " [" + Described(*c) + "]";
  return s;
}

const char kDefaults[] =
    "ratio 1.000000\n"
    "layers 1,0,1,0,0,0\n"
    "space 1,1\n"
    "frame ,,0,0x000001,0,0,0,0,0,0,0x000000,24,0,0,400,134,0,0,0,0,0,0,0,FACE,0x000000,24,0,0,400,134,0,0,0,0,0,0,"
    "0,FACE,0x000000,24,0,0,400,134,0,0,0,0,0,0,0,FACE,0,0,0x000000,0.05,\n"
    "legend 1,0x000000,0.05,,0x000000,0xFFFFFF,1,,0.5,1,0.5,8,1,1,2,0x000000,0.05,,0x000000,24,0,0,400,134,0,0,0,0,"
    "0,0,0,FACE\n"
    "scale 2,5,2,10,1,1,,,0x000000,0.05,\n"
    "curves";

}  // namespace

TEST(MapRecords, ReadEveryKeyWithDefaultsAndClampsInEitherLanguage) {
  mapcfg_test::StoreGuard guard;
  *sGetCfgLang() = 0;
  // A missing block and a block of empty keys both give the defaults.
  EXPECT_EQ(ReadAll(""), kDefaults);
  EXPECT_EQ(ReadAll("PatternRatio =\nFrameFlags =\nLegend =\nScaleHeight =\nMapNameFontName =\n"), kDefaults);

  const std::string all =
      "PatternRatio = 2\nVertWellMode = 258\nMapHVRatio = 5\nMapHorzExpand = 10\nMajorHigh = 0.5\n"
      "MapVertMajorIncrement = 25\nHorzSpaceRatio = 1.5\nVertSpaceRatio = 0.75\n"
      "MapName = Top of S1\nMapMarkLabel = A-1\nDrawMapInfo = 1\nFrameFlags = 80000007\nMapTickLength = 1\n"
      "VScaleSpace = 100\nHScaleSpace = 200\nVGridLineSpace = 50\nHGridLineSpace = 25\nBoundOutExt = 0.5\n"
      "MapNameFontHeight = 8\nMapNameFontName = ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefgh\nMapNameFontClr = ff\n"
      "MapLabelFontHeight = 4\nMapInfoFontHeight = 3\nMapInfoFontName = Times\nMapInfoFontClr = ff0000\n"
      "MajorScaleFontHeight = 3\nMinorScaleFontHeight = 2\nFrameBorderWidth = 0.2\n"
      "Legend = 0\nLegendBorderWidth = 0.1\nLegendGroundClr = eeeeee\nLineSpaceRatio = 0.25\n"
      "SegmentSpaceRatio = 2\nSymbolSpaceRatio = 0.75\nBaseCharNumber = 0\nCharHeightRatio = 1.5\n"
      "LegendMetaCols = -3\nSymbolRadius = 1.5\nLineWidth = 0.3\nFontHeight = 2.5\n"
      "ScaleHeight = 3\nScaleMinorNumber = 4\nScaleMajorNumber = 3\nScaleMajorSpace = 20\nScaleMinorFactor = 0.5\n"
      "ScaleMajorFactor = 1000\nScaleMinorUnit = m\nScaleMajorUnit = km\nScaleLineWidth = 0.15\n"
      "CrvInvalidValue = -9999\n"
      "Curve = GR; Gamma ray; 0; 150; Dash; 0.2; ff\n"
      "FillingCurve = gr; SP; Sand; ffff\n"
      "FillingCurve = XX; SP; Sand; ffff\n"
      "Curve = SP\n"
      "Curve = GR; Again\n"
      "FillingCurve = GR; ; Clay\n";
  const std::string expected =
      "ratio 2.000000\n"
      "layers 2,2,5,10,0.5,25\n"
      "space 1.5,0.75\n"
      "frame Top of S1,A-1,1,0x80000007,1,100,200,50,25,0.5,0x0000FF,8,0,0,400,134,0,0,0,0,0,0,0,"
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcde,0x000000,4,0,0,400,134,0,0,0,0,0,0,0,FACE,0xFF0000,3,0,0,400,134,0,0,0,0,0,"
      "0,0,Times,3,2,0x000000,0.2,\n"
      "legend 0,0x000000,0.1,,0x000000,0xEEEEEE,2,,0.25,2,0.75,1,1.5,1,1.5,0x000000,0.3,,0x000000,2.5,0,0,400,134,0,"
      "0,0,0,0,0,0,FACE\n"
      "scale 3,4,3,20,0.5,1000,m,km,0x000000,0.15,\n"
      "curves [GR,Gamma ray,0,150,-9999,0x0000FF,0.2,Dash,SP,0x000000,0x00FFFF,2,Sand] "
      "[SP,,-999.25,-999.25,-9999,0x000000,0.05,] "
      "[GR,Again,-999.25,-999.25,-9999,0x000000,0.05,,,0x000000,0xFFFFFF,2,Clay]";
  EXPECT_EQ(ReadAll(all), expected);

  // Chinese keys under the Chinese language; English keys are not read.
  *sGetCfgLang() = 1;
  EXPECT_EQ(ReadAll(all), kDefaults);
  const std::string zh = mapcfg_test::Iconv(
      "GBK", "UTF-8",
      "图案比例 = 0\n图件纵横比 = -2\n图名 = 顶面构造图\n图框标识 = 3\n图名字体名称 = 黑体\n图例列数 = 3\n"
      "比例尺主刻度单位 = 千米\n曲线 = GR; 自然伽马; 0; 150\n曲线填充 = GR; SP; Sand\n");
  // A ratio of 0 and a negative scale draw at 1.
  EXPECT_EQ(mapcfg_test::GbkToUtf8(ReadAll(zh)),
            "ratio 1.000000\n"
            "layers 1,0,1,0,0,0\n"
            "space 1,1\n"
            "frame 顶面构造图,,0,0x000003,0,0,0,0,0,0,0x000000,24,0,0,400,134,0,0,0,0,0,0,0,黑体,0x000000,24,0,0,400,134,"
            "0,0,0,0,0,0,0,FACE,0x000000,24,0,0,400,134,0,0,0,0,0,0,0,FACE,0,0,0x000000,0.05,\n"
            "legend 1,0x000000,0.05,,0x000000,0xFFFFFF,1,,0.5,1,0.5,8,1,3,2,0x000000,0.05,,0x000000,24,0,0,400,134,0,0,0,"
            "0,0,0,0,FACE\n"
            "scale 2,5,2,10,1,1,,千米,0x000000,0.05,\n"
            "curves [GR,自然伽马,0,150,-999.25,0x000000,0.05,,SP,0x000000,0xFFFFFF,1,Sand]");
}

TEST(MapRecords, CopiesAreDeepAndClearEmpties) {
  RecordArray<_CurveParm> src, dst;
  src.push_back(std::make_unique<_CurveParm>());
  src[0]->Code = "GR";
  src[0]->Fills.push_back(std::make_unique<_CrvFillItem>());
  src[0]->Fills[0]->Curve = "SP";
  dst.push_back(std::make_unique<_CurveParm>());
  sCfgCopyCurveParms(dst, src);
  ASSERT_EQ(dst.size(), 1u);
  ASSERT_NE(dst[0].get(), src[0].get());
  ASSERT_NE(dst[0]->Fills[0].get(), src[0]->Fills[0].get());
  EXPECT_EQ(Described(*dst[0]), Described(*src[0]));
  sCfgCopyCurveParms(dst, dst);
  EXPECT_EQ(dst.size(), 1u);
  sCfgClearCurveParms(dst);
  EXPECT_TRUE(dst.empty());
}
