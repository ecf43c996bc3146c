// GBK and UTF-8 texts converted into each other, and (Windows) into the
// UTF-16 names of the file system: iconv on POSIX, the Windows code pages on
// Windows.
#ifndef MAPCFG_BASE_CODE_PAGES_H_
#define MAPCFG_BASE_CODE_PAGES_H_

#include <string>

namespace mapcfg {
namespace detail {

// Length of the UTF-8 sequence at bytes[i], or 0 when none starts there.
size_t Utf8Length(const std::string& bytes, size_t i);

// True when `bytes` holds a byte above 0x7F and is valid UTF-8 as a whole.
bool IsUtf8(const std::string& bytes);

// `gbk` as UTF-8 in *utf8 (and the other way round); false, with *out
// unspecified, when the input holds something the other encoding lacks.
bool GbkToUtf8(const std::string& gbk, std::string* utf8);
bool Utf8ToGbk(const std::string& utf8, std::string* gbk);

#if defined(_WIN32)
// Windows code page numbers: the process's ANSI code page, GBK and UTF-8.
constexpr unsigned kCodePageAnsi = 0;
constexpr unsigned kCodePageGbk = 936;
constexpr unsigned kCodePageUtf8 = 65001;

// `bytes` read in `code_page` as UTF-16 in *wide, and back; false when they
// are not valid in it or a character has no exact form there.
bool ToWide(const std::string& bytes, unsigned code_page, std::wstring* wide);
bool FromWide(const std::wstring& wide, unsigned code_page, std::string* bytes);
#endif

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_BASE_CODE_PAGES_H_
