// Plain value types shared by every part of mapcfg.
//
// Texts are 8-bit byte strings (ASCII or GBK), never assumed to be UTF-8.
// Fields that are stored in files use fixed-width integers.
#ifndef MAPCFG_TYPES_H_
#define MAPCFG_TYPES_H_

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace mapcfg {

// An 8-bit counted string: bytes, ASCII or GBK.
using String = std::string;
// An ordered, growable array of Strings.
using StringArray = std::vector<std::string>;
// Records owned by a table or a parent record, in order.
template <class T>
using RecordArray = std::vector<std::unique_ptr<T>>;

// A field of a record as text (mapcfg/describe.h): its name, its value and
// the kind of value.
struct FieldText {
  enum Kind : char { kText = 's', kInteger = 'i', kHex = 'x', kReal = 'f' };
  String name;
  String value;
  Kind kind;
};
using FieldTexts = std::vector<FieldText>;

// Integer point.
struct CPoint {
  int32_t x = 0;
  int32_t y = 0;
  constexpr CPoint() = default;
  constexpr CPoint(int32_t px, int32_t py) : x(px), y(py) {}
  constexpr bool operator==(const CPoint& o) const { return x == o.x && y == o.y; }
  constexpr bool operator!=(const CPoint& o) const { return !(*this == o); }
};

// Integer extent.
struct CSize {
  int32_t cx = 0;
  int32_t cy = 0;
  constexpr CSize() = default;
  constexpr CSize(int32_t w, int32_t h) : cx(w), cy(h) {}
  constexpr bool operator==(const CSize& o) const { return cx == o.cx && cy == o.cy; }
  constexpr bool operator!=(const CSize& o) const { return !(*this == o); }
};

// Integer rectangle; its normal form has left <= right and top <= bottom
// (y grows downwards, as on a screen).
struct CRect {
  int32_t left = 0;
  int32_t top = 0;
  int32_t right = 0;
  int32_t bottom = 0;
  constexpr CRect() = default;
  constexpr CRect(int32_t l, int32_t t, int32_t r, int32_t b) : left(l), top(t), right(r), bottom(b) {}
  constexpr bool operator==(const CRect& o) const {
    return left == o.left && top == o.top && right == o.right && bottom == o.bottom;
  }
  constexpr bool operator!=(const CRect& o) const { return !(*this == o); }
  // Swaps left and right when left > right, top and bottom when top > bottom.
  constexpr void NormalizeRect() {
    if (left > right) {
      const int32_t t = left;
      left = right;
      right = t;
    }
    if (top > bottom) {
      const int32_t t = top;
      top = bottom;
      bottom = t;
    }
  }
};

// Font description of exactly 60 bytes, in the field order stored in files.
struct LOGFONT {
  int32_t lfHeight = 0;
  int32_t lfWidth = 0;
  int32_t lfEscapement = 0;
  int32_t lfOrientation = 0;
  int32_t lfWeight = 0;
  uint8_t lfItalic = 0;
  uint8_t lfUnderline = 0;
  uint8_t lfStrikeOut = 0;
  uint8_t lfCharSet = 0;
  uint8_t lfOutPrecision = 0;
  uint8_t lfClipPrecision = 0;
  uint8_t lfQuality = 0;
  uint8_t lfPitchAndFamily = 0;
  char lfFaceName[32] = {};
};
static_assert(sizeof(LOGFONT) == 60, "LOGFONT is stored as 60 bytes");

// A point in time as 64-bit seconds since 1970-01-01 00:00 UTC.
struct CTime {
  int64_t m_time = 0;
  constexpr CTime() = default;
  constexpr explicit CTime(int64_t t) : m_time(t) {}
  constexpr int64_t GetTime() const { return m_time; }
  constexpr bool operator==(const CTime& o) const { return m_time == o.m_time; }
};

// A date as days since 1899-12-30 (the fraction is the time of day) and a
// status (0 valid, 1 invalid, 2 null).
struct COleDateTime {
  double m_dt = 0.0;
  int32_t m_status = 0;
};

}  // namespace mapcfg

#endif  // MAPCFG_TYPES_H_
