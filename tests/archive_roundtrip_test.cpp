// A seeded write-then-read round trip of thousands of random values of every
// type, checked against bytes encoded independently here. std::mt19937 is
// the same everywhere; the distributions are our own, since the standard
// ones differ between libraries.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "test_util.h"

using namespace mapcfg;

namespace {

class Rng {
 public:
  uint32_t Below(uint32_t n) { return static_cast<uint32_t>(gen_() % n); }
  // Any bit pattern: NaNs, infinities and subnormals included.
  template <class T>
  T Bits() {
    const uint64_t b = (static_cast<uint64_t>(gen_()) << 32) | gen_();
    T v;
    std::memcpy(&v, &b, sizeof v);
    return v;
  }
  std::string Text(uint32_t max) {  // bytes 1..255: a text ends at a NUL
    std::string s(Below(max + 1), ' ');
    for (char& c : s) c = static_cast<char>(1 + Below(255));
    return s;
  }

 private:
  std::mt19937 gen_{20240601u};
};

// Little-endian bytes, encoded without the library.
template <class T>
std::string Le(T v) {
  uint64_t b = 0;
  std::memcpy(&b, &v, sizeof v);
  std::string out;
  for (size_t i = 0; i < sizeof v; ++i) out += static_cast<char>(b >> (8 * i));
  return out;
}
std::string Tagged(uint8_t tag, const std::string& payload) { return std::string(1, static_cast<char>(tag)) + payload; }
template <class T>
std::string Block(uint8_t tag, const std::vector<T>& v) {
  std::string out = Tagged(tag, Le(static_cast<uint32_t>(v.size())));
  for (T x : v) out += Le(x);
  return out;
}
std::string Text(const std::string& s) { return Block(21, std::vector<char>(s.begin(), s.end())); }
std::string Bytes(const std::string& s) { return Block(31, std::vector<char>(s.begin(), s.end())); }

// Bit for bit (NaNs included); structures without padding only.
template <class T>
bool Same(const T& a, const T& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}
bool Same(const COleDateTime& a, const COleDateTime& b) { return Same(a.m_dt, b.m_dt) && a.m_status == b.m_status; }

// One random value: how to write it, the bytes it must become, and how to
// read it back and compare.
struct Case {
  std::function<void(CFFArchive&)> put;
  std::string bytes;
  std::function<bool(CFFArchive&)> check;
};

template <class T>
Case Scalar(Rng& r, uint8_t tag, void (CFFArchive::*put)(T), T (CFFArchive::*get)()) {
  const T v = r.Bits<T>();
  return {[=](CFFArchive& a) { (a.*put)(v); }, Tagged(tag, Le(v)), [=](CFFArchive& a) { return Same(v, (a.*get)()); }};
}

template <class T>
Case Array(Rng& r, uint8_t tag, void (CFFArchive::*put)(const T*, uint32_t),
           uint32_t (CFFArchive::*get)(std::unique_ptr<T[]>&)) {
  std::vector<T> v(r.Below(12));
  for (T& x : v) x = r.Bits<T>();
  return {[=](CFFArchive& a) { (a.*put)(v.data(), static_cast<uint32_t>(v.size())); }, Block(tag, v),
          [=](CFFArchive& a) {
            std::unique_ptr<T[]> got;
            const uint32_t n = (a.*get)(got);
            return n == v.size() && (n == 0 || std::memcmp(got.get(), v.data(), n * sizeof(T)) == 0);
          }};
}

// A structure written with operator<< and read with operator>>.
template <class T>
Case Composite(const T& v, std::string bytes) {
  return {[=](CFFArchive& a) { a << v; }, std::move(bytes),
          [=](CFFArchive& a) {
            T got;
            a >> got;
            return Same(got, v);
          }};
}

Case Random(Rng& r) {
  switch (r.Below(17)) {
    case 0:
      return Scalar(r, 1, &CFFArchive::PutByte, &CFFArchive::GetByte);
    case 1:
      return Scalar(r, 2, &CFFArchive::PutShort, &CFFArchive::GetShort);
    case 2:
      return Scalar(r, 3, &CFFArchive::PutLong, &CFFArchive::GetLong);
    case 3:
      return Scalar(r, 4, &CFFArchive::PutFloat, &CFFArchive::GetFloat);
    case 4:
      return Scalar(r, 5, &CFFArchive::PutDouble, &CFFArchive::GetDouble);
    case 5:
      return Array(r, 31, &CFFArchive::PutByte, &CFFArchive::GetByte);
    case 6:
      return Array(r, 32, &CFFArchive::PutShort, &CFFArchive::GetShort);
    case 7:
      return Array(r, 33, &CFFArchive::PutLong, &CFFArchive::GetLong);
    case 8:
      return Array(r, 34, &CFFArchive::PutFloat, &CFFArchive::GetFloat);
    case 9:
      return Array(r, 35, &CFFArchive::PutDouble, &CFFArchive::GetDouble);
    case 10: {
      const std::string s = r.Text(40);
      return {[=](CFFArchive& a) { a.PutString(s.c_str()); }, Text(s),
              [=](CFFArchive& a) { return a.GetString() == s; }};
    }
    case 11: {
      const CRect v{r.Bits<int32_t>(), r.Bits<int32_t>(), r.Bits<int32_t>(), r.Bits<int32_t>()};
      return Composite(v, Block(33, std::vector<int32_t>{v.left, v.top, v.right, v.bottom}));
    }
    case 12: {
      const CDblRect v{r.Bits<double>(), r.Bits<double>(), r.Bits<double>(), r.Bits<double>()};
      return Composite(v, Block(35, std::vector<double>{v.left, v.top, v.right, v.bottom}));
    }
    case 13: {
      const COleDateTime v{r.Bits<double>(), r.Bits<int32_t>()};
      return Composite(v, Bytes(Le(v.m_dt) + Le(v.m_status)));
    }
    case 14: {
      LOGFONT v;
      v.lfHeight = r.Bits<int32_t>();
      v.lfWeight = r.Bits<int32_t>();
      v.lfCharSet = r.Bits<uint8_t>();
      const std::string face = r.Text(31);
      std::memcpy(v.lfFaceName, face.data(), face.size());
      std::string b = Le(v.lfHeight) + std::string(12, '\0') + Le(v.lfWeight) + std::string(3, '\0');
      return Composite(
          v, Bytes(b + static_cast<char>(v.lfCharSet) + std::string(4, '\0') + std::string(v.lfFaceName, 32)));
    }
    case 15: {
      const CDblPoint v{r.Bits<double>(), r.Bits<double>()};
      return {[=](CFFArchive& a) { a.PutDblPoint(&v); }, Tagged(5, Le(v.x)) + Tagged(5, Le(v.y)),
              [=](CFFArchive& a) {
                CDblPoint got;
                return a.GetDblPoint(&got) == 1 && Same(got.x, v.x) && Same(got.y, v.y);
              }};
    }
    default: {
      StringArray s(r.Below(4)), t;
      std::string bytes = Tagged(3, Le(static_cast<int32_t>(s.size())));
      for (std::string& x : s) x = r.Text(8), t.push_back(r.Text(8)), bytes += Text(x) + Text(t.back());
      return {[=](CFFArchive& a) { a.PutStringArray(s, &t); }, bytes,
              [=](CFFArchive& a) {
                StringArray gs, gt;
                return a.GetStringArray(gs, &gt) == 1 && gs == s && gt == t;
              }};
    }
  }
}

}  // namespace

TEST(ArchiveRoundTrip, ThousandsOfRandomValues) {
  Rng r;
  std::vector<Case> cases;
  for (int n = 0; n < 5000; ++n) cases.push_back(Random(r));
  CFFArchive a;
  std::string expected;
  for (const Case& c : cases) c.put(a), expected += c.bytes;
  uint32_t size = 0;
  std::unique_ptr<uint8_t[]> data = a.ToData(size);
  ASSERT_EQ(std::string(reinterpret_cast<const char*>(data.get()), size), expected);

  // Through a file and back, then every value read by its own reader.
  mapcfg_test::TempDir dir;
  ASSERT_EQ(a.ToFile(dir.File("random.bin")), 1);
  CFFArchive b;
  ASSERT_EQ(b.FromFile(dir.File("random.bin")), 1);
  for (size_t n = 0; n < cases.size(); ++n) {
    ASSERT_TRUE(cases[n].check(b)) << "value " << n;
    ASSERT_EQ(b.GetLastError(), "") << "value " << n;
  }
  EXPECT_EQ(b.ReadUnit(nullptr, 1), 0);  // everything consumed
}
