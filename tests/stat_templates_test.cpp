// Statistics templates: defaults, deep copies, the template file (golden
// bytes, a seeded round trip, damaged and hostile files) and the template
// files of a folder.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <cmath>
#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <tuple>

#include "archive_test_util.h"
#include "store_test_util.h"
#include "test_util.h"

using namespace mapcfg;
using mapcfg_test::Bytes;
using mapcfg_test::Loaded;

namespace {

const String kWrongFormat = "\xCD\xB3\xBC\xC6\xCD\xBC\xB8\xF1\xCA\xBD\xB2\xBB\xB6\xD4";

// Field-by-field comparison: the describer gives every field the file
// holds, each in its shortest exact form.
template <class T>
void ExpectSame(const T& a, const T& b, const std::string& at = "") {
  EXPECT_EQ(mapcfg_test::Lines(sDescribe(a)), mapcfg_test::Lines(sDescribe(b))) << at;
}

// Every record a template owns, for telling whether two share any.
void Owned(const _CfgStatMeta& m, std::set<const void*>& out) {
  out.insert(&m);
  for (const auto& c : m.children) Owned(*c, out);
}
std::set<const void*> Owned(const _CfgStatTempl& t) {
  std::set<const void*> out;
  for (const auto& w : t.wheres) out.insert(w.get());
  for (const auto& p : t.legendPatts) out.insert(p.get());
  for (const auto& m : t.metas) Owned(*m, out);
  return out;
}

// A small template: two legend rows, a condition, an item with a child.
std::unique_ptr<_CfgStatTempl> Sample() {
  auto t = sCfgTemplNew("Oil by year", 2.5);
  t->text1 = "PRODUCTION";
  t->flag = 1;
  t->flagDbl = 0.75;
  t->legendTexts1 = {"Oil", "Water"};
  for (uint32_t color : {0x0000FFu, 0xFF0000u}) {
    auto p = std::make_unique<PATT_PROP>();
    sInitPattProp(p.get(), 1.0f);
    p->foreColor = color;
    t->legendPatts.push_back(std::move(p));
  }
  t->legendBytes = {1, 2};
  t->legendTexts2 = {"t", "m3"};
  auto w = std::make_unique<_CfgStatWhere>();
  w->text1 = "YEAR";
  w->code = 3;
  w->values = {"2019", "2020"};
  w->int2 = -1;
  t->wheres.push_back(std::move(w));
  auto m = sCfgMetaNew("Annual oil", 1, t.get());
  m->ints = {7, -7};
  m->children.push_back(sCfgMetaNew("Well share", 0, t.get()));
  t->metas.push_back(std::move(m));
  t->dbl2 = -1.5;
  return t;
}

String WriteFile(const RecordArray<_CfgStatTempl>& templs) {
  mapcfg_test::StoreGuard guard;
  for (const auto& t : templs) sCfgGetMapStatPtr()->push_back(sCfgTemplClone(t.get()));
  CFFArchive a;
  EXPECT_EQ(sCfgWriteMapStat(a, "x.ctp"), "");
  return Bytes(a);
}

}  // namespace

