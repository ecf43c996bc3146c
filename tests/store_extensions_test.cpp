// Extension and menu lists, the module cache, extra functions and the
// language resource libraries.
#include <gtest/gtest.h>
#include <mapcfg/store.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "test_util.h"

namespace {

using mapcfg::CCfgScript;
using mapcfg::StringArray;
using mapcfg_test::TempDir;

// Restores the language byte and empties the four extension lists.
struct StoreGuard {
  char lang = *mapcfg::sGetCfgLang();
  ~StoreGuard() {
    *mapcfg::sGetCfgLang() = lang;
    for (StringArray* list : {mapcfg::sCfgGetLibNamesPtr(), mapcfg::sCfgGetLibDllsPtr(), mapcfg::sCfgGetMenuNamesPtr(),
                              mapcfg::sCfgGetMenuFunsPtr()})
      list->clear();
  }
};

TEST(StoreExtensions, LibraryAndMenuBlocksInEitherLanguage) {
  StoreGuard guard;
  TempDir dir;
  CCfgScript script;
  script.Open(dir.Write("ext.cfg",
                        "Config: ExpandDLL\nBegin\nWell tools = WellTools.dll\nMaps = Maps.dll; extra\nEnd\n"
                        "Config: ApplicationMenu\nBegin\nEditor = Edit.exe\nEnd\n"
                        // 扩展库 and 外部工具 in GBK
                        "Config: \xc0\xa9\xd5\xb9\xbf\xe2\nBegin\nZh tool = Zh.dll\nEnd\n"
                        "Config: \xcd\xe2\xb2\xbf\xb9\xa4\xbe\xdf\nBegin\nZh menu = Zh.exe\nEnd\n")
                  .c_str(),
              0);
  *mapcfg::sGetCfgLang() = 0;
  mapcfg::sCfgReadLibDlls(script);
  mapcfg::sCfgReadMenuFuns(script);
  EXPECT_EQ(*mapcfg::sCfgGetLibNamesPtr(), (StringArray{"Well tools", "Maps"}));
  EXPECT_EQ(*mapcfg::sCfgGetLibDllsPtr(), (StringArray{"WellTools.dll", "Maps.dll; extra"}));
  EXPECT_EQ(*mapcfg::sCfgGetMenuNamesPtr(), (StringArray{"Editor"}));
  EXPECT_EQ(*mapcfg::sCfgGetMenuFunsPtr(), (StringArray{"Edit.exe"}));

  // Reading appends: the Chinese blocks go after the English ones, and the
  // same block read twice is listed twice.
  *mapcfg::sGetCfgLang() = 1;
  mapcfg::sCfgReadLibDlls(script);
  mapcfg::sCfgReadMenuFuns(script);
  mapcfg::sCfgReadMenuFuns(script);
  EXPECT_EQ(*mapcfg::sCfgGetLibNamesPtr(), (StringArray{"Well tools", "Maps", "Zh tool"}));
  EXPECT_EQ(*mapcfg::sCfgGetLibDllsPtr(), (StringArray{"WellTools.dll", "Maps.dll; extra", "Zh.dll"}));
  EXPECT_EQ(*mapcfg::sCfgGetMenuNamesPtr(), (StringArray{"Editor", "Zh menu", "Zh menu"}));
  EXPECT_EQ(*mapcfg::sCfgGetMenuFunsPtr(), (StringArray{"Edit.exe", "Zh.exe", "Zh.exe"}));

  // A script without the blocks adds nothing.
  CCfgScript empty;
  mapcfg::sCfgReadLibDlls(empty);
  EXPECT_EQ(mapcfg::sCfgGetLibNamesPtr()->size(), 3u);
}

std::string FunA(void*) { return "A"; }
std::string FunB(void*) { return "B"; }
std::string FunC(void* arg) { return *static_cast<std::string*>(arg) + "C"; }

TEST(StoreExtensions, ExtraFunctionsOrderedWithoutCase) {
  // Only this test registers extra functions.
  ASSERT_EQ(mapcfg::sGetExtraFunCount(), 0);
  EXPECT_EQ(mapcfg::sAddExtraFun("b", FunB), 0);
  EXPECT_EQ(mapcfg::sAddExtraFun("a", FunA), 0);
  EXPECT_EQ(mapcfg::sAddExtraFun("c", FunC), 2);
  EXPECT_EQ(mapcfg::sAddExtraFun("Calc", FunA), 3);
  EXPECT_EQ(mapcfg::sAddExtraFun("calc", FunB), -1);
  EXPECT_EQ(mapcfg::sAddExtraFun("B", FunA), -1);
  EXPECT_EQ(mapcfg::sAddExtraFun(nullptr, FunA), -1);
  // Case folds to lower case before comparing: "_x" sorts before "a".
  EXPECT_EQ(mapcfg::sAddExtraFun("_x", FunA), 0);
  ASSERT_EQ(mapcfg::sGetExtraFunCount(), 5);
  const StringArray names = {"_x", "a", "b", "c", "Calc"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(mapcfg::sGetExtraFunName(i), names[static_cast<size_t>(i)]);
  EXPECT_THROW(mapcfg::sGetExtraFunName(5), std::out_of_range);
  EXPECT_THROW(mapcfg::sGetExtraFunName(-1), std::out_of_range);

  EXPECT_EQ(mapcfg::sGetExtraFunAddr("CALC"), &FunA);  // the first registration stays
  EXPECT_EQ(mapcfg::sGetExtraFunAddr("B"), &FunB);
  EXPECT_EQ(mapcfg::sGetExtraFunAddr("d"), nullptr);
  EXPECT_EQ(mapcfg::sGetExtraFunAddr(nullptr), nullptr);
  std::string arg = "x";
  EXPECT_EQ(mapcfg::sGetExtraFunAddr("C")(&arg), "xC");
}

TEST(StoreExtensions, ModulesLoadOnceAndFailuresAreRemembered) {
  TempDir dir;
  const std::string missing = dir.File("later.so");
  EXPECT_EQ(mapcfg::sLoadDll(missing.c_str()), nullptr);
  // The library appears afterwards, but the failure is kept for the process.
  std::filesystem::copy_file(MAPCFG_RES_EN, missing);
  EXPECT_EQ(mapcfg::sLoadDll(missing.c_str()), nullptr);

  const std::string path = dir.File("res_copy.so");
  std::filesystem::copy_file(MAPCFG_RES_EN, path);
  void* module = mapcfg::sLoadDll(path.c_str());
  ASSERT_NE(module, nullptr);
  EXPECT_EQ(mapcfg::sLoadDll(path.c_str()), module);
  // The cache compares names without case, even on a file system that does
  // not, so the same name in other case gives the same module.
  std::string upper = path;
  std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
  });
  EXPECT_EQ(mapcfg::sLoadDll(upper.c_str()), module);
  EXPECT_EQ(mapcfg::sLoadDll(nullptr), nullptr);
}

