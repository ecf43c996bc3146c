// Number texts of the record describer.
#include <charconv>

#include "archive/record_io.h"

namespace mapcfg {
namespace detail {

std::string RecordDescriber::Hex(uint32_t v) {
  char digits[16];
  const auto res = std::to_chars(digits, digits + sizeof digits, v, 16);
  std::string text(digits, res.ptr);
  for (char& c : text)
    if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
  return "0x" + std::string(text.size() < 6 ? 6 - text.size() : 0, '0') + text;
}

// The shortest text that reads back to `v`: plain decimals ("0.0001") while
// they stay short, else with an exponent ("1e-300").
template <class T>
std::string ShortestText(T v) {
  char text[400];
  auto res = std::to_chars(text, text + sizeof text, v, std::chars_format::fixed);
  if (res.ec != std::errc() || res.ptr - text > 24) res = std::to_chars(text, text + sizeof text, v);
  return std::string(text, res.ptr);
}

std::string RecordDescriber::RealText(double v) { return ShortestText(v); }
std::string RecordDescriber::RealText(float v) { return ShortestText(v); }

}  // namespace detail
}  // namespace mapcfg
