// Splitting paths and the file-system helpers.
#include <gtest/gtest.h>
#include <mapcfg/utils.h>

#include <algorithm>

#include "test_util.h"

using namespace mapcfg;

TEST(Paths, Splitting) {
  EXPECT_EQ(sGetDirFromPath("C:\\a\\b.cfg"), "C:\\a");
  EXPECT_EQ(sGetDirFromPath("C:b.cfg"), "C:");
  EXPECT_EQ(sGetDirFromPath("b.cfg"), "");
  EXPECT_EQ(sGetDirFromPath("/home/x/b.cfg"), "/home/x");
  EXPECT_EQ(sGetFileFromPath("C:\\a\\b.cfg"), "b.cfg");
  EXPECT_EQ(sGetFileFromPath("C:b.cfg"), "b.cfg");
  EXPECT_EQ(sGetFileFromPath("b.cfg"), "b.cfg");
  EXPECT_EQ(sGetNameFromFile("a.b.ctp"), "a.b");
  EXPECT_EQ(sGetNameFromFile("noext"), "noext");
  EXPECT_EQ(sGetNameFromFile("C:\\old.2\\readme"), "C:\\old");
  EXPECT_EQ(sGetExtFromFile("a.b.ctp"), ".ctp");
  EXPECT_EQ(sGetExtFromFile("noext"), "");
#if defined(_WIN32)
  EXPECT_EQ(sToNativePath("a\\b\\c.cfg"), "a\\b\\c.cfg");  // Windows takes "\" as it is
#else
  EXPECT_EQ(sToNativePath("a\\b\\c.cfg"), "a/b/c.cfg");
#endif
}

TEST(Paths, CreateTestAndList) {
  mapcfg_test::TempDir dir;
  const std::string base = dir.path();
  EXPECT_EQ(sCreateFile(base.c_str(), nullptr, "Maps"), 1);
  EXPECT_EQ(sCreateFile(base.c_str(), nullptr, "Maps"), 0);  // the level exists already
  EXPECT_EQ(sCreateFile(base.c_str(), "t.ctp", "New", "Deeper"), 1);
  EXPECT_EQ(sIsFileExist((base + "\\New\\Deeper\\t.ctp").c_str()), 1);
  EXPECT_EQ(sIsDirExist((base + "\\New\\Deeper").c_str()), 1);
  EXPECT_EQ(sIsDirExist((base + "\\New\\Deeper\\t.ctp").c_str()), 0);
  EXPECT_EQ(sIsFileExist((base + "\\New").c_str()), 0);
  EXPECT_EQ(sIsFileExist((base + "\\none").c_str()), 0);

  dir.Write("a.ctp", "");
  dir.Write("B.CTP", "");
  ASSERT_EQ(sCreateFile(base.c_str(), nullptr, "dir.ctp"), 1);
  StringArray names;
  EXPECT_EQ(sGetFiles((base + "\\*.ctp").c_str(), &names), 2);  // the directory matches, uncounted
  EXPECT_EQ(names, (StringArray{"a.ctp", "B.CTP"}));
  EXPECT_EQ(sGetFiles((base + "\\dir.*").c_str(), nullptr), 0);
  EXPECT_EQ(sGetFiles((base + "\\*.none").c_str(), &names), -1);
  EXPECT_EQ(sIsFileExist((base + "\\?.ctp").c_str()), 1);
}
