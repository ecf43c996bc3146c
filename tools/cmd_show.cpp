// mapcfg show: the configuration tables the library fills, read from
// scripts with every reader it has, or from a whole-store archive.
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "commands.h"
#include "config_set.h"
#include "display_text.h"
#include "input.h"
#include "map_kinds.h"
#include "show_templates.h"
#include "store/config_strings.h"

namespace mapcfg_tool {

namespace {

using mapcfg::FieldText;
using mapcfg::FieldTexts;
using mapcfg::String;
using mapcfg::StringArray;

// Shows texts, and colours with the name the colour table gives them.
class Printer {
 public:
  explicit Printer(bool raw) : raw_(raw) {
    const StringArray& names = *mapcfg::sCfgGetColorNamesPtr();
    const std::vector<uint32_t>& colors = *mapcfg::sCfgGetColorsPtr();
    for (size_t i = 0; i < names.size() && i < colors.size(); ++i) color_names_.emplace(colors[i], names[i]);
  }
  std::string Text(const String& bytes) const { return ToDisplay(bytes, raw_); }
  std::string Quoted(const String& bytes) const { return "\"" + Text(bytes) + "\""; }
  std::string Color(uint32_t rgb) const {
    char hex[16];
    std::snprintf(hex, sizeof hex, "0x%06X", rgb);
    const auto name = color_names_.find(rgb);
    return name == color_names_.end() ? hex : std::string(hex) + " (" + Text(name->second) + ")";
  }
  std::string Value(const FieldText& f) const {
    if (f.kind == FieldText::kText) return Quoted(f.value);
    if (f.kind == FieldText::kHex) return Color(static_cast<uint32_t>(std::stoul(f.value, nullptr, 16)));
    return f.value;
  }
  // A field of a map kind: flag sets in hexadecimal, colours named.
  std::string KindValue(const FieldText& f) const {
    const std::string name = Folded(f.name.substr(f.name.rfind('.') + 1));
    if (f.kind == FieldText::kHex && name.find("color") == std::string::npos) return "0x" + f.value.substr(2);
    return Value(f);
  }
  // "name=value ..." of a record's fields.
  std::string Fields(const FieldTexts& fields) const {
    std::string line;
    for (const FieldText& f : fields) line += (line.empty() ? "" : " ") + f.name + "=" + Value(f);
    return line;
  }

