// GBK, UTF-8 and (Windows) UTF-16 conversions.
#include "base/code_pages.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <iconv.h>
#endif

namespace mapcfg {
namespace detail {

size_t Utf8Length(const std::string& bytes, size_t i) {
  const unsigned char c = static_cast<unsigned char>(bytes[i]);
  size_t n = 0;
  if (c >= 0xC2 && c <= 0xDF) n = 2;
  else if (c >= 0xE0 && c <= 0xEF) n = 3;
  else if (c >= 0xF0 && c <= 0xF4) n = 4;
  if (n == 0 || i + n > bytes.size()) return 0;
  for (size_t k = 1; k < n; ++k)
    if ((static_cast<unsigned char>(bytes[i + k]) & 0xC0) != 0x80) return 0;
  return n;
}

namespace {

#if !defined(_WIN32)
// One converter per direction for the life of the process (the library is
// used from one thread).
class Converter {
 public:
  Converter(const char* to, const char* from) : cd_(iconv_open(to, from)) {}
  ~Converter() {
    if (cd_ != kNone) iconv_close(cd_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  bool Convert(const std::string& in, std::string* out);

 private:
  static inline const iconv_t kNone = reinterpret_cast<iconv_t>(-1);
  iconv_t cd_;
};

bool Converter::Convert(const std::string& in, std::string* out) {
  out->clear();
  if (cd_ == kNone) return false;
  iconv(cd_, nullptr, nullptr, nullptr, nullptr);
  std::string src = in;
  char* pin = &src[0];
  size_t nin = src.size();
  bool ok = true;
  while (ok && nin > 0) {
    char buf[256];
    char* pout = buf;
    size_t nout = sizeof buf;
    const size_t r = iconv(cd_, &pin, &nin, &pout, &nout);
    out->append(buf, static_cast<size_t>(pout - buf));
    ok = r != static_cast<size_t>(-1) || pout != buf;
  }
  return ok;
}
#endif

}  // namespace

bool IsUtf8(const std::string& bytes) {
  bool high = false;
  for (size_t i = 0; i < bytes.size();) {
    if (static_cast<unsigned char>(bytes[i]) < 0x80) {
      ++i;
      continue;
    }
    const size_t n = Utf8Length(bytes, i);
    if (n == 0) return false;
    high = true;
    i += n;
  }
  return high;
}

#if defined(_WIN32)
bool ToWide(const std::string& bytes, unsigned code_page, std::wstring* wide) {
  wide->clear();
  if (bytes.empty()) return true;
  const int n = static_cast<int>(bytes.size());
  const int len = MultiByteToWideChar(code_page, MB_ERR_INVALID_CHARS, bytes.data(), n, nullptr, 0);
  if (len <= 0) return false;
  wide->resize(static_cast<size_t>(len));
  return MultiByteToWideChar(code_page, MB_ERR_INVALID_CHARS, bytes.data(), n, &(*wide)[0], len) == len;
}

bool FromWide(const std::wstring& wide, unsigned code_page, std::string* bytes) {
  bytes->clear();
  if (wide.empty()) return true;
  const int n = static_cast<int>(wide.size());
  // UTF-8 takes neither flags nor a lossy indicator; the others report a
  // character they lack instead of writing a look-alike.
  const bool utf8 = code_page == kCodePageUtf8;
  const DWORD flags = utf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
  BOOL lossy = FALSE;
  BOOL* lossy_out = utf8 ? nullptr : &lossy;
  const int len = WideCharToMultiByte(code_page, flags, wide.data(), n, nullptr, 0, nullptr, lossy_out);
  if (len <= 0 || lossy) return false;
  bytes->resize(static_cast<size_t>(len));
  return WideCharToMultiByte(code_page, flags, wide.data(), n, &(*bytes)[0], len, nullptr, lossy_out) == len &&
         !lossy;
}

bool GbkToUtf8(const std::string& gbk, std::string* utf8) {
  std::wstring wide;
  return ToWide(gbk, kCodePageGbk, &wide) && FromWide(wide, kCodePageUtf8, utf8);
}

bool Utf8ToGbk(const std::string& utf8, std::string* gbk) {
  std::wstring wide;
  return ToWide(utf8, kCodePageUtf8, &wide) && FromWide(wide, kCodePageGbk, gbk);
}
#else
bool GbkToUtf8(const std::string& gbk, std::string* utf8) {
  static Converter from_gbk("UTF-8", "GBK");
  return from_gbk.Convert(gbk, utf8);
}

bool Utf8ToGbk(const std::string& utf8, std::string* gbk) {
  static Converter to_gbk("GBK", "UTF-8");
  return to_gbk.Convert(utf8, gbk);
}
#endif

}  // namespace detail
}  // namespace mapcfg
