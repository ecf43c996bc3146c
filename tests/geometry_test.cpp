// Double-precision points and rectangles.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

using namespace mapcfg;

namespace {

// Exact coordinates, for checking what the operations store.
std::vector<double> Coords(const CDblRect& r) { return {r.left, r.top, r.right, r.bottom}; }

}  // namespace

TEST(Geometry, Points) {
  EXPECT_EQ(CDblPoint(1.0, 2.0) == CDblPoint(1.0000004, 2.0), 1);
  EXPECT_EQ(CDblPoint(1.0, 2.0) == CDblPoint(1.000001, 2.0), 0);
  EXPECT_EQ(CDblPoint(1.0, 2.0) != CDblPoint(1.0, 2.000001), 1);
  const CDblPoint sum = CDblPoint(1, 2) + CDblPoint(CPoint(3, -4)) - CDblPoint(0.5, 0.5);
  EXPECT_EQ(sum.x, 3.5);
  EXPECT_EQ(sum.y, -2.5);
  EXPECT_EQ(CDblPoint(2.5, -2.5).ToInt(), CPoint(2, -3));
  EXPECT_EQ(CDblPoint(2.51, -2.49).ToInt(), CPoint(3, -2));
  EXPECT_EQ(*CDblPoint(7, 8).Clone() == CDblPoint(7, 8), 1);
}

TEST(Geometry, Rectangles) {
  EXPECT_EQ(Coords(CDblRect(CPoint(1, 2), CSize(10, -20))), (std::vector<double>{1, 2, 11, -18}));
  EXPECT_EQ(Coords(CDblRect(CPoint(2147483647, 0), CSize(1, 0)))[2], -2147483648.0);  // an integer sum
  EXPECT_EQ(Coords(CDblRect(CRect(1, 2, 3, 4))), (std::vector<double>{1, 2, 3, 4}));
  EXPECT_EQ(Coords(CDblRect(CDblPoint(0.5, 1), CDblPoint(2, 3))), (std::vector<double>{0.5, 1, 2, 3}));
  CDblRect r(0, 10, 5, 0), flipped(5, 0, 0, 10);
  EXPECT_EQ(flipped.Width() + flipped.Height(), 15.0);
  r.NormalizeRect();
  flipped.NormalizeRect();
  EXPECT_EQ(Coords(r), (std::vector<double>{0, 10, 5, 0}));
  EXPECT_EQ(Coords(flipped), Coords(r));
  EXPECT_EQ(CDblRect(0, 10, 5, 0) == CDblRect(0, 10.0000004, 5, 0), 1);
  EXPECT_EQ(CDblRect(0, 10, 5, 0) != CDblRect(0, 10, 5, 0.000001), 1);
  EXPECT_EQ(*r.Clone() == r, 1);
  // Rounded with +0.49 / -0.5, then ordered top <= bottom for screens.
  EXPECT_EQ(CDblRect(0.5, 10.2, 5.6, 0.4).ToInt(), CRect(0, 0, 6, 10));
  EXPECT_EQ(CDblRect(-2.5, -1, -7.6, 3.5).ToInt(), CRect(-8, -1, -3, 3));
}

TEST(Geometry, Unions) {
  CDblRect empty, r(1, 2, 3, 0);
  CDblPoint p(4, -1);
  empty.UnionRect(r);
  EXPECT_EQ(Coords(empty), (std::vector<double>{1, 2, 3, 0}));
  empty.UnionRect(p);
  EXPECT_EQ(Coords(empty), (std::vector<double>{1, 2, 4, -1}));

  // The argument is normalised in place when both are non-empty.
  CDblRect a(0, 0, 1, -1), b(5, -3, 2, 4);
  a.UnionRect(b);
  EXPECT_EQ(Coords(b), (std::vector<double>{2, 4, 5, -3}));
  EXPECT_EQ(Coords(a), (std::vector<double>{0, 4, 5, -3}));

  // An empty argument only normalises; an empty rectangle takes a normalised
  // copy and leaves the argument as it was.
  CDblRect c(3, 0, 1, 2), zero(0.0000001, 0, 0, -0.0000001), d, e(3, 0, 1, 2);
  c.UnionRect(zero);
  d.UnionRect(e);
  EXPECT_EQ(Coords(c), (std::vector<double>{1, 2, 3, 0}));
  EXPECT_EQ(Coords(d), Coords(c));
  EXPECT_EQ(Coords(e), (std::vector<double>{3, 0, 1, 2}));

  // From empty, the point (0, 0) gives the degenerate rectangle there; a
  // rectangle is normalised before it grows to a point.
  CDblRect f, g(5, 0, 0, 10);
  CDblPoint origin, q(-1, 9);
  f.UnionRect(origin);
  g.UnionRect(q);
  EXPECT_EQ(Coords(f), (std::vector<double>{0, 0, 0, 0}));
  EXPECT_EQ(Coords(g), (std::vector<double>{-1, 10, 5, 0}));
}
