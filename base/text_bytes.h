// Byte classes and ASCII case folding shared by the library's sources.
#ifndef MAPCFG_BASE_TEXT_BYTES_H_
#define MAPCFG_BASE_TEXT_BYTES_H_

#include <string>

namespace mapcfg {
namespace detail {

// A control character is 1..31 read as a signed char; bytes 0x80..0xFF are
// ordinary characters.
inline bool IsCtrl(char c) {
  const signed char s = static_cast<signed char>(c);
  return s >= 1 && s <= 31;
}

// White space as the trimming of Strings sees it: blank, tab, LF, VT, FF, CR.
inline bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// ASCII letters to lower or upper case; every other byte (GBK included) as is.
inline char FoldAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + ('a' - 'A')) : c; }
inline char UpperAscii(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - ('a' - 'A')) : c; }

// Case-insensitive equality that folds ASCII letters only.
inline bool EqualsNoCase(const char* a, size_t na, const char* b, size_t nb) {
  if (na != nb) return false;
  for (size_t i = 0; i < na; ++i)
    if (a[i] != b[i] && FoldAscii(a[i]) != FoldAscii(b[i])) return false;
  return true;
}
inline bool EqualsNoCase(const std::string& a, const char* b) {
  return EqualsNoCase(a.data(), a.size(), b, std::char_traits<char>::length(b));
}

// A GBK lead byte: it and the byte after it are one character.
inline bool IsGbkLead(char c) {
  const unsigned char u = static_cast<unsigned char>(c);
  return u >= 0x81 && u <= 0xFE;
}

// Bytes of the character at s[i]: 2 for a GBK pair, else 1.
inline size_t CharLen(const std::string& s, size_t i) { return IsGbkLead(s[i]) && i + 1 < s.size() ? 2 : 1; }

// ASCII letters to upper case; both bytes of a GBK pair stay as they are.
inline std::string UpperCopy(std::string s) {
  for (size_t i = 0; i < s.size(); i += CharLen(s, i)) s[i] = UpperAscii(s[i]);
  return s;
}

inline void TrimRight(std::string& s) {
  size_t n = s.size();
  while (n > 0 && IsSpace(s[n - 1])) --n;
  s.resize(n);
}
inline void Trim(std::string& s) {
  TrimRight(s);
  size_t i = 0;
  while (i < s.size() && IsSpace(s[i])) ++i;
  s.erase(0, i);
}

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_BASE_TEXT_BYTES_H_
