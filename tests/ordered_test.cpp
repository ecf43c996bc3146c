// Ordered-array search and insertion; the cases of sCmpStrByAccess are in
// data/conversions.txt.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using namespace mapcfg;

TEST(Ordered, Search) {
  const std::vector<int32_t> a{10, 20, 30};
  EXPECT_EQ(sAscFind(a, 10, 1, 3), -2);  // only [1, 3) is searched
  EXPECT_EQ(sAscFind(a, 30, 2, 1), -3);  // an empty range gives ~first
  EXPECT_THROW(sAscFind(a, 30, 0, 4), std::out_of_range);
  EXPECT_EQ(sDescFind(std::vector<int32_t>{30, 20, 10}, 25), -2);
  EXPECT_EQ(sAscFind(std::vector<char>{static_cast<char>(0x80), 'A'}, static_cast<char>(0x90)), -2);  // signed
  // Among equal elements the first probed one comes back; the lower bound
  // moves to mid, not past it.
  EXPECT_EQ(sAscFind(std::vector<int32_t>{1, 1, 1, 3, 3}, 3), 3);
  EXPECT_EQ(sAscFind(std::vector<int32_t>{1, 2, 2, 2, 2, 2, 2, 3}, 2), 4);
  EXPECT_EQ(sAscFind(std::vector<int32_t>{2, 2}, 2), 1);
  EXPECT_EQ(sDescFind(std::vector<int32_t>{5, 5, 5, 1, 1}, 5), 2);
  // Whatever the data, a hit is an equal element and a miss the place where
  // the value goes.
  std::mt19937 rng(5);
  for (int round = 0; round < 200; ++round) {
    std::vector<int32_t> v(rng() % 40);
    for (auto& x : v) x = static_cast<int32_t>(rng() % 30);
    std::sort(v.begin(), v.end());
    const int32_t key = static_cast<int32_t>(rng() % 32) - 1;
    const int r = sAscFind(v, key);
    ASSERT_EQ(r >= 0, std::binary_search(v.begin(), v.end(), key)) << key;
    ASSERT_TRUE(r >= 0 ? v[static_cast<size_t>(r)] == key
                       : ~r == std::lower_bound(v.begin(), v.end(), key) - v.begin());
  }
}

TEST(Ordered, InsertionModes) {
  std::vector<int32_t> a{10, 20, 30};
  EXPECT_EQ(sAscInsert(a, 20, 0), 2);   // after the equal one found
  EXPECT_EQ(sAscInsert(a, 20, -1), 2);  // the one found is kept
  EXPECT_EQ(a, (std::vector<int32_t>{10, 20, 20, 30}));
  // Replacing overwrites the whole element found by its key.
  std::vector<CPoint> pts{CPoint(2, 9), CPoint(5, 1)};
  EXPECT_EQ(sAscInsertByXX(pts, CPoint(5, 7), 1), 1);
  EXPECT_EQ(sDescInsertByYY(pts, CPoint(0, 8), 0), 1);
  EXPECT_EQ(pts, (std::vector<CPoint>{CPoint(2, 9), CPoint(0, 8), CPoint(5, 7)}));
  EXPECT_EQ(sDescFindByYY(pts, 7), 2);
}

TEST(Ordered, TolerantKeys) {
  const std::vector<double> one{1.0};
  EXPECT_EQ(sAscFind(one, 1.0, 0.0), -1);  // a tolerance of 0 matches nothing
  EXPECT_EQ(sDescFind(one, 1.0, 0.0), -1);
  EXPECT_EQ(sAscFind(one, 1.0005, 0.001), 0);
  std::vector<double> d{1.0, 2.0};
  EXPECT_EQ(sAscInsert(d, 2.0, 0, 0.0), 1);  // in front of the equal one
  EXPECT_EQ(sAscInsert(d, 0.9995, 1, 0.001), 0);
  EXPECT_EQ(d, (std::vector<double>{0.9995, 2.0, 2.0}));
  std::vector<float> f{3.0f, 1.0f};
  EXPECT_EQ(sDescInsert(f, 2.0f, 0, 0.0005f), 1);
  EXPECT_EQ(sDescFind(f, 1.0004f, 0.0005f), 2);
  const double plain[] = {5.0, 4.0, 1.0};
  EXPECT_EQ(sDescFind(plain, 4.5, 0, 3, 1e-9), -2);
  EXPECT_THROW(sAscFind(plain, 1.0, -1, 2, 1e-9), std::out_of_range);
  // Points by x or y; vectors and plain arrays whose count grows in place.
  std::vector<CDblPoint> v{CDblPoint(1, 5), CDblPoint(3, 0)};
  EXPECT_EQ(sAscInsertByXX(v, CDblPoint(1.0000001, 9), 1, 1e-6), 0);
  EXPECT_EQ(sAscFindByYY(v, 0.0, 1e-6), 1);
  EXPECT_EQ(sDescInsertByYY(v, CDblPoint(7, 4), 0, 1e-6), 1);
  CDblPoint buf[4];
  int count = 0;
  sAscInsertByXX(buf, count, CDblPoint(2, 0), 0, 1e-6);
  EXPECT_EQ(sAscInsertByXX(buf, count, CDblPoint(1, 0), 0, 1e-6), 0);
  EXPECT_EQ(sAscInsertByXX(buf, count, CDblPoint(2, 7), -1, 1e-6), 1);
  EXPECT_EQ(sDescInsertByYY(buf, count, CDblPoint(5, 3), 0, 1e-6), 0);
  EXPECT_EQ(buf[0].x + buf[1].x * 10 + buf[2].x * 100 + count * 1000, 3215.0);  // x: 5, 1, 2
  EXPECT_EQ(sDescFindByXX(buf + 1, 1.0, 0, 2, 1e-6), -3);
  // By x, then by y among the points whose x matches within the tolerance.
  const std::vector<CDblPoint> xy{CDblPoint(0, 5), CDblPoint(1, 1), CDblPoint(1, 2), CDblPoint(1.0000001, 3),
                                  CDblPoint(2, 0)};
  const CDblPoint keys[] = {CDblPoint(1, 3), CDblPoint(1, 1), CDblPoint(1, 2.5), CDblPoint(0, 1), CDblPoint(3, 1)};
  const int found[] = {3, 1, -4, -1, -6};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(sAscFindByXY(xy, keys[i], 1e-6), found[i]) << i;
}

