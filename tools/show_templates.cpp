// mapcfg show FILE.ctp: a statistics template file as its templates, each
// with its fields, conditions, legend rows and items (indented as a tree,
// each with its sub-items).
#include "show_templates.h"

#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <cstring>

#include "commands.h"
#include "display_text.h"
#include "input.h"

namespace mapcfg_tool {

namespace {

using mapcfg::FieldText;
using mapcfg::FieldTexts;

class Printer {
 public:
  explicit Printer(bool raw) : raw_(raw) {}

  // "name=value ..." of the fields whose names do not start with one of
  // `skip` (the parts shown on lines of their own); the elements of an
  // array as "name=[a, b]".
  std::string Fields(const FieldTexts& fields, std::initializer_list<const char*> skip = {}) const {
    std::string line, array;
    const auto close = [&] {
      if (!array.empty()) line += "]";
      array.clear();
    };
    for (const FieldText& f : fields) {
      bool shown = true;
      for (const char* prefix : skip) shown = shown && f.name.compare(0, std::strlen(prefix), prefix) != 0;
      if (!shown) continue;
      const size_t open = f.name.back() == ']' ? f.name.rfind('[') : std::string::npos;
      const std::string base = open == std::string::npos ? f.name : f.name.substr(0, open);
      if (open != std::string::npos && base == array) {
        line += ", " + Value(f);
        continue;
      }
      close();
      line += (line.empty() ? "" : " ") + base + "=" + (open == std::string::npos ? "" : "[") + Value(f);
      if (open != std::string::npos) array = base;
    }
    close();
    return line;
  }
  std::string Quoted(const std::string& bytes) const { return "\"" + ToDisplay(bytes, raw_) + "\""; }

  void Item(const mapcfg::_CfgStatMeta& m, int depth) const {
    const std::string indent(static_cast<size_t>(2 * depth), ' ');
    std::printf("%sitem %s: %s\n", indent.c_str(), Quoted(m.name).c_str(),
                Fields(mapcfg::sDescribe(m), {"name", "children[", "subItems."}).c_str());
    for (size_t i = 0; i < m.subTexts1.size(); ++i)
      std::printf("%s  sub-item %zu: %d %s %s %s %s %u\n", indent.c_str(), i + 1, At(m.subInts, i),
                  Quoted(m.subTexts1[i]).c_str(), Quoted(At(m.subTexts2, i)).c_str(),
                  Quoted(At(m.subTexts3, i)).c_str(), NumberText(At(m.subDbls, i)).c_str(),
                  static_cast<unsigned>(At(m.subBytes, i)));
    for (const auto& child : m.children) Item(*child, depth + 1);
  }

  void Template(const mapcfg::_CfgStatTempl& t, size_t index) const {
    std::printf("template %zu %s: %s\n", index, Quoted(t.name).c_str(),
                Fields(mapcfg::sDescribe(t), {"name", "lines[", "fonts[", "wheres[", "metas[", "legend."}).c_str());
    for (int i = 0; i < 2; ++i) std::printf("  line %d: %s\n", i + 1, Fields(mapcfg::sDescribe(t.lines[i])).c_str());
    for (int i = 0; i < 2; ++i) std::printf("  font %d: %s\n", i + 1, Fields(mapcfg::sDescribe(t.fonts[i])).c_str());
    for (size_t i = 0; i < t.wheres.size(); ++i)
      std::printf("  condition %zu: %s\n", i + 1, Fields(mapcfg::sDescribe(*t.wheres[i])).c_str());
    for (size_t i = 0; i < t.legendTexts1.size(); ++i) {
      const mapcfg::PATT_PROP* fill = i < t.legendPatts.size() ? t.legendPatts[i].get() : nullptr;
      std::printf("  legend %zu: %s fill=(%s) byte=%u %s\n", i + 1, Quoted(t.legendTexts1[i]).c_str(),
                  fill ? Fields(mapcfg::sDescribe(*fill)).c_str() : "", static_cast<unsigned>(At(t.legendBytes, i)),
                  Quoted(At(t.legendTexts2, i)).c_str());
    }
    for (const auto& m : t.metas) Item(*m, 1);
  }

 private:
  template <class T>
  static T At(const std::vector<T>& v, size_t i) {
    return i < v.size() ? v[i] : T();
  }
  std::string Value(const FieldText& f) const {
    if (f.kind == FieldText::kText) return Quoted(f.value);
    return f.value;
  }
  bool raw_;
};

}  // namespace

bool IsStatTemplateFile(const std::string& path) {
  if (!WhyUnreadable(mapcfg::sToNativePath(path)).empty()) return false;
  mapcfg::CFFArchive a;
  return a.FromFile(path) && a.GetString() == "Statis" && a.GetLastError().empty();
}

int ShowStatTemplates(const std::vector<std::string>& files, bool raw) {
  const Printer printer(raw);
  int status = 0;
  for (const std::string& file : files) {
    mapcfg::CFFArchive a;
    if (!a.FromFile(file)) return Fail(1, "cannot read " + NameToDisplay(file) + ": " + a.GetLastError());
    a.GetString();  // "Statis"
    const int32_t version = a.GetLong();
    a.Rewind();
    mapcfg::sCfgClearMapStat();
    const mapcfg::String error = mapcfg::sCfgReadMapStat(file.c_str(), a, 0, 0);
    const auto& templs = *mapcfg::sCfgGetMapStatPtr();
    std::printf("%s: %zu statistics template%s, file version 0x%08X\n", NameToDisplay(file).c_str(), templs.size(),
                templs.size() == 1 ? "" : "s", static_cast<unsigned>(version));
    for (size_t i = 0; i < templs.size(); ++i) printer.Template(*templs[i], i + 1);
    mapcfg::sCfgClearMapStat();
    if (!error.empty()) status = Fail(1, NameToDisplay(file) + ": the templates stop early: " + ToDisplay(error, raw));
  }
  return status;
}

}  // namespace mapcfg_tool
