// The archive's memory block, counters, errors, files and fixed buffers.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <stdexcept>
#include <string>

#include "archive_test_util.h"
#include "test_util.h"

using namespace mapcfg;
using mapcfg_test::Bytes;

TEST(ArchiveBuffer, ReadsAreBoundedBySizeAndClearTheFlag) {
  CFFArchive a;
  uint32_t n = 7;
  EXPECT_EQ(a.ToData(n), nullptr);
  EXPECT_EQ(n, 0u);
  a.ReadUnit(nullptr, 1);
  a.WriteUnit("abcd", 4);  // clears the flag
  EXPECT_EQ(a.GetLastError(), "");
  a.Rewind();
  char buf[5] = {};
  EXPECT_EQ(a.ReadUnit(buf, 5), 0);  // nothing read, position kept
  EXPECT_EQ(a.GetLastError(), sGetInfoStr(838));
  EXPECT_EQ(a.ReadUnit(buf, 4), 1);
  EXPECT_EQ(std::string(buf), "abcd");
  EXPECT_EQ(a.GetLastError(), "");
  EXPECT_EQ(a.ReadUnit(buf, 1), 0);
}

// Reads and writes share one position; the block is never shrunk, so the
// size may pass its physical length (short reads) or fall below it (ToFile
// writes the stale tail, ToData only the size). Then the failures of files.
TEST(ArchiveBuffer, SharedPositionPhysicalLengthAndFiles) {
  mapcfg_test::TempDir dir;
  CFFArchive a;
  ASSERT_EQ(a.FromData("\x01\x02\x03", 3), 1);
  a.PutByte(9);  // overwrites the first two bytes, size 5, block 3 bytes
  EXPECT_EQ(a.GetCount(), 5u);
  uint32_t n = 1;
  EXPECT_EQ(a.ToData(n), nullptr);
  EXPECT_EQ(a.GetLastError(), sGetInfoStr(839));
  char buf[5] = {};
  EXPECT_EQ(a.ReadUnit(buf, 5), 0);
  EXPECT_EQ(std::string(buf, 3), "\x01\x09\x03");
  EXPECT_EQ(a.GetLastError(), sGetInfoStr(839));

  a.Empty();
  a.PutString("a longer stream");
  a.Empty();
  a.PutLong(0x01020304);
  ASSERT_EQ(a.ToFile(dir.File("tail.bin")), 1);
  EXPECT_EQ(mapcfg_test::ReadAll(dir.File("tail.bin")),
            "\x03\x04\x03\x02\x01"
            "a longer stream");
  ASSERT_EQ(a.FromData("\x05", 1), 1);
  EXPECT_EQ(Bytes(a), "\x05");

  a.PutLong(1);  // files that cannot be read or written
  EXPECT_EQ(a.FromFile(dir.Write("empty.bin", "")), 1);
  EXPECT_EQ(a.GetCount(), 0u);
  a.PutLong(1);
  EXPECT_EQ(a.FromFile(dir.File("missing.bin")), 0);
  EXPECT_NE(a.GetLastError(), "");
  EXPECT_EQ(a.GetCount(), 0u);
  EXPECT_EQ(a.ToFile(dir.File("no/such/dir.bin")), 0);
  EXPECT_NE(a.GetLastError(), "");
}

TEST(ArchiveBuffer, LibraryFailuresAndTheFourGigabyteLimit) {
  CFFArchive a;
  const char byte = 'x';
  a.WriteUnit(&byte, 1);
  a.WriteUnit(&byte, 0xFFFFFFFFu);  // would pass 4 GiB: nothing is read or written
  EXPECT_EQ(a.GetLastError(), sGetInfoStr(539));
  EXPECT_EQ(a.GetCount(), 1u);
  const double d = 1;
  a.PutDouble(&d, 0x20000000u);  // 4 GiB of payload: fails, and the writer clears the flag
  EXPECT_EQ(a.GetLastError(), "");
  EXPECT_EQ(a.GetCount(), 1u);

  a.GetError(nullptr);
  EXPECT_EQ(a.GetLastError(), sGetInfoStr(539));
  const std::runtime_error failure("disk full");
  a.GetError(&failure);
  EXPECT_EQ(a.GetLastError(), "disk full");
}

// GetBinary takes the smaller count; GetDWord zero-fills its capacity and
// never writes past it; a failed array read keeps the caller's block.
TEST(ArchiveBuffer, FixedBufferReaders) {
  CFFArchive a;
  const int32_t longs[3] = {5, -6, 7};
  a.PutLong(longs, 3);
  a.PutLong(longs, 3);
  a.PutBinary("abcdef", 6);
  a.PutByte(1);
  a.Rewind();
  uint32_t words[6] = {9, 9, 9, 9, 9, 9};
  EXPECT_EQ(a.GetDWord(words, 2), 3u);
  EXPECT_EQ(std::vector<uint32_t>(words, words + 3), (std::vector<uint32_t>{5, 0xFFFFFFFAu, 9}));
  EXPECT_EQ(a.GetDWord(words, 5), 5u);
  EXPECT_EQ(std::vector<uint32_t>(words, words + 6), (std::vector<uint32_t>{5, 0xFFFFFFFAu, 7, 0, 0, 9}));
  char text[4] = {};
  EXPECT_EQ(a.GetBinary(text, 3), 3u);
  EXPECT_EQ(std::string(text), "abc");
  std::unique_ptr<int32_t[]> block;
  EXPECT_EQ(a.GetLong(block), 1u);  // a scalar as a block of one, with a spare 0
  EXPECT_EQ(block[1], 0);
  int32_t* const kept = block.get();
  EXPECT_EQ(a.GetLong(block), 0u);  // at the end: fails, the block stays
  EXPECT_EQ(block.get(), kept);
  EXPECT_EQ(a.GetDWord(words, 2), 0u);
  EXPECT_EQ(words[0], 0u);
  EXPECT_EQ(a.GetBinary(text, 3), 0u);
}