TEST(Ordered, Texts) {
  StringArray cased, nocase, down;
  for (const char* t : {"cherry", "apple", "Banana", "_x", "APPLE"}) {
    sAscInsert(cased, t, 0, 0);
    sAscInsert(nocase, t, -1, 1);
    sDescInsert(down, t, 1, 1);
  }
  EXPECT_EQ(cased, (StringArray{"APPLE", "Banana", "_x", "apple", "cherry"}));
  EXPECT_EQ(nocase, (StringArray{"_x", "apple", "Banana", "cherry"}));  // "_" sorts before letters
  EXPECT_EQ(down, (StringArray{"cherry", "Banana", "APPLE", "_x"}));    // "APPLE" replaced "apple"
  EXPECT_EQ(sAscFind(nocase, "BANANA", 1), 2);
  EXPECT_EQ(sAscFind(nocase, "BANANA", 0), -1);  // byte order: "B" before "_"
  // Code and text pairs: signed code first, then the text without case.
  const std::vector<char> codes{static_cast<char>(0x90), 'A', 'A', 'B'};
  const StringArray names{"zz", "alpha", "Beta", "a"};
  EXPECT_EQ(sAscFind(codes, names, 'A', "BETA"), 2);
  EXPECT_EQ(sAscFind(codes, names, 'A', "c"), -4);
  EXPECT_EQ(sAscFind(codes, names, static_cast<char>(0x90), "zz"), 0);
  EXPECT_THROW(sAscFind(codes, StringArray{"zz"}, 'A', "x", 0, 2), std::out_of_range);
  // Unsorted: -1 means added at the end; a text found is kept or overwritten.
  StringArray loose{"b", "A"};
  EXPECT_EQ(sNoSortFind(loose, "a", 0), -1);
  EXPECT_EQ(sNoSortInsert(loose, "a", 1, 1), 1);   // found, overwritten
  EXPECT_EQ(sNoSortInsert(loose, "A", 0, 1), 1);   // found, kept
  EXPECT_EQ(sNoSortInsert(loose, "c", 0, 0), -1);  // added at the end
  EXPECT_EQ(loose, (StringArray{"b", "a", "c"}));
}

TEST(Ordered, PointerSetsAndCopies) {
  int c[6];
  void* const p[] = {&c[0], &c[1], &c[2], &c[3], &c[4], &c[5]};
  std::vector<void*> sorted;
  sAscInsertArray(sorted, {p[4], p[1], p[4]});
  sAscInsertArray(sorted, {p[0], p[1]});
  sAscInsertArray(sorted, sorted);
  EXPECT_EQ(sorted, (std::vector<void*>{p[0], p[1], p[4]}));
  EXPECT_EQ(sAscFindArray(sorted, {p[2], p[4]}), 1);
  EXPECT_EQ(sAscFindArray(sorted, {p[2], p[3]}) + sAscFindArray(sorted, {}), 0);
  std::vector<void*> d{p[5]};
  sCopyPtrArray(d, sorted, 0, 1, 0, -1);
  EXPECT_EQ(d, (std::vector<void*>{p[5], p[4], p[1], p[0]}));
  sCopyPtrArray(d, sorted, 1, 0, 1, 1);  // inclusive range
  sCopyPtrArray(d, sorted, 0, 0, 2, 1);  // first > last copies nothing
  EXPECT_EQ(d, std::vector<void*>{p[1]});
  EXPECT_THROW(sCopyPtrArray(d, sorted, 1, 0, 1, 3), std::out_of_range);
  EXPECT_EQ(d.size(), 1u);  // nothing changed before the throw
  std::vector<CDblPoint> pts{CDblPoint(1, 1), CDblPoint(2, 2), CDblPoint(3, 3)};
  sCopyPoints(pts, pts, 1, 1);  // a source that is the destination
  ASSERT_EQ(pts.size(), 3u);
  EXPECT_EQ(pts[0].x, 3.0);
}

// The order of texts is transitive over mixed texts (it is antisymmetric by
// the text fuzz target).
TEST(Ordered, AccessTextOrderIsTransitive) {
  const std::vector<std::string> parts{"a", "A", "z", "Z", "-", "'", "1", "#", "\xa3\xc1", "\xb0\xa1", "\x81"};
  std::mt19937 rng(1);
  std::vector<std::string> texts(60);
  for (auto& t : texts)
    for (int n = static_cast<int>(rng() % 4); n-- > 0;) t += parts[rng() % parts.size()];
  for (const auto& a : texts)
    for (const auto& b : texts)
      for (const auto& c : texts)
        if (sCmpStrByAccess(a, b) <= 0 && sCmpStrByAccess(b, c) <= 0) {
          ASSERT_LE(sCmpStrByAccess(a, c), 0) << a << " / " << b << " / " << c;
        }
}