 private:
  bool raw_;
  std::multimap<uint32_t, String> color_names_;
};

void Heading(const char* table, const char* what, size_t count) {
  std::printf("[%s] %s: %zu\n", table, what, count);
}

template <class Rec>
void Catalogue(const Printer& p, const char* table, const char* what, const StringArray& codes,
               const mapcfg::RecordArray<Rec>& records) {
  Heading(table, what, codes.size());
  for (size_t i = 0; i < codes.size() && i < records.size(); ++i)
    std::printf("  %s: %s\n", p.Text(codes[i]).c_str(), p.Fields(mapcfg::sDescribe(*records[i])).c_str());
}

void Pairs(const Printer& p, const char* table, const char* what, const StringArray& names, const StringArray& values) {
  Heading(table, what, names.size());
  for (size_t i = 0; i < names.size(); ++i)
    std::printf("  %s = %s\n", p.Text(names[i]).c_str(), i < values.size() ? p.Quoted(values[i]).c_str() : "");
}

// A table read from its own blocks as one list of named fields, one a line.
void Listing(const Printer& p, const char* table, const char* what, const FieldTexts& fields) {
  Heading(table, what, fields.size());
  for (const FieldText& f : fields) std::printf("  %s = %s\n", f.name.c_str(), p.KindValue(f).c_str());
}

// A track and, indented below it, its curves and child tracks.
void PrintTrack(const Printer& p, const mapcfg::_DJTTrack& t, int indent) {
  const std::string pad(static_cast<size_t>(indent) * 2, ' ');
  const mapcfg::_DJTTrackProp& q = t.Prop;
  std::printf("%strack %s (%s): %s .. %s, width %s\n", pad.c_str(), p.Quoted(q.Name).c_str(), p.Quoted(q.Title).c_str(),
              mapcfg::sToString(q.Left).c_str(), mapcfg::sToString(q.Right).c_str(), mapcfg::sToString(q.Width).c_str());
  for (const auto& c : t.Curves)
    std::printf("%s  curve %s (%s): %s .. %s, line %s %s\n", pad.c_str(), p.Quoted(c->Code).c_str(),
                p.Quoted(c->Name).c_str(), mapcfg::sToString(c->Prop.LeftValue).c_str(),
                mapcfg::sToString(c->Prop.RightValue).c_str(), mapcfg::sToString(c->Prop.Line.width).c_str(),
                p.Color(c->Prop.Line.color).c_str());
  for (const auto& child : t.Children) PrintTrack(p, *child, indent + 1);
}

// The single-well map: its properties, then each template as a tree.
void PrintSingleWell(const Printer& p, const MapKind& kind) {
  const mapcfg::_CfgMapSingle& registry = *mapcfg::sCfgGetMapSinglePtr();
  Heading(kind.table, "single-well templates", registry.Templs.size());
  for (const FieldText& f : mapcfg::sDescribeMapKind(mapcfg::sGetCfgStr(*mapcfg::sGetCfgLang(), kind.name_row)))
    if (f.name.compare(0, 6, "templs") != 0 && f.name.compare(0, 5, "names") != 0)
      std::printf("  %s = %s\n", f.name.c_str(), p.KindValue(f).c_str());
  for (const auto& templ : registry.Templs) {
    std::printf("  template %s\n", p.Quoted(templ->Name).c_str());
    for (const auto& track : templ->Tracks) PrintTrack(p, *track, 2);
  }
}

struct Table {
  const char* name;
  std::function<void(const Printer&)> print;
};

const std::vector<Table>& Tables() {
  using namespace mapcfg;
  static const std::vector<Table> tables = {
      {"sysparam",
       [](const Printer& p) {
         Heading("sysparam", "system parameters", 1);
         std::printf("  %s\n", p.Fields(sDescribe(*sCfgGetSysCfgParamPtr())).c_str());
       }},
      {"libs", [](const Printer& p) { Pairs(p, "libs", "extension libraries", *sCfgGetLibNamesPtr(), *sCfgGetLibDllsPtr()); }},
      {"menus", [](const Printer& p) { Pairs(p, "menus", "menu tools", *sCfgGetMenuNamesPtr(), *sCfgGetMenuFunsPtr()); }},
      {"status",
       [](const Printer& p) {
         Catalogue(p, "status", "well-status codes", *sCfgGetStatusCodesPtr(), *sCfgGetStatusPropsPtr());
       }},
      {"interpret",
       [](const Printer& p) {
         Catalogue(p, "interpret", "interpretation codes", *sCfgGetInterpretCodesPtr(), *sCfgGetInterpretPropsPtr());
       }},
      {"lith",
       [](const Printer& p) { Catalogue(p, "lith", "lithology codes", *sCfgGetLithCodesPtr(), *sCfgGetLithPropsPtr()); }},
      {"colors",
       [](const Printer& p) {
         const StringArray& names = *sCfgGetColorNamesPtr();
         const std::vector<uint32_t>& colors = *sCfgGetColorsPtr();
         Heading("colors", "colours", names.size());
         for (size_t i = 0; i < names.size() && i < colors.size(); ++i) {
           char hex[16];
           std::snprintf(hex, sizeof hex, "0x%06X", colors[i]);
           std::printf("  %s = %s\n", p.Text(names[i]).c_str(), hex);
         }
       }},
      {"prevcolors",
       [](const Printer& p) {
         Heading("prevcolors", "preset colours", 16);
         for (int i = 0; i < 16; ++i) std::printf("  %d = %s\n", i, p.Color(sCfgGetPrevColorPtr()[i]).c_str());
       }},
      {"yqxs", [](const Printer& p) { Pairs(p, "yqxs", "oil-gas show symbols", *sCfgGetYQXSNamesPtr(), *sCfgGetYQXSPictsPtr()); }},
      {"hyw", [](const Printer& p) { Pairs(p, "hyw", "containing-material symbols", *sCfgGetHYWNamesPtr(), *sCfgGetHYWPictsPtr()); }},
      {"yxqz", [](const Printer& p) { Pairs(p, "yxqz", "lithology-prefix symbols", *sCfgGetYXQZNamesPtr(), *sCfgGetYXQZPictsPtr()); }},
      {"gzfh", [](const Printer& p) { Pairs(p, "gzfh", "structure symbols", *sCfgGetGZFHNamesPtr(), *sCfgGetGZFHPictsPtr()); }},
      {"textfmts",
       [](const Printer& p) {
         Catalogue(p, "textfmts", "text formats", *sCfgGetTextFmtNamesPtr(), *sCfgGetTextFmtsPtr());
       }},
      {"datasrcs", [](const Printer& p) { Pairs(p, "datasrcs", "data sources", *sCfgGetDataSrcNamesPtr(), *sCfgGetDataSrcValsPtr()); }},
      {"labelcrvs",
       [](const Printer& p) { Pairs(p, "labelcrvs", "label curves", *sCfgGetLabelCrvCodesPtr(), *sCfgGetLabelCrvValsPtr()); }},
      {"isoprops",
       [](const Printer& p) {
         Pairs(p, "isoprops", "contour parameters", *sCfgGetIsoPropCodesPtr(), *sCfgGetIsoPropValsPtr());
       }},
  };
  static const std::vector<Table> with_kinds = [] {
    std::vector<Table> all = tables;
    for (const MapKind& kind : MapKinds())
      all.push_back({kind.table, [&kind](const Printer& p) {
                       if (kind.name_row == mapcfg::cfg::kSingleWellMap) return PrintSingleWell(p, kind);
                       Listing(p, kind.table, kind.what, sDescribeMapKind(sGetCfgStr(*sGetCfgLang(), kind.name_row)));
                     }});
    for (const TemplateTable& t : TemplateTables())
      all.push_back({t.table, [&t](const Printer& p) { Listing(p, t.table, t.what, t.describe()); }});
    return all;
  }();
  return with_kinds;
}

// The map kinds and the templates are read from their own blocks, not from
// the whole store.
bool IsOwnBlockTable(const Table& t) {
  for (const MapKind& kind : MapKinds())
    if (std::string(kind.table) == t.name) return true;
  for (const TemplateTable& tt : TemplateTables())
    if (std::string(tt.table) == t.name) return true;
  return false;
}

}  // namespace

int RunShow(const Call& call) {
  const bool raw = call.Has("--raw");
  const bool from_archive = call.Has("--archive");
  if (from_archive != call.operands.empty())
    return UsageError(from_archive ? "give scripts or --archive, not both" : "missing FILE... or --archive FILE");
  if (call.Has("--version") && !from_archive) return UsageError("--version goes with --archive");
  // Statistics template files are shown as they are, not as tables.
  size_t templates = 0;
  for (const std::string& file : call.operands) templates += IsStatTemplateFile(file) ? 1 : 0;
  if (templates > 0) {
    if (templates != call.operands.size()) return UsageError("give scripts or statistics template files, not both");
    if (call.Has("--table") || call.Has("--lang")) return UsageError("--table and --lang go with scripts");
    return ShowStatTemplates(call.operands, raw);
  }
  char lang = -1;
  if (call.Has("--lang") && !ParseLang(call.Value("--lang"), &lang))
    return UsageError("--lang takes en or zh, not '" + NameToDisplay(call.Value("--lang")) + "'");
  const Table* only = nullptr;
  if (call.Has("--table")) {
    for (const Table& t : Tables())
      if (Folded(call.Value("--table")) == t.name) only = &t;
    if (!only) {
      std::string names;
      for (const Table& t : Tables()) names += std::string(names.empty() ? "" : ", ") + t.name;
      return UsageError("no table '" + NameToDisplay(call.Value("--table")) + "' (tables: " + names + ")");
    }
  }

  const char saved_lang = *mapcfg::sGetCfgLang();
  int status = 0;
  bool with_kinds = !from_archive;
  if (from_archive) {
    uint32_t version = 0xFFFFFFFFu;
    if (call.Has("--version")) {
      char* end = nullptr;
      const std::string& v = call.Value("--version");
      version = static_cast<uint32_t>(std::strtoul(v.c_str(), &end, 0));
      if (v.empty() || *end) return UsageError("--version takes a number (0x hexadecimal or decimal), not '" + NameToDisplay(v) + "'");
    }
    const std::string& file = call.Value("--archive");
    const std::string why = WhyUnreadable(ShownPath(file));
    if (!why.empty()) return Fail(1, "cannot read " + NameToDisplay(file) + ": " + why);
    mapcfg::CFFArchive archive;
    if (!archive.FromFile(file)) return Fail(1, "cannot read " + NameToDisplay(file) + ": " + archive.GetLastError());
    if (lang >= 0) *mapcfg::sGetCfgLang() = lang;
    if (IsPackFile(file)) {
      // A pack holds the map kinds too, and the language it was made in.
      with_kinds = true;
      char packed = 0;
      const String error = mapcfg::sCfgReadPack(archive, &packed);
      if (lang < 0) *mapcfg::sGetCfgLang() = packed;
      if (!error.empty()) status = Fail(1, NameToDisplay(file) + ": the pack stops early: " + ToDisplay(error, raw));
    } else {
      const String error = mapcfg::sCfgReadMain(archive, version);
      if (!error.empty()) status = Fail(1, NameToDisplay(file) + ": the store stops early: " + ToDisplay(error, raw));
    }
  } else {
    LoadedConfig loaded;
    std::string why;
    if (!LoadScripts(call.operands, lang, &loaded, &why)) return Fail(1, why);
  }
  if (only && !with_kinds && IsOwnBlockTable(*only))
    return UsageError(std::string("the ") + only->name + " table is read from scripts or packs: the whole-store archive has no map kinds and no templates");

  const Printer printer(raw);
  for (const Table& t : Tables())
    if (only ? only == &t : with_kinds || !IsOwnBlockTable(t)) t.print(printer);
  *mapcfg::sGetCfgLang() = saved_lang;
  return status;
}

}  // namespace mapcfg_tool
