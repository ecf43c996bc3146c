// Shared value types: double-precision geometry and ordered arrays.
//
// Thread safety: the classes are plain values; the ordered-array functions
// change only the arrays they are given.
#ifndef MAPCFG_VALUES_H_
#define MAPCFG_VALUES_H_

#include <cstdint>
#include <memory>
#include <vector>

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {

// --- Double-precision geometry ------------------------------------------------
// Map coordinates, y axis up. Equality and emptiness use the tolerance
// kDblTolerance, the constant the archive also uses to turn doubles into
// integers.

constexpr double kDblTolerance = 5e-7;

class MAPCFG_EXPORT CDblPoint {
 public:
  double x;
  double y;

  CDblPoint() : x(0.0), y(0.0) {}
  CDblPoint(const CPoint& p) : x(p.x), y(p.y) {}  // NOLINT: converts like the integer point
  CDblPoint(double px, double py) : x(px), y(py) {}
  CDblPoint(const CDblPoint&) = default;
  CDblPoint& operator=(const CDblPoint&) = default;

  CDblPoint operator+(CDblPoint p) const { return CDblPoint(x + p.x, y + p.y); }
  CDblPoint operator-(CDblPoint p) const { return CDblPoint(x - p.x, y - p.y); }
  // 1 when both coordinates differ by less than kDblTolerance, else 0.
  int operator==(const CDblPoint& p) const;
  int operator!=(const CDblPoint& p) const { return !(*this == p); }

  // A heap copy; the caller owns it.
  std::unique_ptr<CDblPoint> Clone() const;
  // Both coordinates rounded with sToInteger(double) (+0.49 / -0.5).
  CPoint ToInt() const;
};

// A rectangle; its normal form has left <= right and top >= bottom (top is
// the upper edge, y up), the opposite of CRect. No constructor normalises.
class MAPCFG_EXPORT CDblRect {
 public:
  double left;
  double top;
  double right;
  double bottom;

  CDblRect() : left(0.0), top(0.0), right(0.0), bottom(0.0) {}
  CDblRect(double l, double t, double r, double b) : left(l), top(t), right(r), bottom(b) {}
  // left = a.x, top = a.y, right = b.x, bottom = b.y.
  CDblRect(const CPoint& a, const CPoint& b) : left(a.x), top(a.y), right(b.x), bottom(b.y) {}
  // right = p.x + s.cx, bottom = p.y + s.cy, the sums formed in 32-bit
  // integers (wrapping as the integer types of older versions did).
  CDblRect(const CPoint& p, const CSize& s);
  CDblRect(const CRect& r) : left(r.left), top(r.top), right(r.right), bottom(r.bottom) {}  // NOLINT
  CDblRect(const CDblPoint& a, const CDblPoint& b) : left(a.x), top(a.y), right(b.x), bottom(b.y) {}
  CDblRect(const CDblRect&) = default;
  CDblRect& operator=(const CDblRect&) = default;

  // |right - left| and |top - bottom|: never negative.
  double Width() const;
  double Height() const;
  // Swaps left and right when left > right, top and bottom when top <= bottom.
  void NormalizeRect();
  // Union with `r`. A rectangle whose four coordinates are all within
  // kDblTolerance of 0 is empty: an empty `r` only normalises this one; an
  // empty this one becomes a normalised copy of `r`. Otherwise both this one
  // and `r` itself are normalised and this one grows to cover `r`.
  void UnionRect(CDblRect& r);
  // Grows this rectangle to cover `p`. An empty rectangle becomes the
  // degenerate rectangle at `p`; otherwise it is normalised first.
  void UnionRect(CDblPoint& p);
  // The four coordinates rounded with sToInteger(double), then ordered in the
  // integer convention (left <= right, top <= bottom).
  CRect ToInt() const;
  // A heap copy; the caller owns it.
  std::unique_ptr<CDblRect> Clone() const;
  // 1 when all four coordinates differ by less than kDblTolerance, else 0.
  int operator==(const CDblRect& r) const;
  int operator!=(const CDblRect& r) const { return !(*this == r); }
};

// --- Ordered arrays -----------------------------------------------------------
// Binary search and ordered insertion over growable arrays kept in ascending
// (sAsc...) or descending (sDesc...) order. Nothing is stored beside an
// array: callers keep the order by inserting through these functions.
//
// Search: sAscFind(array, value, first, last) looks in the half-open range
// [first, last) of indices, a negative `last` meaning the array's size. It
// returns the index of an element equal to the value, or the bitwise
// complement ~p of the insertion point p (so a hit is a result >= 0, and
// ~result recovers p). The probes are those of this bisection: while the
// range holds two or more elements, probe mid = (lo + hi) / 2, return it when
// it matches, else set hi = mid when the element lies on the value's upper
// side and lo = mid (not mid + 1) otherwise; the last element left decides
// between lo, ~lo and ~hi. Among equal elements the one probed first is
// returned, neither the first nor the last of the run.
// REQUIRES: 0 <= first <= size and last <= size, or std::out_of_range is
// thrown; arrays hold fewer than 2^31 elements.
//
// Insertion: sAscInsert(array, value, mode) searches the whole array and
// returns the index where the value now stands:
//   mode 0: always inserts; next to an equal element found, just after it;
//   mode > 0: overwrites an equal element found, else inserts;
//   mode < 0: keeps an equal element found (and returns its index), else
//             inserts.
//
// Floating-point keys (float, double, CDblPoint coordinates) take a
// tolerance: an element matches when |element - value| < tolerance, so a
// tolerance of 0 matches nothing and a mode-0 insertion then puts the value
// in front of an equal one. The direction is the plain comparison (ascending:
// an element >= the value is on the upper side; descending: <=).
//
// Plain-array members work on a caller's buffer and count; insertion there
// REQUIRES room for count + 1 elements, shifts the tail up and increments
// `count`. Their ranges are not checked beyond first >= 0.

// Integer elements; char is compared as signed. An unsigned-char array has
// only the descending insertion.
MAPCFG_EXPORT int sAscFind(const std::vector<uint32_t>& a, uint32_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscFind(const std::vector<uint16_t>& a, uint16_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscFind(const std::vector<uint8_t>& a, uint8_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscFind(const std::vector<int32_t>& a, int32_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscFind(const std::vector<int16_t>& a, int16_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscFind(const std::vector<char>& a, char value, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFind(const std::vector<uint32_t>& a, uint32_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFind(const std::vector<uint16_t>& a, uint16_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFind(const std::vector<uint8_t>& a, uint8_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFind(const std::vector<int32_t>& a, int32_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFind(const std::vector<int16_t>& a, int16_t value, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFind(const std::vector<char>& a, char value, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscInsert(std::vector<uint32_t>& a, uint32_t value, int mode);
MAPCFG_EXPORT int sAscInsert(std::vector<uint16_t>& a, uint16_t value, int mode);
MAPCFG_EXPORT int sAscInsert(std::vector<int32_t>& a, int32_t value, int mode);
MAPCFG_EXPORT int sAscInsert(std::vector<int16_t>& a, int16_t value, int mode);
MAPCFG_EXPORT int sAscInsert(std::vector<char>& a, char value, int mode);
MAPCFG_EXPORT int sDescInsert(std::vector<uint32_t>& a, uint32_t value, int mode);
MAPCFG_EXPORT int sDescInsert(std::vector<uint16_t>& a, uint16_t value, int mode);
MAPCFG_EXPORT int sDescInsert(std::vector<uint8_t>& a, uint8_t value, int mode);
MAPCFG_EXPORT int sDescInsert(std::vector<int32_t>& a, int32_t value, int mode);
MAPCFG_EXPORT int sDescInsert(std::vector<int16_t>& a, int16_t value, int mode);
MAPCFG_EXPORT int sDescInsert(std::vector<char>& a, char value, int mode);

// Floating-point elements, with a tolerance.
MAPCFG_EXPORT int sAscFind(const std::vector<float>& a, float value, float tolerance, int first = 0,
                           int last = -1);
MAPCFG_EXPORT int sAscFind(const std::vector<double>& a, double value, double tolerance, int first = 0,
                           int last = -1);
MAPCFG_EXPORT int sDescFind(const std::vector<float>& a, float value, float tolerance, int first = 0,
                            int last = -1);
MAPCFG_EXPORT int sDescFind(const std::vector<double>& a, double value, double tolerance, int first = 0,
                            int last = -1);
MAPCFG_EXPORT int sAscInsert(std::vector<float>& a, float value, int mode, float tolerance);
MAPCFG_EXPORT int sAscInsert(std::vector<double>& a, double value, int mode, double tolerance);
MAPCFG_EXPORT int sDescInsert(std::vector<float>& a, float value, int mode, float tolerance);
MAPCFG_EXPORT int sDescInsert(std::vector<double>& a, double value, int mode, double tolerance);
// A caller's plain array of doubles; `first` and `last` are both required.
MAPCFG_EXPORT int sAscFind(const double* a, double value, int first, int last, double tolerance);
MAPCFG_EXPORT int sDescFind(const double* a, double value, int first, int last, double tolerance);

// Points kept in order of their x (ByXX) or y (ByYY) coordinate. Searches
// take the coordinate value; insertions take the whole point.
MAPCFG_EXPORT int sAscFindByXX(const std::vector<CPoint>& a, int32_t x, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscFindByYY(const std::vector<CPoint>& a, int32_t y, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFindByXX(const std::vector<CPoint>& a, int32_t x, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFindByYY(const std::vector<CPoint>& a, int32_t y, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscInsertByXX(std::vector<CPoint>& a, CPoint point, int mode);
MAPCFG_EXPORT int sAscInsertByYY(std::vector<CPoint>& a, CPoint point, int mode);
MAPCFG_EXPORT int sDescInsertByXX(std::vector<CPoint>& a, CPoint point, int mode);
MAPCFG_EXPORT int sDescInsertByYY(std::vector<CPoint>& a, CPoint point, int mode);

MAPCFG_EXPORT int sAscFindByXX(const std::vector<CDblPoint>& a, double x, double tolerance, int first = 0,
                               int last = -1);
MAPCFG_EXPORT int sAscFindByYY(const std::vector<CDblPoint>& a, double y, double tolerance, int first = 0,
                               int last = -1);
MAPCFG_EXPORT int sDescFindByXX(const std::vector<CDblPoint>& a, double x, double tolerance, int first = 0,
                                int last = -1);
MAPCFG_EXPORT int sDescFindByYY(const std::vector<CDblPoint>& a, double y, double tolerance, int first = 0,
                                int last = -1);
MAPCFG_EXPORT int sAscInsertByXX(std::vector<CDblPoint>& a, CDblPoint point, int mode, double tolerance);
MAPCFG_EXPORT int sAscInsertByYY(std::vector<CDblPoint>& a, CDblPoint point, int mode, double tolerance);
MAPCFG_EXPORT int sDescInsertByXX(std::vector<CDblPoint>& a, CDblPoint point, int mode, double tolerance);
MAPCFG_EXPORT int sDescInsertByYY(std::vector<CDblPoint>& a, CDblPoint point, int mode, double tolerance);

// A caller's plain array of points.
MAPCFG_EXPORT int sAscFindByXX(const CDblPoint* a, double x, int first, int last, double tolerance);
MAPCFG_EXPORT int sAscFindByYY(const CDblPoint* a, double y, int first, int last, double tolerance);
MAPCFG_EXPORT int sDescFindByXX(const CDblPoint* a, double x, int first, int last, double tolerance);
MAPCFG_EXPORT int sDescFindByYY(const CDblPoint* a, double y, int first, int last, double tolerance);
MAPCFG_EXPORT int sAscInsertByXX(CDblPoint* a, int& count, CDblPoint point, int mode, double tolerance);
MAPCFG_EXPORT int sAscInsertByYY(CDblPoint* a, int& count, CDblPoint point, int mode, double tolerance);
MAPCFG_EXPORT int sDescInsertByXX(CDblPoint* a, int& count, CDblPoint point, int mode, double tolerance);
MAPCFG_EXPORT int sDescInsertByYY(CDblPoint* a, int& count, CDblPoint point, int mode, double tolerance);

// Points ascending by x and, among points whose x matches within the
// tolerance, by y. A point matches when both coordinates are within the
// tolerance. One bisection with that order.
MAPCFG_EXPORT int sAscFindByXY(const std::vector<CDblPoint>& a, CDblPoint point, double tolerance,
                               int first = 0, int last = -1);

// Texts in byte order (nocase 0) or in byte order with ASCII letters folded
// to lower case (nocase non-zero).
MAPCFG_EXPORT int sAscFind(const StringArray& a, const String& text, int nocase, int first = 0, int last = -1);
MAPCFG_EXPORT int sDescFind(const StringArray& a, const String& text, int nocase, int first = 0, int last = -1);
MAPCFG_EXPORT int sAscInsert(StringArray& a, const String& text, int mode, int nocase);
MAPCFG_EXPORT int sDescInsert(StringArray& a, const String& text, int mode, int nocase);
// Parallel arrays ordered by the pair (code, text): the code as a signed
// char, then the text without regard to ASCII case. Both arrays are read at
// the same indices; REQUIRES both to cover [first, last).
MAPCFG_EXPORT int sAscFind(const std::vector<char>& codes, const StringArray& texts, char code,
                           const String& text, int first = 0, int last = -1);

// Unsorted texts. sNoSortFind: index of the first equal element, or -1.
MAPCFG_EXPORT int sNoSortFind(const StringArray& a, const String& text, int nocase);
// An absent text is appended and -1 is returned (-1 means "added"). A text
// present is overwritten when mode >= 1 and its index returned either way;
// mode 0 never adds a duplicate here.
MAPCFG_EXPORT int sNoSortInsert(StringArray& a, const String& text, int mode, int nocase);

// Pointer arrays ascending by address (as an unsigned number).
// 1 when any element of `probe` is in `sorted`, else 0.
MAPCFG_EXPORT int sAscFindArray(const std::vector<void*>& sorted, const std::vector<void*>& probe);
// Inserts each element of `items` not yet in `sorted` at its place.
MAPCFG_EXPORT void sAscInsertArray(std::vector<void*>& sorted, const std::vector<void*>& items);

// Appends source[first..last] (both included; a negative `last` means the
// last index) to `destination`, from last down to first when `reverse` is
// non-zero. A non-zero `clear` empties the destination, releasing its
// storage, first. Nothing is copied when first > last. The source may be the
// destination. Throws std::out_of_range, before changing anything, when
// first <= last and first < 0 or last >= the source's size.
MAPCFG_EXPORT void sCopyPtrArray(std::vector<void*>& destination, const std::vector<void*>& source, int clear,
                                 int reverse, int first = 0, int last = -1);
MAPCFG_EXPORT void sCopyPoints(std::vector<CDblPoint>& destination, const std::vector<CDblPoint>& source,
                               int clear, int reverse, int first = 0, int last = -1);

// Compares texts in the manner of a desktop database's general sort order:
// -1, 0 or 1. Hyphens and apostrophes are ignored at first; symbols sort
// before digits and letters; letters "a" to "y" sort as upper case but "z"
// after every other letter (a quirk kept for existing data); GBK full-width
// forms (lead byte 0xA3) sort as their narrow characters, other GBK
// characters after all single bytes in code order. Texts that weigh equal
// are ordered by their hyphens and apostrophes: more of them is greater;
// with as many, the text whose first differing one stands earlier is
// greater; then the greater character (hyphen over apostrophe) is greater.
MAPCFG_EXPORT int sCmpStrByAccess(String a, String b);

}  // namespace mapcfg

#endif  // MAPCFG_VALUES_H_
