// Shared value types: double-precision geometry and ordered arrays.
//
// Thread safety: the classes are plain values; the ordered-array functions
// change only the arrays they are given.
#ifndef MAPCFG_VALUES_H_
#define MAPCFG_VALUES_H_

#include <memory>

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

}  // namespace mapcfg

#endif  // MAPCFG_VALUES_H_
