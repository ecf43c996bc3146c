// Archive bytes against hand-built golden streams (tests/data/archive/*.hex):
// each line holds a value's bytes, the form whose writer must store exactly
// those bytes again, and the text each named reader must make of them.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <functional>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>

#include "archive_test_util.h"
#include "test_util.h"

using namespace mapcfg;
using mapcfg_test::Loaded;

namespace {

// Values as the golden files write them: integers in decimal, floating
// values in their shortest exact form, texts quoted with \xNN for all but
// printable ASCII.
template <class T>
std::string Text(T v) {
  if constexpr (std::is_floating_point<T>::value) {
    char buf[32];
    return std::string(buf, std::to_chars(buf, buf + sizeof buf, v).ptr);
  } else {
    return std::to_string(static_cast<long long>(v));
  }
}
std::string Text(const String& s) {
  std::string out = "\"";
  for (const unsigned char c : s) {
    char hex[5];
    std::snprintf(hex, sizeof hex, "\\x%02x", c);
    out += c > ' ' && c < 0x7f && c != '"' ? std::string(1, static_cast<char>(c)) : std::string(hex);
  }
  return out + "\"";
}
template <class... T>
std::string Join(const T&... v) {
  std::string s;
  ((s += Text(v) + ","), ...);
  return s.substr(0, s.size() - 1);
}

std::string Text(const CSize& v) { return Join(v.cx, v.cy); }
std::string Text(const CRect& v) { return Join(v.left, v.top, v.right, v.bottom); }
std::string Text(const CDblPoint& v) { return Join(v.x, v.y); }
std::string Text(const _HVSpaceProp& v) { return Join(v.hSpace, v.vSpace); }
std::string Text(const CDblRect& v) { return Join(v.left, v.top, v.right, v.bottom); }
std::string Text(const CTime& v) { return Text(v.m_time); }
std::string Text(const COleDateTime& v) { return Join(v.m_dt, v.m_status); }
std::string Text(const LOGFONT& f) {
  std::string s = Join(f.lfHeight, f.lfWidth, f.lfEscapement, f.lfOrientation, f.lfWeight);
  for (const uint8_t* b = &f.lfItalic; b <= &f.lfPitchAndFamily; ++b) s += "," + Text(*b);
  return s + "," + Text(String(f.lfFaceName, strnlen(f.lfFaceName, sizeof f.lfFaceName)));
}

// A form of value: reads the next value with its reader, stores it in `out`
// (when given) with the matching writer, and gives the value as text.
using Form = std::function<std::string(CFFArchive& in, CFFArchive* out)>;

const char* Arg(const String& text) { return text.c_str(); }
template <class T>
T Arg(T value) {
  return value;
}
template <class T, class P>
Form Scalar(T (CFFArchive::*get)(), void (CFFArchive::*put)(P)) {
  return [=](CFFArchive& in, CFFArchive* out) {
    const T v = (in.*get)();
    if (out) (out->*put)(Arg(v));
    return Text(v);
  };
}
template <class T, class P>
Form Array(uint32_t (CFFArchive::*get)(std::unique_ptr<T[]>&), void (CFFArchive::*put)(const P*, uint32_t)) {
  return [=](CFFArchive& in, CFFArchive* out) {
    std::unique_ptr<T[]> block;
    const uint32_t n = (in.*get)(block);
    if (out) (out->*put)(block.get(), n);
    std::string s;
    for (uint32_t i = 0; i < n; ++i) s += (i ? "," : "") + Text(block[i]);
    return "[" + s + "]";
  };
}
// operator>> into a target that starts as `start`; operator<<.
template <class T>
Form Into(T start) {
  return [=](CFFArchive& in, CFFArchive* out) {
    T v = start;
    in >> v;
    if (out) *out << Arg(v);
    return Text(v);
  };
}
// A record of two doubles read and written by named members; the text
// starts with the reader's result.
template <class T>
Form Record(int (CFFArchive::*get)(T*), int (CFFArchive::*put)(const T*)) {
  return [=](CFFArchive& in, CFFArchive* out) {
    T v{-7, -7};
    const int ok = (in.*get)(&v);
    if (out) (out->*put)(&v);
    return Text(ok) + "," + Text(v);
  };
}

// The fields of a record, each after a comma.
template <class T>
std::string Fields(const T& v) {
  std::string s;
  for (const FieldText& f : sDescribe(v)) s += "," + (f.kind == FieldText::kText ? Text(f.value) : f.value);
  return s;
}

// A record read by `get` into a target that starts as `start`, written back
// by `put`; the text is the reader's result, then the record's fields.
template <class T, class Get, class Put>
Form Rec(T start, Get get, Put put) {
  return [=](CFFArchive& in, CFFArchive* out) {
    T v = start;
    const int ok = get(in, v);
    if (out) put(*out, v);
    return Text(ok) + Fields(v);
  };
}
// A catalogue record by pointer.
template <class T>
Form Catalog(T start, int (CFFArchive::*get)(T*), int (CFFArchive::*put)(const T*)) {
  return Rec(start, [=](CFFArchive& a, T& v) { return (a.*get)(&v); },
             [=](CFFArchive& a, const T& v) { (a.*put)(&v); });
}
// Catalogue records as three arrays; the text is the reader's result, then
// each array's records in brackets, separated by "/".
template <class T>
Form CatalogRows(int (CFFArchive::*get)(RecordArray<T>&, RecordArray<T>*, RecordArray<T>*),
                 int (CFFArchive::*put)(const RecordArray<T>&, const RecordArray<T>*, const RecordArray<T>*)) {
  return [=](CFFArchive& in, CFFArchive* out) {
    RecordArray<T> arrays[3];
    const int ok = (in.*get)(arrays[0], &arrays[1], &arrays[2]);
    if (out) (out->*put)(arrays[0], &arrays[1], &arrays[2]);
    std::string s = Text(ok);
    for (const RecordArray<T>& records : arrays) {
      std::string items;
      for (const std::unique_ptr<T>& r : records) items += "/" + Fields(*r).substr(1);
      s += "[" + items.substr(items.empty() ? 0 : 1) + "]";
    }
    return s;
  };
}
template <class T>
Form Attribute(T start, int (CFFArchive::*get)(T&, uint32_t), int (CFFArchive::*put)(const T&), uint32_t version) {
  return Rec(start, [=](CFFArchive& a, T& v) { return (a.*get)(v, version); },
             [=](CFFArchive& a, const T& v) { (a.*put)(v); });
}
const LINE_PROP kLineStart{7, -7.0f, "start"};
const PATT_PROP kPattStart{7, 7, -7.0f, "start"};
const FONT_PROP kFontStart{7, -7.0f, -7.0f, -7.0f, -7, 7, {7, 7, 7, 7, 7, 7, 7}, "start"};
const _SysCfgParam kSysStart{-7.0, 7, 7, {"old"}, {9.0}, {"o"}, {"old"}, {9.0}, {"o"}};
const _PMTAutoParm kPMTAutoStart{7, 7, {-7, -7}, {-7, -7}, 7, -7, -7, 7, 7, -7, "start"};
const _PMTMapProp kPMTMapStart{7,          7,          7,          -7,         -7,         -7,         -7,
                               "start",    "start",    "start",    -7,         kPattStart, kPattStart, kLineStart,
                               kLineStart, kLineStart, kLineStart, kLineStart, kLineStart, 7};
const _PMTBodyProp kPMTBodyStart{7,  -7, -7, -7, -7, -7, -7, -7, -7, -7,         -7,        -7,
                                 -7, -7, -7, 7,  7,  kLineStart, kFontStart, -7};
const _PMTLableProp kPMTLabelStart{-7, -7, -7, -7, kLineStart, -7, kFontStart, -7};
// A record by pointer, read with `version`.
template <class T>
Form Section(T start, int (CFFArchive::*get)(T*, uint32_t), int (CFFArchive::*put)(const T*), uint32_t version) {
  return Rec(start, [=](CFFArchive& a, T& v) { return (a.*get)(&v, version); },
             [=](CFFArchive& a, const T& v) { (a.*put)(&v); });
}
// A migration template (not copyable, so no start value) read with `version`
// into a fresh one.
Form MigraTempl(uint32_t version) {
  return [=](CFFArchive& in, CFFArchive* out) {
    _MigraTempl v;
    const int ok = in.GetMigraTempl(&v, version);
    if (out) out->PutMigraTempl(&v);
    return Text(ok) + Fields(v);
  };
}
const _OldProdProp kProdStart{7, 7, 7, 7, 7, 7, kLineStart, kPattStart, kPattStart, kPattStart, kFontStart};
const _OldTestProp kTestStart{7, 7, 7, kLineStart, kPattStart, kPattStart, kFontStart};
const _JWTAutoParm kAutoStart{7, "start", -7.0f, 7, "start", 7, 7};
const _JWTMapProp kMapStart{-7.0f, -7.0f, -7.0f, -7.0f, -7.0f};
const _DJTMapProp kDJTMapStart{-7, -7, -7, "start", "start", "start"};
const _DJTTrackProp kTrackPropStart{"start",    "start",    -7,         -7,         -7,         7,          -7,
                                    -7,         -7,         -7,         -7,         kLineStart, kLineStart, kLineStart,
                                    kFontStart, kFontStart, kFontStart, -7,         -7,         -7};
// A track tree as name:left..right/second line's width(curve codes){children}.
std::string TrackText(const _DJTTrack& t) {
  std::string s = Text(t.Prop.Name) + ":" + Text(t.Prop.Left) + ".." + Text(t.Prop.Right) + "/" +
                  Text(t.Prop.Line2.width) + "(";
  for (const std::unique_ptr<_CurveParm>& c : t.Curves) s += Text(c->Code) + (c == t.Curves.back() ? "" : ";");
  s += "){";
  for (const std::unique_ptr<_DJTTrack>& k : t.Children) s += TrackText(*k) + (k == t.Children.back() ? "" : ",");
  return s + "}";
}
std::string TemplText(const _DJTTempl& t) {
  std::string s = Join(t.Name, t.Value) + "," + Join(t.Dbls[0], t.Dbls[1], t.Dbls[2], t.Dbls[3], t.Dbls[4]) +
                  Fields(t.Line) + Fields(t.Font);
  for (const String& text : t.Texts) s += "," + Text(text);
  s += ",";
  for (const std::unique_ptr<_DJTTrack>& k : t.Tracks) s += "[" + TrackText(*k) + "]";
  return s;
}
// A track read with `version` into an empty one.
Form DJTTrack(uint32_t version) {
  return [=](CFFArchive& in, CFFArchive* out) {
    _DJTTrack t;
    const int ok = in.GetDJTTrack(&t, version);
    if (out) out->PutDJTTrack(&t);
    return Text(ok) + "," + TrackText(t);
  };
}
// Records appended by a versioned reader to an empty array, each in
// brackets.
template <class T>
std::string Item(const T& r) {
  return Fields(r).substr(1);
}
std::string Item(const _DJTTrack& t) { return TrackText(t); }
std::string Item(const _DJTTempl& t) { return TemplText(t); }
template <class T>
Form Rows(int (CFFArchive::*get)(RecordArray<T>&, uint32_t), int (CFFArchive::*put)(const RecordArray<T>&),
          uint32_t version) {
  return [=](CFFArchive& in, CFFArchive* out) {
    RecordArray<T> records;
    const int ok = (in.*get)(records, version);
    if (out) (out->*put)(records);
    std::string s = Text(ok);
    for (const std::unique_ptr<T>& r : records) s += "[" + Item(*r) + "]";
    return s;
  };
}
const _StatusProp kStatusStart{"start", 7, -7, 7};
const _IntepretProp kInterpretStart{"start", -7, "start", 7, "start", -7, "start", 7};
const _LithProp kLithStart{"start", -7.0, "start", "start", 7, -7};

// A statistics registry record read into a fresh record (they do not copy),
// and its array form (each record in brackets).
template <class T>
Form Registry(int (CFFArchive::*get)(T*), int (CFFArchive::*put)(const T*)) {
  return [=](CFFArchive& in, CFFArchive* out) {
    T v{};
    const int ok = (in.*get)(&v);
    if (out) (out->*put)(&v);
    return Text(ok) + Fields(v);
  };
}
template <class T>
Form RegistryArray(int (CFFArchive::*get)(RecordArray<T>&), int (CFFArchive::*put)(const RecordArray<T>&)) {
  return [=](CFFArchive& in, CFFArchive* out) {
    RecordArray<T> records;
    const int ok = (in.*get)(records);
    if (out) (out->*put)(records);
    std::string s = Text(ok);
    for (const std::unique_ptr<T>& r : records) s += "[" + Fields(*r).substr(1) + "]";
    return s;
  };
}

// The TestData listing from the read position, "\r\n" shown as ";" and
// spaces as "_".
std::string Listing(CFFArchive& in, CFFArchive*) {
  std::string s = in.TestData();
  for (size_t i; (i = s.find("\r\n")) != std::string::npos;) s.replace(i, 2, ";");
  std::replace(s.begin(), s.end(), ' ', '_');
  return s;
}

const std::map<std::string, Form> kForms = {
    {"byte", Scalar(&CFFArchive::GetByte, &CFFArchive::PutByte)},
    {"short", Scalar(&CFFArchive::GetShort, &CFFArchive::PutShort)},
    {"long", Scalar(&CFFArchive::GetLong, &CFFArchive::PutLong)},
    {"float", Scalar(&CFFArchive::GetFloat, &CFFArchive::PutFloat)},
    {"double", Scalar(&CFFArchive::GetDouble, &CFFArchive::PutDouble)},
    {"string", Scalar(&CFFArchive::GetString, &CFFArchive::PutString)},
    {"bytes", Array(&CFFArchive::GetByte, &CFFArchive::PutByte)},
    {"binary", Array(&CFFArchive::GetByte, &CFFArchive::PutBinary)},
    {"shorts", Array(&CFFArchive::GetShort, &CFFArchive::PutShort)},
    {"longs", Array(&CFFArchive::GetLong, &CFFArchive::PutLong)},
    {"floats", Array(&CFFArchive::GetFloat, &CFFArchive::PutFloat)},
    {"doubles", Array(&CFFArchive::GetDouble, &CFFArchive::PutDouble)},
    {"<<char", Into('\0')},
    {"<<short", Into(short{0})},
    {"<<int", Into(0)},
    {"<<float", Into(0.0f)},
    {"<<double", Into(0.0)},
    {"<<string", Into(String())},
    {"size", Into(CSize(-7, -7))},
    {"rect", Into(CRect(-7, -7, -7, -7))},
    {"dpoint", Into(CDblPoint(-7, -7))},
    {"drect", Into(CDblRect(-7, -7, -7, -7))},
    {"time", Into(CTime(-1))},
    {"date", Into(COleDateTime{-7.0, -7})},
    {"font", Into(LOGFONT{-7})},
    {"point", Record(&CFFArchive::GetDblPoint, &CFFArchive::PutDblPoint)},
    {"hvspace", Record(&CFFArchive::GetHVSpaceProp, &CFFArchive::PutHVSpaceProp)},
    {"list", Listing},
    {"line", Attribute(kLineStart, &CFFArchive::GetLineProp, &CFFArchive::PutLineProp, 0x02017519)},
    {"line_old", Attribute(kLineStart, &CFFArchive::GetLineProp, &CFFArchive::PutLineProp, 0x02017518)},
    {"patt", Attribute(kPattStart, &CFFArchive::GetPattProp, &CFFArchive::PutPattProp, 0x02007344)},
    {"patt_old", Attribute(kPattStart, &CFFArchive::GetPattProp, &CFFArchive::PutPattProp, 0x02007343)},
    {"fontprop", Rec(kFontStart, [](CFFArchive& a, FONT_PROP& v) { return a.GetFontProp(v); },
                     [](CFFArchive& a, const FONT_PROP& v) { a.PutFontProp(v); })},
    {"sysparam", Section(kSysStart, &CFFArchive::GetSysCfgParam, &CFFArchive::PutSysCfgParam, 0x03012067)},
    {"sysparam_old", Section(kSysStart, &CFFArchive::GetSysCfgParam, &CFFArchive::PutSysCfgParam, 0x03012066)},
    {"status", Catalog(kStatusStart, &CFFArchive::GetStatusProp, &CFFArchive::PutStatusProp)},
    {"interpret", Catalog(kInterpretStart, &CFFArchive::GetInterpretProp, &CFFArchive::PutInterpretProp)},
    {"lith", Catalog(kLithStart, &CFFArchive::GetLithProp, &CFFArchive::PutLithProp)},
    {"oldprod", Section(kProdStart, &CFFArchive::GetOldProdProp, &CFFArchive::PutOldProdProp, 0x02017519)},
    {"oldprod_old", Section(kProdStart, &CFFArchive::GetOldProdProp, &CFFArchive::PutOldProdProp, 0x02007343)},
    {"oldtest", Section(kTestStart, &CFFArchive::GetOldTestProp, &CFFArchive::PutOldTestProp, 0x02017519)},
    {"jwtauto", Catalog(kAutoStart, &CFFArchive::GetJWTAutoParm, &CFFArchive::PutJWTAutoParm)},
    {"jwtmap", Catalog(kMapStart, &CFFArchive::GetJWTMapProp, &CFFArchive::PutJWTMapProp)},
    {"liths", CatalogRows(&CFFArchive::GetLithPropArray, &CFFArchive::PutLithPropArray)},
    {"pmtauto", Catalog(kPMTAutoStart, &CFFArchive::GetPMTAutoParm, &CFFArchive::PutPMTAutoParm)},
    {"pmtmap", Section(kPMTMapStart, &CFFArchive::GetPMTMapProp, &CFFArchive::PutPMTMapProp, 0x02017519)},
    {"pmtmap_old", Section(kPMTMapStart, &CFFArchive::GetPMTMapProp, &CFFArchive::PutPMTMapProp, 0x02007343)},
    {"pmtbody", Section(kPMTBodyStart, &CFFArchive::GetPMTBodyProp, &CFFArchive::PutPMTBodyProp, 0x02017519)},
    {"pmtbody_old", Section(kPMTBodyStart, &CFFArchive::GetPMTBodyProp, &CFFArchive::PutPMTBodyProp, 0x02017518)},
    {"pmtlabel", Section(kPMTLabelStart, &CFFArchive::GetPMTLabelProp, &CFFArchive::PutPMTLabelProp, 0x02017519)},
    {"layers", Section(_LayersProp{}, &CFFArchive::GetLayersProp, &CFFArchive::PutLayersProp, kMapRecordsVersion1)},
    {"frame", Section(_MapFrameProp{}, &CFFArchive::GetMapFrameProp, &CFFArchive::PutMapFrameProp, kMapRecordsVersion1)},
    {"legend", Section(_LegendProp{}, &CFFArchive::GetLegendProp, &CFFArchive::PutLegendProp, kMapRecordsVersion1)},
    {"scale", Section(_ScaleProp{}, &CFFArchive::GetScaleProp, &CFFArchive::PutScaleProp, kMapRecordsVersion1)},
    {"curves", Rows(&CFFArchive::GetCurveParmArray, &CFFArchive::PutCurveParmArray, kMapRecordsVersion1)},
    {"curves_old", Rows(&CFFArchive::GetCurveParmArray, &CFFArchive::PutCurveParmArray, 0x02007343)},
    {"shapetempl", Section(_PlaneShapeTempl{}, &CFFArchive::GetPlaneShapeTempl, &CFFArchive::PutPlaneShapeTempl, kShapeTemplsVersion1)},
    {"shapetempl_old", Section(_PlaneShapeTempl{}, &CFFArchive::GetPlaneShapeTempl, &CFFArchive::PutPlaneShapeTempl, 0x02007343)},
    {"nodivi", Section(_NoDiviType{}, &CFFArchive::GetNoDiviType, &CFFArchive::PutNoDiviType, kShapeTemplsVersion1)},
    {"migraitem", Section(_MigraItem{}, &CFFArchive::GetMigraItem, &CFFArchive::PutMigraItem, kShapeTemplsVersion1)},
    {"migratempl", MigraTempl(kShapeTemplsVersion1)},
    {"statmember", Registry(&CFFArchive::GetStatMember, &CFFArchive::PutStatMember)},
    {"statmeta", Registry(&CFFArchive::GetStatMetal, &CFFArchive::PutStatMetal)},
    {"stattempl", Registry(&CFFArchive::GetStatTempl, &CFFArchive::PutStatTempl)},
    {"statmembers", RegistryArray(&CFFArchive::GetStatMemberArray, &CFFArchive::PutStatMemberArray)},
    {"statmetas", RegistryArray(&CFFArchive::GetStatMetalArray, &CFFArchive::PutStatMetalArray)},
    {"stattempls", RegistryArray(&CFFArchive::GetStatTemplArray, &CFFArchive::PutStatTemplArray)},
    {"djtmap", Catalog(kDJTMapStart, &CFFArchive::GetDJTMapProp, &CFFArchive::PutDJTMapProp)},
    {"djtprop", Section(kTrackPropStart, &CFFArchive::GetDJTTrackProp, &CFFArchive::PutDJTTrackProp, 0x02017519)},
    {"djtprop_old", Section(kTrackPropStart, &CFFArchive::GetDJTTrackProp, &CFFArchive::PutDJTTrackProp, 0x02017518)},
    {"djttrack", DJTTrack(kMapRecordsVersion1)},
    {"djttracks", Rows(&CFFArchive::GetDJTTrackArray, &CFFArchive::PutDJTTrackArray, kMapRecordsVersion1)},
    {"djttempls", Rows(&CFFArchive::GetDJTTemplArray, &CFFArchive::PutDJTTemplArray, kMapRecordsVersion1)},
    {"djttempls_old", Rows(&CFFArchive::GetDJTTemplArray, &CFFArchive::PutDJTTemplArray, 0x02017518)},
};

// True when exactly `n` bytes of the stream have been read.
bool Consumed(CFFArchive& a, size_t n) {
  return n <= a.GetCount() && a.ReadUnit(nullptr, static_cast<uint32_t>(a.GetCount() - n)) == 1 &&
         a.ReadUnit(nullptr, 1) == 0;
}

}  // namespace

