// Double-precision points and rectangles.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <vector>

using namespace mapcfg;

namespace {

// Exact coordinates, for checking what the operations store.
std::vector<double> Coords(const CDblRect& r) { return {r.left, r.top, r.right, r.bottom}; }

}  // namespace

TEST(Geometry, PointsAndRectangles) {
  // Equal when every coordinate differs by less than 5e-7.
  EXPECT_EQ(CDblPoint(1.0, 2.0) == CDblPoint(1.0000004, 2.0), 1);
  EXPECT_EQ(CDblPoint(1.0, 2.0) == CDblPoint(1.0, 2.000001), 0);
  EXPECT_EQ(CDblRect(0, 10, 5, 0) == CDblRect(0, 10.0000004, 5, 0), 1);
  EXPECT_EQ(CDblRect(0, 10, 5, 0) == CDblRect(0, 10, 5, 0.000001), 0);
  EXPECT_EQ(CDblPoint(2.5, -2.5).ToInt(), CPoint(2, -3));  // +0.49 / -0.5, then truncated
  // The sums are formed in 32-bit integers.
  EXPECT_EQ(Coords(CDblRect(CPoint(2147483647, 2), CSize(1, -20))),
            (std::vector<double>{2147483647, 2, -2147483648.0, -18}));
  EXPECT_EQ(CDblRect(5, 0, 0, 10).Width() + CDblRect(5, 0, 0, 10).Height(), 15.0);
  // Rounded, then ordered top <= bottom for screens.
  EXPECT_EQ(CDblRect(0.5, 10.2, 5.6, 0.4).ToInt(), CRect(0, 0, 6, 10));
  EXPECT_EQ(CDblRect(-2.5, -1, -7.6, 3.5).ToInt(), CRect(-8, -1, -3, 3));
}

TEST(Geometry, Unions) {
  // This rectangle, the argument, and both afterwards. The argument is
  // normalised in place only when both are non-empty; an empty one only
  // normalises this rectangle (NormalizeRect: left <= right, top >= bottom).
  const CDblRect zero(0.0000001, 0, 0, -0.0000001);
  struct {
    CDblRect self, arg, self_after, arg_after;
  } rects[] = {{{}, {3, 0, 1, 2}, {1, 2, 3, 0}, {3, 0, 1, 2}},
               {{0, 0, 1, -1}, {5, -3, 2, 4}, {0, 4, 5, -3}, {2, 4, 5, -3}},
               {{3, 0, 1, 2}, zero, {1, 2, 3, 0}, zero}};
  for (auto& c : rects) {
    c.self.UnionRect(c.arg);
    EXPECT_EQ(Coords(c.self), Coords(c.self_after));
    EXPECT_EQ(Coords(c.arg), Coords(c.arg_after));
  }
  // From empty, the point (0, 0) gives the degenerate rectangle there; a
  // rectangle is normalised before it grows to a point.
  struct {
    CDblRect self;
    CDblPoint point;
    CDblRect after;
  } points[] = {{{1, 2, 3, 0}, {4, -1}, {1, 2, 4, -1}}, {{}, {0, 0}, {}}, {{5, 0, 0, 10}, {-1, 9}, {-1, 10, 5, 0}}};
  for (auto& c : points) {
    c.self.UnionRect(c.point);
    EXPECT_EQ(Coords(c.self), Coords(c.after));
  }
}
