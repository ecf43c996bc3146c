// Archive bytes against hand-built golden streams (tests/data/archive/*.hex):
// each line holds a value's bytes, the writer that must produce them and
// what every reader must make of them.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "archive_test_util.h"
#include "test_util.h"

using namespace mapcfg;
using Args = std::vector<std::string>;
using mapcfg_test::Bytes;
using mapcfg_test::Loaded;

namespace {

// Splits at `sep` outside "..." and [...]; pieces are trimmed.
Args Split(const std::string& s, char sep) {
  Args out(1);
  int depth = 0;
  bool quoted = false;
  for (size_t i = 0; i < s.size(); ++i) {
    const char c = s[i];
    if (c == '\\' && quoted && i + 1 < s.size()) {
      out.back() += s.substr(i++, 2);
      continue;
    }
    if (c == '"') quoted = !quoted;
    if (!quoted && (c == '[' || c == '(')) ++depth;
    if (!quoted && (c == ']' || c == ')')) --depth;
    if (c == sep && !quoted && depth == 0)
      out.emplace_back();
    else
      out.back() += c;
  }
  for (std::string& p : out) {
    p.erase(0, p.find_first_not_of(" \t"));
    p.erase(p.find_last_not_of(" \t") + 1);
  }
  if (sep == ' ') out.erase(std::remove(out.begin(), out.end(), ""), out.end());
  return out;
}

// "text" with \xNN escapes, or the piece itself.
std::string Unquote(const std::string& s) {
  if (s.size() < 2 || s.front() != '"') return s;
  std::string out;
  for (size_t i = 1; i + 1 < s.size(); ++i)
    if (s[i] == '\\' && s[i + 1] == 'x') {
      out += static_cast<char>(std::stoi(s.substr(i + 2, 2), nullptr, 16));
      i += 3;
    } else {
      out += s[i];
    }
  return out;
}

// The arguments of "Name(a,b)" or the elements of "[a,b]".
Args Inner(const std::string& s) {
  const size_t open = s.find_first_of("([");
  const std::string inner = s.substr(open + 1, s.size() - open - 2);
  return inner.empty() ? Args() : Split(inner, ',');
}

struct Golden {
  std::string where, bytes, writer;
  std::vector<std::pair<std::string, std::string>> expect;
};

std::vector<Golden> Load(const std::string& name) {
  std::vector<Golden> lines;
  std::string text = mapcfg_test::ReadAll(std::string(MAPCFG_TEST_DATA) + "/archive/" + name);
  EXPECT_FALSE(text.empty()) << name;
  size_t start = 0;
  for (int n = 1; start < text.size(); ++n) {
    const size_t end = text.find('\n', start);
    const std::string line = text.substr(start, end - start);
    start = end == std::string::npos ? text.size() : end + 1;
    if (line.empty() || line[0] == '#') continue;
    const Args cols = Split(line, '|');
    EXPECT_EQ(cols.size(), 3u) << name << ":" << n;
    Golden g{name + ":" + std::to_string(n), "", cols.at(1), {}};
    for (const std::string& hex : Split(cols[0], ' ')) g.bytes += static_cast<char>(std::stoi(hex, nullptr, 16));
    for (const std::string& kv : Split(cols[2], ' '))
      g.expect.emplace_back(kv.substr(0, kv.find('=')), kv.substr(kv.find('=') + 1));
    lines.push_back(g);
  }
  return lines;
}

// Values as comparable text: integers in decimal, floating values with 17
// digits (floats parsed as floats), texts as bytes.
std::string Canon(long long v) { return std::to_string(v); }
std::string Canon(double v) {
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.17g", v);
  return buf;
}
std::string Expected(char type, const std::string& s) {
  if (type == 'i') return Canon(std::stoll(s));
  if (type == 'f') return Canon(static_cast<double>(std::strtof(s.c_str(), nullptr)));
  if (type == 'd') return Canon(std::strtod(s.c_str(), nullptr));
  return Unquote(s);
}

template <class T>
char TypeOf() {
  return std::is_same<T, String>::value   ? 's'
         : std::is_same<T, float>::value  ? 'f'
         : std::is_same<T, double>::value ? 'd'
                                          : 'i';
}
template <class T>
std::string Actual(T v) {
  return TypeOf<T>() == 'i' ? Canon(static_cast<long long>(v)) : Canon(static_cast<double>(v));
}
std::string Actual(const String& v) { return v; }

// What a reader read: field texts and their types (i f d s); a list (array
// forms) has one type for all; `start` is a composite target's start value.
struct Read {
  Read(std::string t, Args v, bool l = false) : types(std::move(t)), values(std::move(v)), list(l) {}
  std::string types;
  Args values;
  bool list;
  Args start;
};
using Reader = std::function<Read(CFFArchive&)>;

template <class T>
Reader Scalar(T (CFFArchive::*get)()) {
  return [get](CFFArchive& a) { return Read(std::string(1, TypeOf<T>()), {Actual((a.*get)())}); };
}
template <class T>
Reader Array(uint32_t (CFFArchive::*get)(std::unique_ptr<T[]>&)) {
  return [get](CFFArchive& a) {
    std::unique_ptr<T[]> block;
    const uint32_t n = (a.*get)(block);
    Read r(std::string(1, TypeOf<T>()), {}, true);
    for (uint32_t i = 0; i < n; ++i) r.values.push_back(Actual(block[i]));
    return r;
  };
}

Read Of(const CSize& v) { return {"ii", {Actual(v.cx), Actual(v.cy)}}; }
Read Of(const CRect& v) { return {"iiii", {Actual(v.left), Actual(v.top), Actual(v.right), Actual(v.bottom)}}; }
Read Of(const CDblPoint& v) { return {"dd", {Actual(v.x), Actual(v.y)}}; }
Read Of(const CDblRect& v) { return {"dddd", {Actual(v.left), Actual(v.top), Actual(v.right), Actual(v.bottom)}}; }
Read Of(const CTime& v) { return {"i", {Actual(v.m_time)}}; }
Read Of(const COleDateTime& v) { return {"di", {Actual(v.m_dt), Actual(v.m_status)}}; }
Read Of(const _HVSpaceProp& v) { return {"dd", {Actual(v.hSpace), Actual(v.vSpace)}}; }
Read Of(const LOGFONT& f) {
  Read r("iiiiiiiiiiiiis",
         {Actual(f.lfHeight), Actual(f.lfWidth), Actual(f.lfEscapement), Actual(f.lfOrientation), Actual(f.lfWeight)});
  for (const uint8_t* b = &f.lfItalic; b <= &f.lfPitchAndFamily; ++b) r.values.push_back(Actual(*b));
  r.values.push_back(f.lfFaceName);
  return r;
}

LOGFONT Font(const Args& a) {
  LOGFONT f;
  int32_t* ints[5] = {&f.lfHeight, &f.lfWidth, &f.lfEscapement, &f.lfOrientation, &f.lfWeight};
  for (int i = 0; i < 5; ++i) *ints[i] = std::stoi(a.at(i));
  uint8_t* bytes = &f.lfItalic;  // the eight byte fields follow each other
  for (int i = 0; i < 8; ++i) bytes[i] = static_cast<uint8_t>(std::stoi(a.at(5 + i)));
  const std::string face = Unquote(a.at(13));
  std::copy(face.begin(), face.end(), f.lfFaceName);
  return f;
}

// operator>> (or a Get... of a record) into a target that starts as `start`.
template <class T>
Reader Into(
    T start, std::function<void(CFFArchive&, T&)> read = [](CFFArchive& a, T& v) { a >> v; }) {
  return [start, read](CFFArchive& a) {
    T v = start;
    read(a, v);
    Read r = Of(v);
    r.start = Of(start).values;
    return r;
  };
}

LOGFONT FontStart() {
  LOGFONT f;
  f.lfHeight = -7;
  return f;
}

const std::map<std::string, Reader>& Readers() {
  static const std::map<std::string, Reader> readers = {
      {"byte", Scalar<uint8_t>(&CFFArchive::GetByte)},
      {"short", Scalar<int16_t>(&CFFArchive::GetShort)},
      {"long", Scalar<int32_t>(&CFFArchive::GetLong)},
      {"float", Scalar<float>(&CFFArchive::GetFloat)},
      {"double", Scalar<double>(&CFFArchive::GetDouble)},
      {"string", Scalar<String>(&CFFArchive::GetString)},
      {"bytes", Array<uint8_t>(&CFFArchive::GetByte)},
      {"shorts", Array<int16_t>(&CFFArchive::GetShort)},
      {"longs", Array<int32_t>(&CFFArchive::GetLong)},
      {"floats", Array<float>(&CFFArchive::GetFloat)},
      {"doubles", Array<double>(&CFFArchive::GetDouble)},
      {"size", Into(CSize(-7, -7))},
      {"rect", Into(CRect(-7, -7, -7, -7))},
      {"dpoint", Into(CDblPoint(-7, -7))},
      {"drect", Into(CDblRect(-7, -7, -7, -7))},
      {"time", Into(CTime(-1))},
      {"date", Into(COleDateTime{-7.0, -7})},
      {"font", Into(FontStart())},
      {"point", Into<CDblPoint>({-7, -7}, [](CFFArchive& a, CDblPoint& p) { EXPECT_EQ(a.GetDblPoint(&p), 1); })},
      {"hvspace",
       Into<_HVSpaceProp>({-7, -7}, [](CFFArchive& a, _HVSpaceProp& p) { EXPECT_EQ(a.GetHVSpaceProp(&p), 1); })},
  };
  return readers;
}

long long Int(const std::string& s) { return std::stoll(s); }
float Flt(const std::string& s) { return std::strtof(s.c_str(), nullptr); }
double Dbl(const std::string& s) { return std::strtod(s.c_str(), nullptr); }
template <class T, class Parse>
std::vector<T> All(const Args& x, Parse parse) {
  std::vector<T> v;
  for (const std::string& s : x) v.push_back(static_cast<T>(parse(s)));
  return v;
}
template <class T>
const T* Ptr(const T& v) {  // for a temporary that lives to the end of the call
  return &v;
}

using W = const Args&;
using Writer = std::function<void(CFFArchive&, W)>;
template <class T, class Parse>
Writer One(void (CFFArchive::*put)(T), Parse parse) {
  return [=](CFFArchive& a, W x) { (a.*put)(static_cast<T>(parse(x.at(0)))); };
}
template <class T, class Parse>
Writer Many(void (CFFArchive::*put)(const T*, uint32_t), Parse parse) {
  return [=](CFFArchive& a, W x) { (a.*put)(All<T>(x, parse).data(), static_cast<uint32_t>(x.size())); };
}
int32_t I(W x, size_t i) { return static_cast<int32_t>(Int(x.at(i))); }
double D(W x, size_t i) { return Dbl(x.at(i)); }

void Write(CFFArchive& a, const std::string& call) {
  static const std::map<std::string, Writer> writers = {
      {"Byte", One(&CFFArchive::PutByte, Int)},
      {"Short", One(&CFFArchive::PutShort, Int)},
      {"Long", One(&CFFArchive::PutLong, Int)},
      {"Float", One(&CFFArchive::PutFloat, Flt)},
      {"Double", One(&CFFArchive::PutDouble, Dbl)},
      {"String", [](CFFArchive& a, W x) { a.PutString(Unquote(x.at(0)).c_str()); }},
      {"Bytes", Many(&CFFArchive::PutByte, Int)},
      {"Shorts", Many(&CFFArchive::PutShort, Int)},
      {"Longs", Many(&CFFArchive::PutLong, Int)},
      {"Floats", Many(&CFFArchive::PutFloat, Flt)},
      {"Doubles", Many(&CFFArchive::PutDouble, Dbl)},
      {"Binary", [](CFFArchive& a, W x) { a.PutBinary(All<uint8_t>(x, Int).data(), static_cast<uint32_t>(x.size())); }},
      {"CSize", [](CFFArchive& a, W x) { a << CSize(I(x, 0), I(x, 1)); }},
      {"CRect", [](CFFArchive& a, W x) { a << CRect(I(x, 0), I(x, 1), I(x, 2), I(x, 3)); }},
      {"CDblPoint", [](CFFArchive& a, W x) { a << CDblPoint(D(x, 0), D(x, 1)); }},
      {"CDblRect", [](CFFArchive& a, W x) { a << CDblRect(D(x, 0), D(x, 1), D(x, 2), D(x, 3)); }},
      {"CTime", [](CFFArchive& a, W x) { a << CTime(Int(x.at(0))); }},
      {"COleDateTime",
       [](CFFArchive& a, W x) {
         a << COleDateTime{D(x, 0), I(x, 1)};
       }},
      {"LOGFONT", [](CFFArchive& a, W x) { a << Font(x); }},
      {"DblPoint", [](CFFArchive& a, W x) { EXPECT_EQ(a.PutDblPoint(Ptr(CDblPoint(D(x, 0), D(x, 1)))), 1); }},
      {"HVSpace",
       [](CFFArchive& a, W x) {
         EXPECT_EQ(a.PutHVSpaceProp(Ptr(_HVSpaceProp{D(x, 0), D(x, 1)})), 1);
       }},
  };
  writers.at(call.substr(0, call.find('(')))(a, Inner(call));
}

// True when exactly `n` bytes of the stream have been read.
bool Consumed(CFFArchive& a, uint32_t n) {
  return n <= a.GetCount() && a.ReadUnit(nullptr, a.GetCount() - n) == 1 && a.ReadUnit(nullptr, 1) == 0;
}

void CheckFile(const std::string& name) {
  CFFArchive whole;
  std::string expected_whole;
  for (const Golden& g : Load(name)) {
    SCOPED_TRACE(g.where);
    if (g.writer != "-") {
      CFFArchive one;
      Write(one, g.writer);
      EXPECT_EQ(Bytes(one), g.bytes) << g.writer;
      Write(whole, g.writer);
      expected_whole += g.bytes;
    }
    // A scalar or text read by an array form gives a block of one element.
    auto expect = g.expect;
    const std::map<std::string, std::string> array_form = {
        {"byte", "bytes"}, {"short", "shorts"}, {"long", "longs"}, {"float", "floats"}, {"double", "doubles"}};
    const uint8_t tag = static_cast<uint8_t>(g.bytes[0]);
    for (const auto& kv : g.expect)
      if ((tag < 20 || tag == 21) && array_form.count(kv.first))
        expect.emplace_back(array_form.at(kv.first), "[" + kv.second + "]");
    for (const auto& kv : expect) {
      CFFArchive a;
      const Read got = Readers().at(kv.first)(Loaded(a, g.bytes));
      EXPECT_EQ(a.GetLastError(), "") << kv.first;
      EXPECT_TRUE(Consumed(a, static_cast<uint32_t>(g.bytes.size()))) << kv.first;
      Args want = got.start;
      if (kv.second != "unchanged") {
        const Args parts = got.list ? Inner(kv.second) : Split(kv.second, ',');
        want.clear();
        for (size_t i = 0; i < parts.size(); ++i)
          want.push_back(Expected(got.list ? got.types[0] : i < got.types.size() ? got.types[i] : 's', parts[i]));
      }
      EXPECT_EQ(got.values, want) << kv.first << "=" << kv.second;
    }
  }
  EXPECT_EQ(Bytes(whole), expected_whole) << name << " written as one stream";
}

}  // namespace

TEST(ArchiveGolden, ScalarsArraysAndComposites) {
  CheckFile("scalars.hex");
  CheckFile("arrays.hex");
  CheckFile("composites.hex");
}

// Every reader fails on these streams with the stated message and leaves
// exactly the stated bytes consumed.
TEST(ArchiveGolden, InvalidStreams) {
  for (const Golden& g : Load("invalid.hex")) {
    SCOPED_TRACE(g.where);
    ASSERT_EQ(g.expect.size(), 2u);
    const String message = sGetInfoStr(std::stoi(g.expect[0].second));
    for (const char* form :
         {"byte", "short", "long", "float", "double", "string", "bytes", "shorts", "longs", "floats", "doubles"}) {
      CFFArchive a;
      const Read got = Readers().at(form)(Loaded(a, g.bytes));
      EXPECT_TRUE(got.values.empty() || got.values == Args{"0"} || got.values == Args{""}) << form;
      EXPECT_EQ(a.GetLastError(), message) << form;
      EXPECT_TRUE(Consumed(a, static_cast<uint32_t>(std::stoi(g.expect[1].second)))) << form;
    }
  }
}
