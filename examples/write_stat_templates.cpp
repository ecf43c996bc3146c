// A host that makes the statistics templates of the Liuhe field with the
// library and saves them as template files: examples/stat/*.ctp are what
// `write_stat_templates examples/stat` writes (a test checks they agree).
//
//   write_stat_templates DIR    writes DIR/production.ctp, DIR/water_cut.ctp
//                               and DIR/injection.ctp
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <string>

using namespace mapcfg;

namespace {

// Item types: the low two bits choose a chart with one sub-item per legend
// entry (1 columns, 2 pies); 0 is a plain value.
constexpr char kValue = 0, kColumns = 1, kPie = 2;

std::unique_ptr<_CfgStatWhere> Where(const char* column, uint8_t op, StringArray values) {
  auto w = std::make_unique<_CfgStatWhere>();
  w->text1 = column;
  w->code = op;  // 0 equal, 1 between, 2 one of
  w->values = std::move(values);
  return w;
}

void Legend(_CfgStatTempl& t, const char* name, uint32_t color, const char* unit) {
  auto fill = std::make_unique<PATT_PROP>();
  sInitPattProp(fill.get(), 1.0f);
  fill->foreColor = color;
  t.legendTexts1.push_back(name);
  t.legendPatts.push_back(std::move(fill));
  t.legendBytes.push_back(1);
  t.legendTexts2.push_back(unit);
}

// An item of `t` with values up to `max`, and one plain child per part.
std::unique_ptr<_CfgStatMeta> Item(const _CfgStatTempl& t, const char* name, char type, double max,
                                   std::initializer_list<const char*> parts = {}) {
  auto m = sCfgMetaNew(name, type, &t);
  m->dbls[1] = max;
  m->dbls[2] = max;
  m->text1 = t.text1;
  for (const char* part : parts) m->children.push_back(sCfgMetaNew(part, kValue, &t));
  return m;
}

std::unique_ptr<_CfgStatTempl> Template(const char* name, const char* table, double scale) {
  auto t = sCfgTemplNew(name, scale);
  t->text1 = table;
  t->text2 = "WELL_NAME";
  t->lines[0].width = 0.2f;
  t->fonts[0].height = 32.0f;
  t->flag = 1;
  t->flagDbl = 1.0;
  t->wheres.push_back(Where("FIELD_NAME", 0, {"Liuhe"}));
  return t;
}

RecordArray<_CfgStatTempl> Production() {
  RecordArray<_CfgStatTempl> all;
  auto annual = Template("Annual production by well", "PRODUCTION", 10000.0);
  annual->wheres.push_back(Where("YEAR", 1, {"2016", "2023"}));
  Legend(*annual, "Oil", 0x000080, "t");
  Legend(*annual, "Water", 0xFF8000, "m3");
  Legend(*annual, "Gas", 0x00C000, "1e4 m3");
  annual->metas.push_back(Item(*annual, "Annual liquid", kColumns, 50000.0, {"Block L1", "Block L2", "Block L3"}));
  annual->metas.push_back(Item(*annual, "Cumulative oil", kValue, 800000.0));
  all.push_back(std::move(annual));

  auto monthly = Template("Monthly oil of the L2 block", "PRODUCTION", 1000.0);
  monthly->wheres.push_back(Where("BLOCK", 0, {"L2"}));
  monthly->wheres.push_back(Where("MONTH", 1, {"1", "12"}));
  Legend(*monthly, "Oil", 0x000080, "t");
  monthly->metas.push_back(Item(*monthly, "Monthly oil", kColumns, 3000.0));
  all.push_back(std::move(monthly));
  return all;
}

RecordArray<_CfgStatTempl> WaterCut() {
  RecordArray<_CfgStatTempl> all;
  auto cut = Template("Water cut by layer", "PRODUCTION", 100.0);
  cut->wheres.push_back(Where("LAYER_NAME", 2, {"Es3-1", "Es3-2", "Es3-3"}));
  Legend(*cut, "Oil", 0x000080, "%");
  Legend(*cut, "Water", 0xFF8000, "%");
  auto pie = Item(*cut, "Water cut", kPie, 100.0, {"Es3-1", "Es3-2", "Es3-3"});
  pie->children[1]->children.push_back(sCfgMetaNew("High-cut wells", kValue, cut.get()));
  cut->metas.push_back(std::move(pie));
  all.push_back(std::move(cut));
  return all;
}

RecordArray<_CfgStatTempl> Injection() {
  RecordArray<_CfgStatTempl> all;
  auto ratio = Template("Injection against production", "INJECTION", 10000.0);
  ratio->wheres.push_back(Where("YEAR", 1, {"2020", "2023"}));
  Legend(*ratio, "Injected water", 0xC00000, "m3");
  Legend(*ratio, "Produced liquid", 0x008080, "m3");
  ratio->metas.push_back(Item(*ratio, "Injection-production ratio", kColumns, 2.0, {"Injectors", "Producers"}));
  all.push_back(std::move(ratio));
  return all;
}

// Writes `templs` as the template file `path`; false with a message when it
// cannot be written.
bool Save(const std::string& path, RecordArray<_CfgStatTempl> templs) {
  sCfgClearMapStat();
  for (auto& t : templs) sCfgGetMapStatPtr()->push_back(std::move(t));
  CFFArchive archive;
  String error = sCfgWriteMapStat(archive, path.c_str());
  if (error.empty() && !archive.ToFile(path)) error = archive.GetLastError();
  sCfgClearMapStat();
  if (!error.empty()) std::fprintf(stderr, "write_stat_templates: %s: %s\n", path.c_str(), error.c_str());
  return error.empty();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: write_stat_templates DIR\n");
    return 2;
  }
  const std::string dir = argv[1];
  const bool ok = Save(dir + "/production.ctp", Production()) && Save(dir + "/water_cut.ctp", WaterCut()) &&
                  Save(dir + "/injection.ctp", Injection());
  return ok ? 0 : 1;
}
