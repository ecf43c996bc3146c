// The four map kinds as the tool sees them: their blocks, the library's
// whole-kind readers, and the keys those readers look up.
#ifndef MAPCFG_TOOLS_MAP_KINDS_H_
#define MAPCFG_TOOLS_MAP_KINDS_H_

#include <mapcfg/mapcfg.h>

#include <string>
#include <vector>

namespace mapcfg_tool {

struct MapKind {
  const char* table;  // show's table name: "wellloc"
  const char* what;   // "well location map"
  int name_row;       // configuration string of the block name
  void (*read)(mapcfg::CCfgScript& script);
  std::vector<int> keys;  // configuration strings of every key its readers look up
};

// Well location, reservoir profile, fence and correlation maps.
const std::vector<MapKind>& MapKinds();

// The kind whose block is `block` in language `lang` (0 English, 1 Chinese),
// ASCII case ignored as the reader does; null for any other block.
const MapKind* FindMapKind(const std::string& block, char* lang);

// Whether a reader of `kind` looks up `key` in language `lang`, ASCII case
// ignored.
bool IsMapKey(const MapKind& kind, char lang, const std::string& key);

// The plane-shape and migration templates as the tool sees them.
struct TemplateTable {
  const char* table;  // show's table name: "planeshape"
  const char* what;   // "plane-shape templates"
  void (*read)(mapcfg::CCfgScript& script);
  mapcfg::FieldTexts (*describe)();
};

const std::vector<TemplateTable>& TemplateTables();

// The keys a block may repeat: "Curve" and "FillingCurve" (each row is one
// curve or fill).
bool IsRepeatedMapKey(char lang, const std::string& key);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_MAP_KINDS_H_