TEST(StatTemplates, NewItemsTakeTheirDefaultsAndOneSubItemPerLegendText) {
  const auto t = Sample();
  EXPECT_EQ(t->dbl1, 2.5);
  EXPECT_EQ(t->lines[1].width, 0.05f);
  EXPECT_EQ(t->fonts[0].height, 24.0f);
  const struct {
    char type;
    bool owner;
    size_t sub_items;
  } cases[] = {{0, true, 0}, {1, true, 2}, {2, true, 2}, {3, true, 2}, {4, true, 0}, {-3, true, 2}, {1, false, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(int(c.type));
    const auto m = sCfgMetaNew("m", c.type, c.owner ? t.get() : nullptr);
    EXPECT_EQ(m->type, static_cast<uint8_t>(c.type));
    const double dbls[5] = {0, 100, 100, 0, 360};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(m->dbls[i], dbls[i]);
    EXPECT_EQ(std::make_tuple(m->bytes[0], m->bytes[1], m->bytes[2], m->byte2), std::make_tuple(0, 2, 128, 0));
    EXPECT_EQ(m->flag, c.owner ? 1 : 0);
    EXPECT_EQ(m->dbl, c.owner ? 0.75 : 0.0);
    ASSERT_EQ(m->subTexts1.size(), c.sub_items);
    for (size_t i = 0; i < c.sub_items; ++i)
      EXPECT_EQ(std::make_tuple(m->subInts[i], m->subTexts1[i], m->subTexts2[i], m->subTexts3[i], m->subDbls[i], m->subBytes[i]),
                std::make_tuple(0, t->legendTexts1[i], "0", "1", 1.0, 4));
  }
}

TEST(StatTemplates, ClonesAreDeepCopiesReplaceAndClearsFreeWhatTheyOwn) {
  auto src = Sample();
  auto clone = sCfgTemplClone(src.get());
  ExpectSame(*clone, *src);
  const std::set<const void*> a = Owned(*src), b = Owned(*clone);
  for (const void* p : b) EXPECT_EQ(a.count(p), 0u) << "shared record";
  clone->metas[0]->children[0]->name = "changed";
  clone->legendPatts[0]->foreColor = 1;
  EXPECT_EQ(src->metas[0]->children[0]->name, "Well share");
  EXPECT_EQ(src->legendPatts[0]->foreColor, 0x0000FFu);

  // A copy replaces what the target held; a copy onto itself changes nothing.
  auto dst = sCfgTemplNew("other", 9);
  dst->metas.push_back(sCfgMetaNew("old", 3, dst.get()));
  sCfgTemplCopy(dst.get(), src.get(), 0);
  ExpectSame(*dst, *src);
  sCfgTemplCopy(dst.get(), dst.get(), 0);
  ExpectSame(*dst, *src);
  auto meta = sCfgMetaClone(src->metas[0].get());
  ExpectSame(*meta, *src->metas[0], "meta");

  sCfgTemplClear(dst.get());
  EXPECT_TRUE(dst->metas.empty() && dst->wheres.empty() && dst->legendPatts.empty() && dst->legendTexts1.empty());
  EXPECT_EQ(dst->name, "Oil by year");
  sCfgMetaClear(meta.get());
  EXPECT_TRUE(meta->children.empty() && meta->name.empty() && meta->subTexts1.empty() && meta->ints.empty());
  EXPECT_EQ(meta->dbls[4], 360.0);
  sCfgTemplDelete(clone.release());
  sCfgMetaDelete(meta.release());
}

// tests/data/archive/stat_small.arc is the file sCfgWriteMapStat writes for
// the sample template and an empty one; sCfgReadCTPFile reads it back.
TEST(StatTemplates, TemplateFileIsTheGoldenFileAndReadsBack) {
  mapcfg_test::StoreGuard guard;
  RecordArray<_CfgStatTempl> templs;
  templs.push_back(Sample());
  templs.push_back(sCfgTemplNew("", 0));
  const std::string golden = std::string(MAPCFG_TEST_DATA) + "/archive/stat_small.arc";
  EXPECT_EQ(WriteFile(templs), mapcfg_test::ReadAll(golden));
  EXPECT_EQ(sCfgReadCTPFile(golden.c_str()), "");
  ASSERT_EQ(sCfgGetMapStatPtr()->size(), 2u);
  for (size_t i = 0; i < 2; ++i) ExpectSame(*(*sCfgGetMapStatPtr())[i], *templs[i]);
  sCfgClearMapStat();
  EXPECT_EQ(sCfgGetMapStatPtr()->capacity(), 0u);
}

// Random templates, random trees of items (depth up to 10, up to 8 children
// each), random conditions and legends: written as a file and read back
// field by field. std::mt19937 gives the same templates everywhere.
TEST(StatTemplates, SeededRandomTemplatesRoundTripThroughTheFile) {
  std::mt19937 gen(20261124u);
  const auto num = [&](int n) { return static_cast<int>(gen() % static_cast<unsigned>(n)); };
  const auto text = [&] {
    std::string s(num(12), ' ');
    for (char& c : s) c = static_cast<char>(1 + num(255));  // a text holds no NUL
    return s;
  };
  const auto real = [&] { return std::ldexp(static_cast<double>(gen()) - 2147483648.0, num(40) - 20); };
  const auto texts = [&] {
    StringArray v(num(4));
    for (String& s : v) s = text();
    return v;
  };
  int budget = 0;
  std::function<std::unique_ptr<_CfgStatMeta>(const _CfgStatTempl*, int)> meta = [&](const _CfgStatTempl* t, int depth) {
    auto m = sCfgMetaNew(text().c_str(), static_cast<char>(num(256)), t);
    for (double& d : m->dbls) d = real();
    for (uint8_t& b : m->bytes) b = static_cast<uint8_t>(num(256));
    m->ints.resize(num(5));
    for (int32_t& i : m->ints) i = static_cast<int32_t>(gen());
    m->byte2 = static_cast<uint8_t>(num(256));
    m->text1 = text();
    m->texts = texts();
    m->text3 = text();
    for (int n = depth < 10 ? num(9) : 0; n > 0 && --budget > 0; --n) m->children.push_back(meta(t, depth + 1));
    return m;
  };
  RecordArray<_CfgStatTempl> templs;
  for (int n = 0; n < 12; ++n) {
    auto t = sCfgTemplNew(text().c_str(), real());
    t->text2 = text();
    t->lines[num(2)] = LINE_PROP{static_cast<uint32_t>(gen()), static_cast<float>(real()), "Dash"};
    t->fonts[num(2)].weight = num(1000);
    for (int w = num(4); w > 0; --w) {
      auto where = std::make_unique<_CfgStatWhere>();
      *where = _CfgStatWhere{text(), static_cast<uint8_t>(num(256)), text(), text(), texts(), text(), real(), real(),
                             static_cast<int32_t>(gen()), static_cast<int32_t>(gen()), static_cast<int32_t>(gen())};
      t->wheres.push_back(std::move(where));
    }
    t->flag = static_cast<uint8_t>(num(256));
    t->flagDbl = real();
    for (int l = num(5); l > 0; --l) {
      t->legendTexts1.push_back(text());
      t->legendPatts.push_back(std::make_unique<PATT_PROP>(PATT_PROP{static_cast<uint32_t>(gen()), 0, 1.5f, "Grid"}));
      t->legendBytes.push_back(static_cast<uint8_t>(num(256)));
      t->legendTexts2.push_back(text());
    }
    budget = 400;
    for (int m = num(6); m > 0; --m) t->metas.push_back(meta(t.get(), 1));
    t->dbl2 = real();
    templs.push_back(std::move(t));
  }
  mapcfg_test::StoreGuard guard;
  CFFArchive a;
  EXPECT_EQ(sCfgReadMapStat("random.ctp", Loaded(a, WriteFile(templs)), 0, 0), "");
  ASSERT_EQ(sCfgGetMapStatPtr()->size(), templs.size());
  for (size_t i = 0; i < templs.size(); ++i) ExpectSame(*(*sCfgGetMapStatPtr())[i], *templs[i]);
}

// Damaged, old and hostile files: the result, the templates appended, and
// what the first of them holds.
TEST(StatTemplates, ReadersStopAtTheFirstFailureWithTheArchiveError) {
  const auto stream = [](const std::function<void(CFFArchive&)>& put) {
    CFFArchive a;
    put(a);
    return Bytes(a);
  };
  const auto header = [&](int32_t version, int32_t count) {
    return stream([&](CFFArchive& a) { a.PutString("Statis"); a.PutLong(version); a.PutLong(count); });
  };
  const auto templ = [&](const _CfgStatTempl& t) {
    return stream([&](CFFArchive& a) { sCfgWriteMapStat_Templ(a, &t); });
  };
  const auto sample = Sample();
  // An item of a file older than 0x03001430: without its bytes[1].
  std::string old_templ = templ(*sample);
  for (const String name : {"Well share", "Annual oil"}) {
    const size_t at = old_templ.find(stream([&](CFFArchive& a) { a.PutString(name.c_str()); }));
    ASSERT_NE(at, std::string::npos);
    old_templ.erase(at + 5 + name.size() + 2 + 45 + 2, 2);  // name, type, dbls, bytes[0], then bytes[1]
  }
  // Item chains 256 and 257 levels deep.
  const auto chain = [&](int levels) {
    auto t = sCfgTemplNew("deep", 0);
    std::unique_ptr<_CfgStatMeta>* at = nullptr;
    for (int i = 0; i < levels; ++i) {
      RecordArray<_CfgStatMeta>& list = at ? (*at)->children : t->metas;
      list.push_back(sCfgMetaNew("m", 0, nullptr));
      at = &list.back();
    }
    return templ(*t);
  };
  const std::string tail_huge = stream([](CFFArchive& a) {
    a.PutString("huge");
    a.PutString("");
    a.PutString("");
    a.PutDouble(0);
    LINE_PROP l{};
    FONT_PROP f{};
    a.PutLineProp(l);
    a.PutLineProp(l);
    a.PutFontProp(f);
    a.PutFontProp(f);
    a.PutLong(0x7FFFFFFF);  // conditions
  });
  const String beyond = sGetInfoStr(838), failure = sGetInfoStr(539);
  const struct {
    const char* name;
    std::string bytes;
    int no_header;
    String result;
    size_t appended;
  } cases[] = {
      {"empty file", "", 0, kWrongFormat, 0},
      {"another kind", stream([](CFFArchive& a) { a.PutString("Single"); a.PutLong(1); }), 0, kWrongFormat, 0},
      {"magic differs in case", header(0x03012082, 1).replace(5, 1, "s"), 0, kWrongFormat, 0},
      {"no templates", header(0x03012082, 0), 0, "", 0},
      {"a negative count", header(0x03012082, -4) + templ(*sample), 0, "", 0},
      {"no count", header(0x03012082, 0).substr(0, 16), 0, beyond, 0},
      {"without the magic", header(0x03012082, 1).substr(11) + templ(*sample), 1, "", 1},
      {"old items", header(0x0300142F, 1) + old_templ, 0, "", 1},
      {"second template cut short", header(0x03012082, 2) + templ(*sample) + templ(*sample).substr(0, 40), 0, beyond, 1},
      {"256 levels", header(0x03012082, 1) + chain(256), 0, "", 1},
      {"257 levels", header(0x03012082, 1) + chain(257), 0, failure, 0},
      {"huge template count", header(0x03012082, 0x7FFFFFFF) + templ(*sample), 0, beyond, 1},
      {"huge condition count", header(0x03012082, 1) + tail_huge, 0, beyond, 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    mapcfg_test::StoreGuard guard;
    CFFArchive a;
    EXPECT_EQ(sCfgReadMapStat("x.ctp", Loaded(a, c.bytes), 0xFFFFFFFFu, c.no_header), c.result);
    ASSERT_EQ(sCfgGetMapStatPtr()->size(), c.appended);
    if (c.appended && std::string(c.name) != "256 levels") ExpectSame(*sCfgGetMapStatPtr()->front(), *sample);
  }
}

// Every "*.ctp" of a folder, in name order: files of another kind, folders,
// other extensions and subfolders are passed over; the first error stops.
TEST(StatTemplates, TemplateFilesOfAFolder) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  RecordArray<_CfgStatTempl> one;
  one.push_back(Sample());
  const std::string file = WriteFile(one);
  dir.Write("b.ctp", file);
  dir.Write("a.ctp", "\x15\x06\0\0\0Single");
  dir.Write("c.txt", file);
  std::filesystem::create_directories(dir.File("d.ctp"));
  std::filesystem::create_directories(dir.File("sub"));
  dir.Write("sub/e.ctp", file);
  EXPECT_EQ(sCfgReadCTPFiles(dir.path()), "");
  EXPECT_EQ(sCfgGetMapStatPtr()->size(), 1u);
  EXPECT_EQ(sCfgReadCTPFile(dir.File("missing.ctp").c_str()), "");

  dir.Write("a0.ctp", file.substr(0, file.size() - 3));
  EXPECT_EQ(sCfgReadCTPFiles(dir.path()), sGetInfoStr(838));
  EXPECT_EQ(sCfgGetMapStatPtr()->size(), 1u) << "a0.ctp comes before b.ctp";
  EXPECT_EQ(sCfgReadCTPFiles(dir.File("nothing-here")), "");

  // The example folder: injection, production (two templates), water cut.
  sCfgClearMapStat();
  EXPECT_EQ(sCfgReadCTPFiles(MAPCFG_EXAMPLES "/stat"), "");
  ASSERT_EQ(sCfgGetMapStatPtr()->size(), 4u);
  EXPECT_EQ((*sCfgGetMapStatPtr())[3]->metas[0]->children[1]->children[0]->name, "High-cut wells");
}

// The registry: names and templates, the templates in the file's layout.
TEST(StatTemplates, RegistryReadsNamesThenTemplates) {
  _CfgMapStatis statis;
  statis.Names = {"first"};
  auto t = std::make_unique<_StatTempl>();
  sCfgTemplCopy(t.get(), Sample().get(), 0);
  CFFArchive a;
  a.PutStringArray({"a", "b"});
  RecordArray<_StatTempl> templs;
  templs.push_back(std::move(t));
  a.PutStatTemplArray(templs);
  a.Rewind();
  EXPECT_EQ(sCfgReadMapStatis(a, statis), "");
  EXPECT_EQ(statis.Names, (StringArray{"first", "a", "b"}));
  ASSERT_EQ(statis.Templs.size(), 1u);
  ExpectSame(*statis.Templs[0], *templs[0]);
  EXPECT_EQ(sCfgReadMapStatis(a, statis), sGetInfoStr(838));
  sCfgClearMapStatis(statis);
  EXPECT_TRUE(statis.Names.empty() && statis.Templs.empty());
}
