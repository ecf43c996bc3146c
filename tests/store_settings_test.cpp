// Directories, the start-up settings file and the clearing of the store.
#include <gtest/gtest.h>
#include <mapcfg/store.h>

#include <filesystem>
#include <string>

#include "test_util.h"

namespace {

using mapcfg::sGetCfgPlatePath;
using mapcfg::sGetCfgTemplName;
using mapcfg_test::ReadAll;
using mapcfg_test::TempDir;

// A home directory with a Config folder; restores the home directory and
// both settings afterwards.
class SettingsTest : public ::testing::Test {
 protected:
  SettingsTest()
      : saved_home_(*mapcfg::sGetHomeDirPtr()), saved_templ_(*sGetCfgTemplName()), saved_plate_(*sGetCfgPlatePath()) {
    std::filesystem::create_directory(home_.File("Config"));
    *mapcfg::sGetHomeDirPtr() = home_.path();
  }
  ~SettingsTest() override {
    *mapcfg::sGetHomeDirPtr() = saved_home_;
    *sGetCfgTemplName() = saved_templ_;
    *sGetCfgPlatePath() = saved_plate_;
  }
  // Writes the settings file and reads it with names preset to "old".
  void Read(const std::string& bytes) {
    home_.Write("Config/Vantrope.cfg", bytes);
    *sGetCfgTemplName() = "old";
    *sGetCfgPlatePath() = "old";
    mapcfg::sReadConfig();
  }
  std::string SettingsBytes() const { return ReadAll(home_.File("Config/Vantrope.cfg")); }

  TempDir home_;

 private:
  std::string saved_home_, saved_templ_, saved_plate_;
};

TEST(StoreDirectories, SevenSeparateStringsThatStayPut) {
  mapcfg::String* dirs[] = {mapcfg::sGetHomeDirPtr(),     mapcfg::sGetConfigDirPtr(),   mapcfg::sGetWorkProjDirPtr(),
                            mapcfg::sGetOpenMapDirPtr(),  mapcfg::sGetSaveMapDirPtr(),  mapcfg::sGetOpenFileDirPtr(),
                            mapcfg::sGetSaveFileDirPtr()};
  for (size_t i = 0; i < 7; ++i)
    for (size_t j = 0; j < i; ++j) EXPECT_NE(dirs[i], dirs[j]);
  const std::string saved = *dirs[0];
  *dirs[0] = "C:\\Suite";
  EXPECT_EQ(mapcfg::sGetHomeDir(), "C:\\Suite");
  EXPECT_EQ(mapcfg::sGetHomeDirPtr(), dirs[0]);
  *dirs[0] = saved;
}

TEST_F(SettingsTest, ReadsBothKeysWithRemarksCaseAndBlanks) {
  Read("// settings of the suite\r\n"
       "Current_Cfg_Templ = Basin//old\r\n"
       "current_cfg_plate=D:\\Plates\\A\r\n");
  EXPECT_EQ(*sGetCfgTemplName(), "Basin");
  EXPECT_EQ(*sGetCfgPlatePath(), "D:\\Plates\\A");

  // LF only, blanks and tabs around the value, a remark after it, the last
  // line of a key wins, other keys and remark lines are ignored.
  Read("Current_Cfg_Templ = First\n"
       "//Current_Cfg_Plate = remarked\n"
       "Other = x\n"
       "CURRENT_CFG_TEMPL =\t  Second Templ \t// why\n");
  EXPECT_EQ(*sGetCfgTemplName(), "Second Templ");
  EXPECT_EQ(*sGetCfgPlatePath(), "old");

  // A value is cut at its first "/"; a key line without "=" empties it.
  Read("Current_Cfg_Templ = a/b\r\nCurrent_Cfg_Plate\r\n");
  EXPECT_EQ(*sGetCfgTemplName(), "a");
  EXPECT_EQ(*sGetCfgPlatePath(), "");
}

TEST_F(SettingsTest, ReadsAsTextOnEveryPlatform) {
  // A Ctrl-Z byte ends a text file; a NUL ends its line.
  Read("Current_Cfg_Templ = T\r\n\x1a" "Current_Cfg_Plate = P\r\n");
  EXPECT_EQ(*sGetCfgTemplName(), "T");
  EXPECT_EQ(*sGetCfgPlatePath(), "old");
  static const char kNul[] = "Current_Cfg_Templ = T1\0tail\nCurrent_Cfg_Plate = P1\r\n";
  Read(std::string(kNul, sizeof kNul - 1));
  EXPECT_EQ(*sGetCfgTemplName(), "T1");
  EXPECT_EQ(*sGetCfgPlatePath(), "P1");
  // A line longer than the 2048-byte buffer goes on as a line of its own.
  Read(std::string(2047 - 4, ' ') + "abc Current_Cfg_Plate = split\r\n");
  EXPECT_EQ(*sGetCfgPlatePath(), "split");
  // Bytes that are not text at all change nothing and do not stop the read.
  Read("\xff\xfe\x01\x02=\x80\r\r\r\nCurrent_Cfg_Plate = after\r\n");
  EXPECT_EQ(*sGetCfgPlatePath(), "after");
}

TEST_F(SettingsTest, MissingFileChangesNothing) {
  *sGetCfgTemplName() = "kept";
  mapcfg::sReadConfig();
  EXPECT_EQ(*sGetCfgTemplName(), "kept");
}

TEST_F(SettingsTest, WritesExactBytesAndReadsThemBack) {
  *sGetCfgTemplName() = "Basin A";
  *sGetCfgPlatePath() = "D:\\Plates\\Main";
  mapcfg::sWriteConfig();
  EXPECT_EQ(SettingsBytes(), "Current_Cfg_Templ = Basin A\r\nCurrent_Cfg_Plate = D:\\Plates\\Main\r\n");
  *sGetCfgTemplName() = "";
  *sGetCfgPlatePath() = "";
  mapcfg::sReadConfig();
  EXPECT_EQ(*sGetCfgTemplName(), "Basin A");
  EXPECT_EQ(*sGetCfgPlatePath(), "D:\\Plates\\Main");

  // Empty names are written as empty values; a longer file is truncated.
  *sGetCfgTemplName() = "";
  *sGetCfgPlatePath() = "";
  mapcfg::sWriteConfig();
  EXPECT_EQ(SettingsBytes(), "Current_Cfg_Templ = \r\nCurrent_Cfg_Plate = \r\n");
}

TEST_F(SettingsTest, UnwritableFileIsIgnored) {
  *mapcfg::sGetHomeDirPtr() = home_.File("no such folder");
  mapcfg::sWriteConfig();
  EXPECT_FALSE(std::filesystem::exists(home_.File("no such folder")));
}

}  // namespace
