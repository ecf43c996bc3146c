// Double-precision points and rectangles.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

using namespace mapcfg;

namespace {

void ExpectRect(const CDblRect& r, double l, double t, double rt, double b) {
  EXPECT_EQ(r.left, l);
  EXPECT_EQ(r.top, t);
  EXPECT_EQ(r.right, rt);
  EXPECT_EQ(r.bottom, b);
}

}  // namespace

TEST(Geometry, PointsCompareWithinTolerance) {
  EXPECT_EQ(CDblPoint(1.0, 2.0) == CDblPoint(1.0000004, 2.0), 1);
  EXPECT_EQ(CDblPoint(1.0, 2.0) == CDblPoint(1.000001, 2.0), 0);
  EXPECT_EQ(CDblPoint(1.0, 2.0) != CDblPoint(1.0, 2.000001), 1);
  const CDblPoint sum = CDblPoint(1, 2) + CDblPoint(CPoint(3, -4));
  const CDblPoint diff = CDblPoint(1, 2) - CDblPoint(0.5, 0.5);
  EXPECT_EQ(sum.x, 4.0);
  EXPECT_EQ(sum.y, -2.0);
  EXPECT_EQ(diff.x, 0.5);
  EXPECT_EQ(CDblPoint(2.5, -2.5).ToInt(), CPoint(2, -3));
  EXPECT_EQ(CDblPoint(2.51, -2.49).ToInt(), CPoint(3, -2));
  const std::unique_ptr<CDblPoint> copy = CDblPoint(7, 8).Clone();
  EXPECT_EQ(*copy == CDblPoint(7, 8), 1);
}

TEST(Geometry, RectangleConstructorsAndNormalising) {
  ExpectRect(CDblRect(CPoint(1, 2), CPoint(3, 4)), 1, 2, 3, 4);
  ExpectRect(CDblRect(CPoint(1, 2), CSize(10, -20)), 1, 2, 11, -18);
  ExpectRect(CDblRect(CPoint(2147483647, 0), CSize(1, 0)), 2147483647, 0, -2147483648.0, 0);  // integer sum
  ExpectRect(CDblRect(CRect(1, 2, 3, 4)), 1, 2, 3, 4);
  ExpectRect(CDblRect(CDblPoint(0.5, 1), CDblPoint(2, 3)), 0.5, 1, 2, 3);
  CDblRect r(0, 10, 5, 0);
  EXPECT_EQ(r.Height(), 10.0);
  EXPECT_EQ(r.Width(), 5.0);
  r.NormalizeRect();
  ExpectRect(r, 0, 10, 5, 0);
  CDblRect flipped(5, 0, 0, 10);
  EXPECT_EQ(flipped.Width(), 5.0);
  EXPECT_EQ(flipped.Height(), 10.0);
  flipped.NormalizeRect();
  ExpectRect(flipped, 0, 10, 5, 0);
  EXPECT_EQ(CDblRect(0, 10, 5, 0) == CDblRect(0, 10.0000004, 5, 0), 1);
  EXPECT_EQ(CDblRect(0, 10, 5, 0) != CDblRect(0, 10, 5, 0.000001), 1);
  const std::unique_ptr<CDblRect> copy = r.Clone();
  EXPECT_EQ(*copy == r, 1);
}

TEST(Geometry, RectangleToIntOrdersForScreens) {
  EXPECT_EQ(CDblRect(0.5, 10.2, 5.6, 0.4).ToInt(), CRect(0, 0, 6, 10));
  EXPECT_EQ(CDblRect(-2.5, -1, -7.6, 3.5).ToInt(), CRect(-8, -1, -3, 3));
}

TEST(Geometry, Unions) {
  CDblRect empty;
  CDblRect r(1, 2, 3, 0);
  empty.UnionRect(r);
  ExpectRect(empty, 1, 2, 3, 0);
  CDblPoint p(4, -1);
  empty.UnionRect(p);
  ExpectRect(empty, 1, 2, 4, -1);

  // The argument is normalised in place when both are non-empty.
  CDblRect a(0, 0, 1, -1), b(5, -3, 2, 4);
  a.UnionRect(b);
  ExpectRect(b, 2, 4, 5, -3);
  ExpectRect(a, 0, 4, 5, -3);

  // An empty argument only normalises; an empty rectangle takes a
  // normalised copy and leaves the argument as it was.
  CDblRect c(3, 0, 1, 2), zero(0.0000001, 0, 0, -0.0000001);
  c.UnionRect(zero);
  ExpectRect(c, 1, 2, 3, 0);
  CDblRect d, e(3, 0, 1, 2);
  d.UnionRect(e);
  ExpectRect(d, 1, 2, 3, 0);
  ExpectRect(e, 3, 0, 1, 2);

  // From empty, the point (0, 0) gives the degenerate rectangle there.
  CDblRect f;
  CDblPoint origin;
  f.UnionRect(origin);
  ExpectRect(f, 0, 0, 0, 0);
  CDblPoint q(-1, 9);
  CDblRect g(5, 0, 0, 10);
  g.UnionRect(q);
  ExpectRect(g, -1, 10, 5, 0);
}
