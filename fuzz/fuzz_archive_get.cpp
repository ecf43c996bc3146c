// Every Get form over any stream: the first byte says how many of the
// following bytes choose the forms to run; the rest is the archive.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

void Run(mapcfg::CFFArchive& ar, uint8_t op) {
  using namespace mapcfg;
  switch (op % 36) {
    case 0: (void)ar.GetByte(); break;
    case 1: (void)ar.GetShort(); break;
    case 2: (void)ar.GetLong(); break;
    case 3: (void)ar.GetFloat(); break;
    case 4: (void)ar.GetDouble(); break;
    case 5: (void)ar.GetString(); break;
    case 6: { std::unique_ptr<uint8_t[]> a; (void)ar.GetByte(a); break; }
    case 7: { std::unique_ptr<int16_t[]> a; (void)ar.GetShort(a); break; }
    case 8: { std::unique_ptr<int32_t[]> a; (void)ar.GetLong(a); break; }
    case 9: { std::unique_ptr<float[]> a; (void)ar.GetFloat(a); break; }
    case 10: { std::unique_ptr<double[]> a; (void)ar.GetDouble(a); break; }
    case 11: { uint8_t buf[16]; (void)ar.GetBinary(buf, op % 17); break; }
    case 12: {  // never writes past the capacity, whatever the stored count
      uint32_t buf[8] = {0, 0, 0, 0, 0xA5A5A5A5, 0xA5A5A5A5, 0xA5A5A5A5, 0xA5A5A5A5};
      (void)ar.GetDWord(buf, op % 5);
      for (int i = 4; i < 8; ++i)
        if (buf[i] != 0xA5A5A5A5) std::abort();
      break;
    }
    case 13: { LOGFONT f; ar >> f; break; }
    case 14: { CSize s; ar >> s; break; }
    case 15: { CRect r; ar >> r; break; }
    case 16: { CDblPoint p; ar >> p; break; }
    case 17: { CDblRect r; ar >> r; break; }
    case 18: { CTime t; ar >> t; break; }
    case 19: { COleDateTime d; ar >> d; break; }
    case 20: { CDblPoint p; (void)ar.GetDblPoint(&p); break; }
    case 21: { _HVSpaceProp h; (void)ar.GetHVSpaceProp(&h); break; }
    case 22: { std::vector<CDblPoint> a, b; (void)ar.GetDblPointArray(a, op & 64 ? &b : nullptr); break; }
    case 23: { StringArray a, b, c; (void)ar.GetStringArray(a, &b, op & 64 ? &c : nullptr); break; }
    case 24: { std::vector<char> a; (void)ar.GetCharArray(a); break; }
    case 25: { std::vector<int32_t> a, b; (void)ar.GetIntArray(a, &b); break; }
    case 26: { std::vector<uint32_t> a; (void)ar.GetDWordArray(a); break; }
    case 27: { char v; ar >> v; break; }
    case 28: { short v; ar >> v; break; }
    case 29: { int v; ar >> v; break; }
    case 30: { float v; ar >> v; break; }
    case 31: { double v; ar >> v; break; }
    case 32: { String v; ar >> v; break; }
    case 33: ar.Rewind(); break;
    case 34: (void)ar.GetLastError(); break;
    default: (void)ar.TestData(); break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const size_t ops = data[0] % 32 < size - 1 ? data[0] % 32 : size - 1;
  const uint8_t* stream = data + 1 + ops;
  const size_t n = size - 1 - ops;
  mapcfg::CFFArchive ar;
  ar.FromData(stream, static_cast<uint32_t>(n));
  for (size_t i = 0; i < ops; ++i) {
    Run(ar, data[1 + i]);
    if (ar.GetCount() != n) std::abort();  // reads never change the stream
  }
  return 0;
}