// Each line "hex bytes | writer | reader=text ..." of the golden files; after
// error=N and consumed=N the readers must fail with message N, having read
// that many bytes.
TEST(ArchiveGolden, ScalarsArraysCompositesRecordsAndInvalidStreams) {
  for (const std::string name : {"scalars.hex", "arrays.hex", "composites.hex", "invalid.hex", "records.hex",
                                 "stat_records.hex"}) {
    std::istringstream in(mapcfg_test::ReadAll(std::string(MAPCFG_TEST_DATA) + "/archive/" + name));
    ASSERT_TRUE(in.str().size() > 0) << name;
    int n = 0;
    for (std::string line; std::getline(in, line);) {
      SCOPED_TRACE(name + ":" + std::to_string(++n));
      if (line.empty() || line[0] == '#') continue;
      std::istringstream fields(line);
      std::string bytes, hex, writer;
      while (fields >> hex && hex != "|") bytes += static_cast<char>(std::stoi(hex, nullptr, 16));
      fields >> writer >> hex;  // the writer, then "|"
      CFFArchive a, out;
      if (writer != "-") {
        kForms.at(writer)(Loaded(a, bytes), &out);
        EXPECT_EQ(mapcfg_test::Bytes(out), bytes) << writer;
      }
      String error;
      size_t consumed = bytes.size();
      for (std::string e; fields >> e;) {
        const std::string key = e.substr(0, e.find('=')), value = e.substr(e.find('=') + 1);
        if (key == "error") {
          error = sGetInfoStr(std::stoi(value));
        } else if (key == "consumed") {
          consumed = std::stoul(value);
        } else {
          EXPECT_EQ(kForms.at(key)(Loaded(a, bytes), nullptr), value) << key;
          EXPECT_EQ(a.GetLastError(), error) << key;
          EXPECT_TRUE(Consumed(a, consumed)) << key;
        }
      }
    }
  }
}