// Loads a resource library from the home directory and restores the store's
// resource state afterwards.
class ResourceTest : public ::testing::Test {
 protected:
  ~ResourceTest() override {
    *mapcfg::sGetHomeDirPtr() = saved_home_;
    *mapcfg::sDllGetResStrPtr() = saved_source_;
  }
  void Load(const std::string& built) {
    const std::filesystem::path p(built);
    *mapcfg::sGetHomeDirPtr() = p.parent_path().string();
    EXPECT_EQ(mapcfg::sLoadResoueceDLL(p.filename().string().c_str()), "");
  }

 private:
  std::string saved_home_ = *mapcfg::sGetHomeDirPtr();
  mapcfg::ResStrFun saved_source_ = *mapcfg::sDllGetResStrPtr();
};

TEST_F(ResourceTest, EnglishAndChineseLibrariesServeInformationTexts) {
  const std::string builtin_838 = mapcfg::sGetInfoStr(838);
  Load(MAPCFG_RES_EN);
  void* english = mapcfg::sGetResourceModule();
  ASSERT_NE(english, nullptr);
  ASSERT_NE(*mapcfg::sDllGetResStrPtr(), nullptr);
  // The English library holds the built-in texts.
  for (int i : {539, 838, 839, 840, 1114, 1115, 1116, 1117, 1251}) EXPECT_FALSE(mapcfg::sGetInfoStr(i).empty()) << i;
  EXPECT_EQ(mapcfg::sGetInfoStr(838), builtin_838);
  EXPECT_EQ(mapcfg::sGetInfoStr(1115), "m");
  EXPECT_EQ(mapcfg::sGetInfoStr(12345), "");

  Load(MAPCFG_RES_ZH);
  EXPECT_NE(mapcfg::sGetResourceModule(), english);
  EXPECT_EQ(mapcfg::sGetInfoStr(1115), "\xc3\xd7");            // 米
  EXPECT_EQ(mapcfg::sGetInfoStr(1251), "\xcb\xce\xcc\xe5");    // 宋体
  for (int i : {539, 838, 839, 840, 1114, 1116, 1117}) EXPECT_NE(mapcfg::sGetInfoStr(i), "") << i;

  // Loading the English one again reuses its module.
  Load(MAPCFG_RES_EN);
  EXPECT_EQ(mapcfg::sGetResourceModule(), english);
  EXPECT_EQ(mapcfg::sGetInfoStr(1115), "m");
}

TEST_F(ResourceTest, FailedLoadChangesNothing) {
  const mapcfg::ResStrFun source = *mapcfg::sDllGetResStrPtr();
  void* module = mapcfg::sGetResourceModule();
  TempDir home;
  *mapcfg::sGetHomeDirPtr() = home.path();
  EXPECT_EQ(mapcfg::sLoadResoueceDLL("absent_res.so"), "");
  EXPECT_EQ(mapcfg::sLoadResoueceDLL(nullptr), "");
  EXPECT_EQ(*mapcfg::sDllGetResStrPtr(), source);
  EXPECT_EQ(mapcfg::sGetResourceModule(), module);
  // The name the host stores is its own business.
  *mapcfg::sCfgGet_dllResourcePtr() = "absent_res.so";
  EXPECT_EQ(*mapcfg::sCfgGet_dllResourcePtr(), "absent_res.so");
  mapcfg::sCfgGet_dllResourcePtr()->clear();
}

}  // namespace
