// Library paths on the file system: the GBK and UTF-8 spellings of one
// name, and what only Windows has (drives, names without case, LoadLibrary).
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <filesystem>
#include <fstream>

#include "test_util.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace {

namespace fs = std::filesystem;
using namespace mapcfg;

// 淺層 ("shallow layer"): in GBK the first character is 0x9C 0x5C, whose
// second byte is the byte of "\".
const std::string kShallowUtf8 = "\xe6\xb7\xba\xe5\xb1\xa4";
const std::string kShallowGbk = "\x9c\x5c\x8c\xd3";
const std::string kShallowFirstUtf8 = kShallowUtf8.substr(0, 3), kShallowFirstGbk = kShallowGbk.substr(0, 2);

// The folder `name` below `base` as the file system holds it: the bytes
// themselves on POSIX; on Windows, where names are UTF-16, that of the text.
fs::path OnDisk(const std::string& base, const std::string& name, bool gbk) {
#if defined(_WIN32)
  return fs::path(base) / fs::u8path(gbk ? mapcfg_test::GbkToUtf8(name) : name);
#else
  (void)gbk;
  return fs::path(base) / name;
#endif
}

void WriteFile(const fs::path& p, const std::string& bytes) { std::ofstream(p, std::ios::binary) << bytes; }

std::string FirstLine(const fs::path& p) {
  std::string line;
  std::ifstream in(p, std::ios::binary);
  std::getline(in, line);
  return line;
}

// A folder whose name is on disk in one encoding and named by the script,
// the home directory and the listing in the other (or the same): the
// include is read, the settings file below the home directory is read and
// written in place, and the folder is listed.
TEST(PlatformPaths, GbkAndUtf8SpellingsOfOneFolder) {
  struct Row {
    bool disk_gbk, given_gbk;
  };
  for (const Row& row : {Row{false, true}, Row{true, false}, Row{false, false}, Row{true, true}}) {
    SCOPED_TRACE(std::string("on disk ") + (row.disk_gbk ? "GBK" : "UTF-8") + ", named in " +
                 (row.given_gbk ? "GBK" : "UTF-8"));
    mapcfg_test::StoreGuard guard;
    mapcfg_test::TempDir dir;
    const fs::path folder = OnDisk(dir.path(), row.disk_gbk ? kShallowGbk : kShallowUtf8, row.disk_gbk);
    ASSERT_TRUE(fs::create_directories(folder / "Config"));
    WriteFile(folder / "zones.cfg", "Config: Zones\r\nBegin\r\nTop = 1200\r\nEnd\r\n");
    WriteFile(folder / "Config" / "Vantrope.cfg", "Current_Cfg_Templ = Basin\r\n");
    const std::string given = dir.path() + "\\" + (row.given_gbk ? kShallowGbk : kShallowUtf8);

    const std::string main = dir.Write("main.cfg", "#Include <" + std::string(row.given_gbk ? kShallowGbk : kShallowUtf8) +
                                                       "\\zones.cfg>\r\n");
    CCfgScript script;
    script.Open(main.c_str(), 0);
    EXPECT_EQ(script.GetKeyVal("Zones", "Top"), "1200");

    EXPECT_EQ(sIsDirExist(given.c_str()), 1);
    // A folder whose name ends in the 0x5C of a GBK character.
    ASSERT_TRUE(fs::create_directory(OnDisk(dir.path(), row.disk_gbk ? kShallowFirstGbk : kShallowFirstUtf8, row.disk_gbk)));
    const std::string first = dir.path() + "\\" + (row.given_gbk ? kShallowFirstGbk : kShallowFirstUtf8);
    EXPECT_EQ(sIsDirExist(first.c_str()), 1);
    EXPECT_EQ(sIsFileExist((given + "\\zones.cfg").c_str()), 1);
    StringArray names;
    EXPECT_EQ(sGetFiles((given + "\\*.cfg").c_str(), &names), 1);
    EXPECT_EQ(names, StringArray{"zones.cfg"});

    *sGetHomeDirPtr() = given;
    sReadConfig();
    EXPECT_EQ(*sGetCfgTemplName(), "Basin");
    *sGetCfgTemplName() = "Shelf";
    sWriteConfig();
    EXPECT_EQ(FirstLine(folder / "Config" / "Vantrope.cfg"), "Current_Cfg_Templ = Shelf\r");
    // Written where it was read, not into a second folder of the other name.
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator()), 3);
  }
}

#if defined(_WIN32)
#define MAPCFG_WINDOWS_ONLY()
#else
#define MAPCFG_WINDOWS_ONLY() GTEST_SKIP() << "drive letters, names without case and LoadLibrary are Windows's"
#endif

// "Z:b.cfg" is b.cfg in the current folder of drive Z:.
TEST(PlatformPaths, WindowsDriveRelativePath) {
  MAPCFG_WINDOWS_ONLY();
  mapcfg_test::TempDir dir;
  dir.Write("b.cfg", "Config: B\r\nBegin\r\nK = v\r\nEnd\r\n");
  const fs::path saved = fs::current_path();
  fs::current_path(dir.path());
  const std::string drive_relative = fs::current_path().root_name().string() + "b.cfg";
  EXPECT_EQ(sIsFileExist(drive_relative.c_str()), 1) << drive_relative;
  CCfgScript script;
  script.Open(drive_relative.c_str(), 0);
  EXPECT_EQ(script.GetKeyVal("B", "K"), "v");
  fs::current_path(saved);
}

// Windows names have no case: a name in other case finds the file, and so
// does a wildcard.
TEST(PlatformPaths, WindowsNamesWithoutCase) {
  MAPCFG_WINDOWS_ONLY();
  mapcfg_test::TempDir dir;
  dir.Write("a.cfg", "");
  StringArray names;
  EXPECT_EQ(sIsFileExist((dir.path() + "\\A.CFG").c_str()), 1);
  EXPECT_EQ(sGetFiles((dir.path() + "\\A.CFG").c_str(), &names), 1);
  EXPECT_EQ(sGetFiles((dir.path() + "\\*.CFG").c_str(), &names), 1);
  EXPECT_EQ(names, (StringArray{"A.CFG", "a.cfg"}));
}

// An extension library named with "\" separators, as Windows scripts do.
TEST(PlatformPaths, WindowsLoadLibraryWithBackslashes) {
  MAPCFG_WINDOWS_ONLY();
  mapcfg_test::TempDir dir;
  fs::copy_file(MAPCFG_RES_EN, fs::path(dir.path()) / "Well Tools.dll");
  std::string path = dir.path() + "/Well Tools.dll";
  for (char& c : path)
    if (c == '/') c = '\\';
  void* module = sLoadDll(path.c_str());
  ASSERT_NE(module, nullptr) << path;
#if defined(_WIN32)
  EXPECT_NE(GetProcAddress(static_cast<HMODULE>(module), "dllGetResStrPtr"), nullptr);
#endif
}

}  // namespace
