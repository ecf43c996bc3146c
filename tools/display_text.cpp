#include "display_text.h"

#include <iconv.h>

#include <cstdio>

namespace mapcfg_tool {

namespace {

void AppendEscape(std::string& out, unsigned char c) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "\\x%02X", c);
  out += buf;
}

}  // namespace

std::string ToDisplay(const std::string& bytes, bool raw) {
  if (raw) return bytes;
  bool ascii = true;
  for (unsigned char c : bytes)
    if (c > 0x7F) ascii = false;
  if (ascii) return bytes;
  iconv_t cd = iconv_open("UTF-8", "GBK");
  if (cd == reinterpret_cast<iconv_t>(-1)) return bytes;
  std::string out;
  size_t i = 0;
  while (i < bytes.size()) {
    const unsigned char c = static_cast<unsigned char>(bytes[i]);
    if (c <= 0x7F) {
      out.push_back(static_cast<char>(c));
      ++i;
      continue;
    }
    // One double-byte character at a time, so a bad pair costs one escape.
    char in[2] = {bytes[i], i + 1 < bytes.size() ? bytes[i + 1] : '\0'};
    char buf[8];
    char* pin = in;
    char* pout = buf;
    size_t nin = i + 1 < bytes.size() ? 2 : 1;
    size_t nout = sizeof buf;
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    if (iconv(cd, &pin, &nin, &pout, &nout) != static_cast<size_t>(-1) && nin == 0) {
      out.append(buf, static_cast<size_t>(pout - buf));
      i += 2;
    } else {
      AppendEscape(out, c);
      ++i;
    }
  }
  iconv_close(cd);
  return out;
}

bool LooksLikeUtf8(const std::string& bytes) {
  bool high = false;
  size_t i = 0;
  while (i < bytes.size()) {
    const unsigned char c = static_cast<unsigned char>(bytes[i]);
    size_t n = 0;
    if (c < 0x80) {
      ++i;
      continue;
    }
    high = true;
    if (c >= 0xC2 && c <= 0xDF) n = 1;
    else if (c >= 0xE0 && c <= 0xEF) n = 2;
    else if (c >= 0xF0 && c <= 0xF4) n = 3;
    else return false;
    if (i + n >= bytes.size()) return false;
    for (size_t k = 1; k <= n; ++k)
      if ((static_cast<unsigned char>(bytes[i + k]) & 0xC0) != 0x80) return false;
    i += n + 1;
  }
  return high;
}

}  // namespace mapcfg_tool
