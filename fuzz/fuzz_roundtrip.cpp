// Values decoded from the input are put into an archive, read back with the
// matching Get and compared; the archive then survives ToData and FromData
// byte for byte.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

void CheckAt(bool ok, int line) {
  if (ok) return;
  std::fprintf(stderr, "round trip check failed at line %d\n", line);
  std::abort();
}
#define Check(ok) CheckAt((ok), __LINE__)

// Reads the input front to back; past its end every byte is 0.
struct Input {
  const uint8_t* p;
  size_t n;
  bool empty() const { return n == 0; }
  template <typename T>
  T Take() {
    T v{};
    const size_t k = n < sizeof v ? n : sizeof v;
    std::memcpy(&v, p, k);
    p += k;
    n -= k;
    return v;
  }
  std::string Text() {
    std::string s;
    for (uint8_t len = Take<uint8_t>() % 40; len > 0 && n > 0; --len) {
      const char c = static_cast<char>(Take<uint8_t>());
      if (c) s.push_back(c);  // archive strings are C texts
    }
    return s;
  }
};

template <typename T>
bool SameBits(T a, T b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

struct Value {
  uint8_t kind;
  int64_t i;
  double d;
  float f;  // kept as a float: a float-double-float trip may quiet a NaN
  std::string s;
  std::vector<double> arr;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  Input in{data, size};
  std::vector<Value> values;
  CFFArchive ar;
  while (!in.empty() && values.size() < 256) {
    Value v{static_cast<uint8_t>(in.Take<uint8_t>() % 8), 0, 0.0, 0.0f, {}, {}};
    switch (v.kind) {
      case 0: v.i = in.Take<uint8_t>(); ar.PutByte(static_cast<uint8_t>(v.i)); break;
      case 1: v.i = in.Take<int16_t>(); ar.PutShort(static_cast<int16_t>(v.i)); break;
      case 2: v.i = in.Take<int32_t>(); ar.PutLong(static_cast<int32_t>(v.i)); break;
      case 3: v.f = in.Take<float>(); ar.PutFloat(v.f); break;
      case 4: v.d = in.Take<double>(); ar.PutDouble(v.d); break;
      case 5: v.s = in.Text(); ar.PutString(v.s.c_str()); break;
      case 6:
        for (uint8_t k = in.Take<uint8_t>() % 8; k > 0; --k) v.arr.push_back(in.Take<double>());
        ar.PutDouble(v.arr.data(), static_cast<uint32_t>(v.arr.size()));
        break;
      default: {
        const CDblPoint p(in.Take<double>(), in.Take<double>());
        v.arr = {p.x, p.y};
        ar.PutDblPoint(&p);
        break;
      }
    }
    values.push_back(std::move(v));
  }
  Check(ar.GetLastError().empty());

  uint32_t n = 0;
  const std::unique_ptr<uint8_t[]> bytes = ar.ToData(n);
  Check(n == ar.GetCount());
  CFFArchive back;
  Check(back.FromData(bytes.get(), n) == 1);

  for (CFFArchive* a : {&ar, &back}) {
    a->Rewind();
    for (const Value& v : values) {
      switch (v.kind) {
        case 0: Check(a->GetByte() == static_cast<uint8_t>(v.i)); break;
        case 1: Check(a->GetShort() == static_cast<int16_t>(v.i)); break;
        case 2: Check(a->GetLong() == static_cast<int32_t>(v.i)); break;
        case 3: Check(SameBits(a->GetFloat(), v.f)); break;
        case 4: Check(SameBits(a->GetDouble(), v.d)); break;
        case 5: Check(a->GetString() == v.s); break;
        case 6: {
          std::unique_ptr<double[]> got;
          Check(a->GetDouble(got) == v.arr.size());
          for (size_t k = 0; k < v.arr.size(); ++k) Check(SameBits(got[k], v.arr[k]));
          break;
        }
        default: {
          CDblPoint p;
          Check(a->GetDblPoint(&p) == 1 && SameBits(p.x, v.arr[0]) && SameBits(p.y, v.arr[1]));
          break;
        }
      }
    }
    Check(a->GetLastError().empty());
  }
  return 0;
}
