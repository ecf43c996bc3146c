// Double-precision points and rectangles.
#include <cmath>
#include <utility>

#include "mapcfg/utils.h"
#include "mapcfg/values.h"

namespace mapcfg {

namespace {

bool Near(double a, double b) { return std::fabs(a - b) < kDblTolerance; }
bool IsZero(double v) { return std::fabs(v) < kDblTolerance; }

bool IsEmpty(const CDblRect& r) { return IsZero(r.left) && IsZero(r.top) && IsZero(r.right) && IsZero(r.bottom); }

// Sum of two 32-bit integers wrapping modulo 2^32.
int32_t WrapAdd(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

}  // namespace

int CDblPoint::operator==(const CDblPoint& p) const { return Near(x, p.x) && Near(y, p.y); }

std::unique_ptr<CDblPoint> CDblPoint::Clone() const { return std::make_unique<CDblPoint>(*this); }

CPoint CDblPoint::ToInt() const { return CPoint(sToInteger(x), sToInteger(y)); }

CDblRect::CDblRect(const CPoint& p, const CSize& s)
    : left(p.x), top(p.y), right(WrapAdd(p.x, s.cx)), bottom(WrapAdd(p.y, s.cy)) {}

double CDblRect::Width() const { return std::fabs(right - left); }

double CDblRect::Height() const { return std::fabs(top - bottom); }

void CDblRect::NormalizeRect() {
  if (left > right) std::swap(left, right);
  if (top <= bottom) std::swap(top, bottom);
}

void CDblRect::UnionRect(CDblRect& r) {
  if (IsEmpty(r)) {
    NormalizeRect();
    return;
  }
  if (IsEmpty(*this)) {
    *this = r;
    NormalizeRect();
    return;
  }
  NormalizeRect();
  r.NormalizeRect();
  if (r.left < left) left = r.left;
  if (r.right > right) right = r.right;
  if (r.top > top) top = r.top;
  if (r.bottom < bottom) bottom = r.bottom;
}

void CDblRect::UnionRect(CDblPoint& p) {
  if (IsEmpty(*this)) {
    left = right = p.x;
    top = bottom = p.y;
    return;
  }
  NormalizeRect();
  if (p.x < left) left = p.x;
  if (p.x > right) right = p.x;
  if (p.y > top) top = p.y;
  if (p.y < bottom) bottom = p.y;
}

CRect CDblRect::ToInt() const {
  CRect r(sToInteger(left), sToInteger(top), sToInteger(right), sToInteger(bottom));
  r.NormalizeRect();
  return r;
}

std::unique_ptr<CDblRect> CDblRect::Clone() const { return std::make_unique<CDblRect>(*this); }

int CDblRect::operator==(const CDblRect& r) const {
  return Near(left, r.left) && Near(top, r.top) && Near(right, r.right) && Near(bottom, r.bottom);
}

}  // namespace mapcfg
