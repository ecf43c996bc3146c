// The whole configuration: every reader on one script, and the pack that
// holds the whole store and every map kind.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <string>

#include "archive_test_util.h"
#include "store_test_util.h"
#include "test_util.h"

using namespace mapcfg;

namespace {

using mapcfg_test::EmptyStore;
using mapcfg_test::Lines;

// The example configuration in `lang`, read by every reader.
void ReadExample(char lang) {
  *sGetCfgLang() = lang;
  EmptyStore();
  CCfgScript script;
  script.Open(lang ? MAPCFG_EXAMPLES "/zh/field.cfg" : MAPCFG_EXAMPLES "/en/field.cfg", 0);
  sCfgReadAll(script);
  ASSERT_EQ(sCfgReadCTPFiles(MAPCFG_EXAMPLES "/stat"), "");
  ASSERT_FALSE(sCfgGetMapStatPtr()->empty());
}

std::string Pack() {
  CFFArchive a;
  EXPECT_EQ(sCfgWritePack(a), "");
  return mapcfg_test::Bytes(a);
}

// Fields that scripts set but no stream holds.
bool ScriptOnly(const String& name) {
  return name.find("PerforationPlug") != String::npos || name.find("PerforationUnplug") != String::npos;
}

// Both example configurations, packed, read back into an empty store and
// packed again: the same fields, the same bytes, the language kept.
TEST(Configuration, PackReadsBackToTheSameConfiguration) {
  mapcfg_test::StoreGuard guard;
  for (char lang : {0, 1}) {
    ReadExample(lang);
    ASSERT_GT(sDescribeAll().size(), 1000u);
    const std::string read = Lines(sDescribeAll(), ScriptOnly);
    const std::string packed = Pack();

    *sGetCfgLang() = 0;
    EmptyStore();
    CFFArchive in;
    char packed_lang = -1;
    ASSERT_EQ(sCfgReadPack(mapcfg_test::Loaded(in, packed), &packed_lang), "");
    EXPECT_EQ(packed_lang, lang);
    *sGetCfgLang() = packed_lang;
    EXPECT_EQ(Lines(sDescribeAll(), ScriptOnly), read);
    EXPECT_EQ(Pack(), packed);
  }
}

// What is not a pack, or not a whole one, stops with a reason; sections
// before the damage keep what they read.
TEST(Configuration, DamagedPacksStopWithAReason) {
  mapcfg_test::StoreGuard guard;
  ReadExample(0);
  const std::string packed = Pack();
  const auto pack_with = [](const char* magic, uint32_t version, const char* section) {
    CFFArchive a;
    a.PutString(magic);
    a.PutLong(static_cast<int32_t>(version));
    a.PutByte(0);
    a.PutLong(1);
    a.PutString(section);
    return mapcfg_test::Bytes(a);
  };
  const struct {
    const char* what;
    std::string bytes;
    String error;
  } cases[] = {
      {"empty", "", "not a configuration pack"},
      {"a whole-store archive", [] {
         CFFArchive a;
         sCfgWriteMain(a);
         return mapcfg_test::Bytes(a);
       }(),
       "not a configuration pack"},
      {"another magic", pack_with("mapcfg configuration", kPackLayoutVersion, "store"), "not a configuration pack"},
      {"a newer layout", pack_with("mapcfg configuration pack", kPackLayoutVersion + 1, "store"),
       "a pack of a newer layout than this library reads"},
      {"an unknown section", pack_with("mapcfg configuration pack", kPackLayoutVersion, "plates"),
       "unknown section \"plates\" in the pack"},
      {"cut in the header", packed.substr(0, 30), sGetInfoStr(838)},
      {"cut in the store", packed.substr(0, packed.size() / 3), sGetInfoStr(838)},
      {"cut before the last byte", packed.substr(0, packed.size() - 1), sGetInfoStr(838)},
  };
  for (const auto& c : cases) {
    EmptyStore();
    CFFArchive in;
    EXPECT_EQ(sCfgReadPack(mapcfg_test::Loaded(in, c.bytes)), c.error) << c.what;
  }
  // The store section came before the cut: its tables are back.
  EmptyStore();
  CFFArchive in;
  sCfgReadPack(mapcfg_test::Loaded(in, packed.substr(0, packed.size() - 1)));
  EXPECT_FALSE(sCfgGetLithCodesPtr()->empty());
}

// The extension and menu lists are the host's, not the plate's.
bool HostList(const String& name) {
  for (const char* list : {"store.libNames[", "store.libDlls[", "store.menuNames[", "store.menuFuns["})
    if (name.compare(0, std::char_traits<char>::length(list), list) == 0) return true;
  return false;
}

FieldTexts PlateFields() {
  FieldTexts fields;
  for (FieldText& f : sDescribeAll())
    if (!HostList(f.name)) fields.push_back(std::move(f));
  return fields;
}

// sCfgClearPlate after every reader has filled its table gives back the
// empty store, field for field; reading the same scripts again gives the
// same tables, so nothing of the first reading survives a clear.
TEST(Configuration, ClearPlateEmptiesEveryTable) {
  mapcfg_test::StoreGuard guard;
  for (char lang : {0, 1}) {
    *sGetCfgLang() = lang;
    EmptyStore();
    const FieldTexts empty = PlateFields();
    ReadExample(lang);
    const std::string full = Lines(sDescribeAll());
    ASSERT_GT(sDescribeAll().size(), empty.size() + 500);
    sCfgClearPlate();
    EXPECT_EQ(Lines(PlateFields()), Lines(empty));
    ReadExample(lang);
    EXPECT_EQ(Lines(sDescribeAll()), full);
  }
}

}  // namespace
