// Stream operators, arrays behind a count, and the TestData listing.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "archive_test_util.h"

using namespace mapcfg;

using mapcfg_test::Bytes;
using mapcfg_test::Loaded;


TEST(ArchiveRecords, StreamOperatorsMatchTheWriters) {
  CFFArchive ops, puts;
  ops << 'c' << static_cast<short>(-2) << 70000 << 1.5f << 2.25 << "text";
  puts.PutByte('c');
  puts.PutShort(-2);
  puts.PutLong(70000);
  puts.PutFloat(1.5f);
  puts.PutDouble(2.25);
  puts.PutString("text");
  EXPECT_EQ(Bytes(ops), Bytes(puts));
  char c = 0;
  short s = 0;
  int i = 0;
  float f = 0;
  double d = 0;
  String t;
  ops >> c >> s >> i >> f >> d >> t;
  EXPECT_EQ(ops.GetLastError(), "");
  EXPECT_EQ(c, 'c');
  EXPECT_EQ(s, -2);
  EXPECT_EQ(i, 70000);
  EXPECT_EQ(f, 1.5f);
  EXPECT_EQ(d, 2.25);
  EXPECT_EQ(t, "text");
}

TEST(ArchiveRecords, ArraysAreInterleavedAndAppended) {
  CFFArchive a;
  const StringArray first = {"x", "y"}, second = {"1", "2"};
  EXPECT_EQ(a.PutStringArray(first, &second), 1);
  CFFArchive b;
  b.PutLong(2);
  for (const char* s : {"x", "1", "y", "2"}) b.PutString(s);
  EXPECT_EQ(Bytes(a), Bytes(b));

  StringArray got = {"old"}, got2;
  EXPECT_EQ(a.GetStringArray(got, &got2), 1);
  EXPECT_EQ(got, (StringArray{"old", "x", "y"}));
  EXPECT_EQ(got2, second);

  CFFArchive e;
  EXPECT_EQ(e.PutIntArray({}), 1);
  EXPECT_EQ(Bytes(e), std::string("\x03\0\0\0\0", 5));
  std::vector<int32_t> none;
  EXPECT_EQ(e.GetIntArray(none), 1);
  EXPECT_TRUE(none.empty());

  CFFArchive w;  // one operation under two names; chars as bytes, 2 each
  w.PutIntArray({-1, 2}, nullptr, nullptr);
  CFFArchive w2;
  w2.PutDWordArray({0xFFFFFFFFu, 2});
  EXPECT_EQ(Bytes(w), Bytes(w2));
  w.Empty();
  w.PutCharArray({'a', 'b'}, nullptr, nullptr);
  EXPECT_EQ(Bytes(w), std::string("\x03\x02\0\0\0\x01"
                                  "a\x01"
                                  "b",
                                  9));

  const std::vector<CDblPoint> points = {CDblPoint(1, 2), CDblPoint(3, 4)}, shorter = {CDblPoint(5, 6)};
  CFFArchive p;
  EXPECT_THROW(p.PutDblPointArray(points, &shorter), std::out_of_range);
  std::vector<CDblPoint> read, read2;
  p.Rewind();
  EXPECT_EQ(p.GetDblPointArray(read, &read2), 0);  // the stream ends in the second round
  ASSERT_EQ(read.size(), 2u);
  EXPECT_TRUE(read[1] == CDblPoint(3, 4));
  ASSERT_EQ(read2.size(), 1u);
  EXPECT_TRUE(read2[0] == CDblPoint(5, 6));
  EXPECT_EQ(p.GetLastError(), sGetInfoStr(838));
}

