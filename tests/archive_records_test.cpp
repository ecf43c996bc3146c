// Arrays behind a count, and where a listing stops.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "archive_test_util.h"

using namespace mapcfg;
using mapcfg_test::Bytes;
using mapcfg_test::Loaded;

TEST(ArchiveRecords, ArraysAreInterleavedAndAppended) {
  CFFArchive a;
  const StringArray first = {"x", "y"}, second = {"1", "2"};
  EXPECT_EQ(a.PutStringArray(first, &second), 1);
  CFFArchive b;
  b.PutLong(2);
  for (const char* text : {"x", "1", "y", "2"}) b.PutString(text);
  EXPECT_EQ(Bytes(a), Bytes(b));
  StringArray got = {"old"}, got2;
  EXPECT_EQ(a.GetStringArray(got, &got2), 1);
  EXPECT_EQ(got, (StringArray{"old", "x", "y"}));
  EXPECT_EQ(got2, second);

  CFFArchive w;  // ints and words as longs (5 bytes each), chars as bytes (2 each)
  EXPECT_EQ(w.PutIntArray({}), 1);
  w.PutDWordArray({0xFFFFFFFFu});
  w.PutCharArray({'a'});
  EXPECT_EQ(Bytes(w), std::string("\x03\0\0\0\0\x03\x01\0\0\0\x03\xff\xff\xff\xff\x03\x01\0\0\0\x01"
                                  "a",
                                  22));
  std::vector<int32_t> ints = {7};
  std::vector<char> chars;
  EXPECT_EQ(w.GetIntArray(ints), 1);  // a count of 0 appends nothing
  EXPECT_EQ(w.GetIntArray(ints), 1);
  EXPECT_EQ(w.GetCharArray(chars), 1);
  EXPECT_EQ(ints, (std::vector<int32_t>{7, -1}));
  EXPECT_EQ(chars, std::vector<char>{'a'});

  // A shorter second array throws after what comes before it was written.
  const std::vector<CDblPoint> points = {CDblPoint(1, 2), CDblPoint(3, 4)}, shorter = {CDblPoint(5, 6)};
  CFFArchive p;
  EXPECT_THROW(p.PutDblPointArray(points, &shorter), std::out_of_range);
  std::vector<CDblPoint> read, read2;
  p.Rewind();
  EXPECT_EQ(p.GetDblPointArray(read, &read2), 0);  // the stream ends in the second round
  EXPECT_EQ(read, (std::vector<CDblPoint>{CDblPoint(1, 2), CDblPoint(3, 4)}));
  EXPECT_EQ(read2, std::vector<CDblPoint>{CDblPoint(5, 6)});
  EXPECT_EQ(p.GetLastError(), sGetInfoStr(838));
}

// The listing itself is checked with the golden streams; sListArchive stops
// before a value it cannot read whole and says where and why.
TEST(ArchiveRecords, ListingStopsBeforeADamagedValue) {
  CFFArchive a;
  ArchiveListing listing = sListArchive(Loaded(a, std::string("\x03\x07\0\0\0\x01\x05\x09\x01\x02", 10)));
  EXPECT_EQ(listing.text, "TYPE_I4\r\n    7\r\nTYPE_I1\r\n    5\r\n");
  EXPECT_FALSE(listing.complete);
  EXPECT_EQ(listing.stop_offset, 7u);
  EXPECT_EQ(listing.stop_tag, 9);
  EXPECT_EQ(listing.reason, sGetInfoStr(840));
  listing = sListArchive(Loaded(a, "\x01\x05\x03\x01\x02"));  // a long cut short
  EXPECT_EQ(listing.text, "TYPE_I1\r\n    5\r\n");
  EXPECT_EQ(listing.stop_offset, 2u);
  EXPECT_EQ(listing.stop_tag, 3);
  EXPECT_EQ(listing.reason, sGetInfoStr(838));
  EXPECT_TRUE(sListArchive(Loaded(a, "\x01\x05")).complete);
}