// A seeded round trip through a file: thousands of random values of every
// form, encoded here, each copied by its own reader and writer to give the
// same stream. std::mt19937 gives the same values everywhere.
TEST(ArchiveGolden, SeededRoundTripThroughAFile) {
  struct Kind {
    const char* form;
    uint8_t tag, width;
    int count;  // elements of a block, or -1 for any number; 0 for a scalar
  };
  const Kind kinds[] = {{"byte", 1, 1, 0},    {"short", 2, 2, 0},    {"long", 3, 4, 0},      {"float", 4, 4, 0},
                        {"double", 5, 8, 0},  {"string", 21, 1, -1}, {"bytes", 31, 1, -1},   {"shorts", 32, 2, -1},
                        {"longs", 33, 4, -1}, {"floats", 34, 4, -1}, {"doubles", 35, 8, -1}, {"size", 33, 4, 2},
                        {"rect", 33, 4, 4},   {"dpoint", 35, 8, 2},  {"drect", 35, 8, 4},    {"time", 31, 1, 8},
                        {"date", 31, 1, 12},  {"font", 31, 1, 60}};
  std::mt19937 gen(20240601u);
  std::string stream;
  std::vector<const char*> forms;
  for (int n = 0; n < 4000; ++n) {
    const Kind& k = kinds[gen() % std::size(kinds)];
    const uint32_t count = k.count >= 0 ? k.count : gen() % 12;
    stream += static_cast<char>(k.tag);
    for (int i = 0; k.count != 0 && i < 4; ++i) stream += static_cast<char>(count >> (8 * i));
    for (uint32_t i = 0; i < (k.count == 0 ? 1 : count) * k.width; ++i)
      stream += static_cast<char>(k.tag == 21 ? 1 + gen() % 255 : gen() % 256);  // a text holds no NUL
    forms.push_back(k.form);
  }
  mapcfg_test::TempDir dir;
  CFFArchive in, out;
  ASSERT_EQ(in.FromFile(dir.Write("random.bin", stream)), 1);
  for (const char* form : forms) kForms.at(form)(in, &out);
  EXPECT_TRUE(Consumed(in, stream.size()));
  ASSERT_EQ(out.ToFile(dir.File("copy.bin")), 1);
  EXPECT_EQ(mapcfg_test::ReadAll(dir.File("copy.bin")), stream);
}
