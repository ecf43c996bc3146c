// CCfgScript: the blocks of a script and the lookups on them.
#include "mapcfg/script.h"
#include "script_reader.h"
#include "base/text_bytes.h"

namespace mapcfg {

namespace {

std::string Folded(const char* text, size_t n) {
  std::string out(text, n);
  for (char& c : out) c = detail::FoldAscii(c);
  return out;
}

}  // namespace

CCfgScript::CCfgScript() = default;
CCfgScript::~CCfgScript() { Clear(); }

void CCfgScript::Clear() {
  m_blocks.clear();
  m_index.clear();
}

void CCfgScript::Open(const char* path, int append, ScriptEvents* events) {
  if (!append) Clear();
  if (!path) return;
  ScriptReader::Budget budget;
  ScriptReader reader(*this, events, budget, 1);
  reader.ReadFile(path);
}

void CCfgScript::AddBlock(Block&& block) {
  const int index = static_cast<int>(m_blocks.size());
  // Only the first block of a name is reachable by name.
  m_index.emplace(Folded(block.name.data(), block.name.size()), index);
  m_blocks.push_back(std::move(block));
}

const CCfgScript::Block* CCfgScript::FindBlock(const char* block) const {
  if (!block) return nullptr;
  const auto it = m_index.find(Folded(block, std::char_traits<char>::length(block)));
  return it == m_index.end() ? nullptr : &m_blocks[static_cast<size_t>(it->second)];
}

int CCfgScript::GetCfgCnt() const { return static_cast<int>(m_blocks.size()); }

String CCfgScript::GetCfgName(int index) const {
  if (index < 0 || index >= GetCfgCnt()) return String();
  return m_blocks[static_cast<size_t>(index)].name;
}

int CCfgScript::GetKeyCnt(const char* block) const {
  const Block* b = FindBlock(block);
  return b ? static_cast<int>(b->keys.size()) : -1;
}

String CCfgScript::GetKeyName(const char* block, int index) const {
  const Block* b = FindBlock(block);
  if (!b || index < 0 || static_cast<size_t>(index) >= b->keys.size()) return String();
  return b->keys[static_cast<size_t>(index)];
}

String CCfgScript::GetKeyVal(const char* block, const char* key) const {
  const Block* b = FindBlock(block);
  if (!b || !key) return String();
  const size_t n = std::char_traits<char>::length(key);
  for (size_t i = 0; i < b->keys.size(); ++i) {
    const String& k = b->keys[i];
    if (detail::EqualsNoCase(k.data(), k.size(), key, n)) return b->values[i];
  }
  return String();
}

String CCfgScript::GetKeyVal(const char* block, int index) const {
  const Block* b = FindBlock(block);
  if (!b || index < 0 || static_cast<size_t>(index) >= b->values.size()) return String();
  return b->values[static_cast<size_t>(index)];
}

int CCfgScript::GetKeyCntAt(int block) const {
  if (block < 0 || block >= GetCfgCnt()) return -1;
  return static_cast<int>(m_blocks[static_cast<size_t>(block)].keys.size());
}

String CCfgScript::GetKeyNameAt(int block, int index) const {
  if (index < 0 || index >= GetKeyCntAt(block)) return String();
  return m_blocks[static_cast<size_t>(block)].keys[static_cast<size_t>(index)];
}

String CCfgScript::GetKeyValAt(int block, int index) const {
  if (index < 0 || index >= GetKeyCntAt(block)) return String();
  return m_blocks[static_cast<size_t>(block)].values[static_cast<size_t>(index)];
}

}  // namespace mapcfg
