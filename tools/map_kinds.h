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

// The plane-shape and migration templates as the tool sees them.
struct TemplateTable {
  const char* table;  // show's table name: "planeshape"
  const char* what;   // "plane-shape templates"
  void (*read)(mapcfg::CCfgScript& script);
  mapcfg::FieldTexts (*describe)();
};

const std::vector<TemplateTable>& TemplateTables();

// The keys that the library's readers look up in one block, as check sees
// them (null for a block no reader of known keys reads).
class BlockKeys {
 public:
  BlockKeys() = default;
  BlockKeys(const std::vector<int>* keys, const std::vector<int>* repeated, bool migration, char lang)
      : keys_(keys), repeated_(repeated), migration_(migration), lang_(lang) {}
  explicit operator bool() const { return keys_ != nullptr; }
  // Whether a reader looks up `key` (ASCII case ignored). In a migration
  // block every key without "|" names a template, and a key with one must
  // have a name right before it and a parameter's suffix from it on.
  bool Knows(const std::string& key) const;
  // Whether each row of `key` is read (a curve, a division type), so that
  // the key may repeat.
  bool Repeats(const std::string& key) const;

 private:
  const std::vector<int>* keys_ = nullptr;
  const std::vector<int>* repeated_ = nullptr;
  bool migration_ = false;
  char lang_ = 0;
};

// The keys of block `block` in either language, ASCII case ignored as the
// readers do: the map kinds' blocks and the templates' blocks named by
// configuration strings.
BlockKeys FindBlockKeys(const std::string& block);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_MAP_KINDS_H_