TEST(ArchiveRecords, PointsAsTwoDoubles) {
  CFFArchive a;
  CDblPoint p(-7, -7);
  EXPECT_EQ(Loaded(a, std::string("\x05\0\0\0\0\0\0\xf8\x3f\x05\0", 11)).GetDblPoint(&p), 0);
  EXPECT_EQ(p.x, 1.5);  // x stays stored when y fails
  EXPECT_EQ(a.GetLastError(), sGetInfoStr(838));
  CSize size(-7, -7);
  a.Empty();
  a << CRect(1, 2, 3, 4);
  a.Rewind();
  a >> size;  // consumes the rectangle's block, keeps the size
  EXPECT_EQ(size, CSize(-7, -7));
  EXPECT_EQ(a.GetLastError(), "");
  EXPECT_EQ(a.ReadUnit(nullptr, 1), 0);
}

TEST(ArchiveRecords, TestDataListsEveryTag) {
  CFFArchive a;
  EXPECT_EQ(a.TestData(), "");
  EXPECT_EQ(a.GetLastError(), "");
  a.PutByte(200);
  a.PutShort(-2);
  a.PutLong(7);
  a.PutFloat(0.5f);
  a.PutDouble(-2.25);
  a.PutString("ab");
  const uint8_t bytes[2] = {1, 255};
  const int16_t shorts[1] = {-3};
  const int32_t longs[2] = {8, -9};
  const float floats[1] = {1.5f};
  const double doubles[2] = {0.125, 1e6};
  a.PutByte(bytes, 2);
  a.PutShort(shorts, 1);
  a.PutLong(longs, 2);
  a.PutFloat(floats, 1);
  a.PutDouble(doubles, 2);
  a.PutLong(longs, 0);
  a.Rewind();
  EXPECT_EQ(a.TestData(),
            "TYPE_I1\r\n    200\r\nTYPE_I2\r\n    -2\r\nTYPE_I4\r\n    7\r\nTYPE_F4\r\n    0.500000\r\n"
            "TYPE_F8\r\n    -2.250000\r\nTYPE_STRING\r\n    ab\r\nTYPE_I1_ARRAY\r\n    1\r\n    255\r\n"
            "TYPE_I2_ARRAY\r\n    -3\r\nTYPE_I4_ARRAY\r\n    8\r\n    -9\r\nTYPE_F4_ARRAY\r\n    1.500000\r\n"
            "TYPE_F8_ARRAY\r\n    0.125000\r\n    1000000.000000\r\nTYPE_I4_ARRAY\r\n");
  EXPECT_EQ(a.GetLastError(), "");
  EXPECT_EQ(a.TestData(), "");  // consumed: nothing left without Rewind
}

TEST(ArchiveRecords, TestDataStopsAtAnUnknownTagAndReadsOnAfterACutValue) {
  CFFArchive a;
  const std::string stream("\x03\x07\0\0\0\x01\x05\x09\x01\x02", 10);
  EXPECT_EQ(Loaded(a, stream).TestData(), "TYPE_I4\r\n    7\r\nTYPE_I1\r\n    5\r\n");
  EXPECT_EQ(a.GetLastError(), sGetInfoStr(840));
  ArchiveListing listing = sListArchive(Loaded(a, stream));
  EXPECT_FALSE(listing.complete);
  EXPECT_EQ(listing.stop_offset, 7u);
  EXPECT_EQ(listing.stop_tag, 9);
  EXPECT_EQ(listing.reason, sGetInfoStr(840));

  // A long cut short: TestData lists it as 0 and reads on from the byte
  // after its tag; sListArchive stops before it.
  const std::string cut("\x01\x05\x03\x01\x02", 5);
  EXPECT_EQ(Loaded(a, cut).TestData(), "TYPE_I1\r\n    5\r\nTYPE_I4\r\n    0\r\nTYPE_I1\r\n    2\r\n");
  EXPECT_EQ(a.GetLastError(), "");
  listing = sListArchive(Loaded(a, cut));
  EXPECT_EQ(listing.text, "TYPE_I1\r\n    5\r\n");
  EXPECT_EQ(listing.stop_offset, 2u);
  EXPECT_EQ(listing.reason, sGetInfoStr(838));
  EXPECT_TRUE(sListArchive(Loaded(a, "\x01\x05")).complete);
}
