#include "script_reader.h"

#include <memory>

#include "mapcfg/platform.h"
#include "mapcfg/utils.h"
#include "base/text_bytes.h"
#include "tokenise_internal.h"

namespace mapcfg {

namespace {

using detail::EqualsNoCase;
using detail::IsSpace;

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};

std::string_view TrimView(std::string_view s) {
  while (!s.empty() && IsSpace(s.back())) s.remove_suffix(1);
  while (!s.empty() && IsSpace(s.front())) s.remove_prefix(1);
  return s;
}

// Removes one enclosing pair of double quotes.
std::string_view Unquote(std::string_view s) {
  if (s.size() >= 2 && s.front() == '"' && s.back() == '"') return s.substr(1, s.size() - 2);
  return s;
}

bool EqualsNoCase(std::string_view a, const char* b) {
  return detail::EqualsNoCase(a.data(), a.size(), b, std::char_traits<char>::length(b));
}

// Whether the first blank-separated token of `row` can be "#Include" (a
// cheap test that spares most rows the token split).
bool MayBeInclude(std::string_view row) {
  size_t i = 0;
  while (i < row.size() && (row[i] == ' ' || detail::IsCtrl(row[i]))) ++i;
  return i < row.size() && row[i] == '#';
}

bool IsComment(std::string_view row) { return row.size() >= 2 && row[0] == '/' && row[1] == '/'; }

// The text before the first `sep`, as sGetSubStr takes it with controls as
// blanks; *pos receives the separator's index (or the row length).
String FieldBefore(std::string_view row, char sep, int* pos) {
  return detail::SubStr(row.data(), row.size(), sep, 0, pos, "", "", 1);
}

}  // namespace

bool ScriptReader::ReadFile(const std::string& path) {
  std::unique_ptr<std::FILE, FileCloser> file(sOpenFile(path, "rb"));
  if (!file) return false;
  detail::LineSource lines(file.get());
  path_ = path;
  lines_ = &lines;
  if (events_) events_->OnFileBegin(path_, depth_);
  while (GetNextCfg()) {
  }
  if (events_) {
    if (lines.ctrl_z_line() > 0) events_->OnCtrlZ(path_, lines.ctrl_z_line(), lines.TextAfterEnd());
    events_->OnFileEnd(path_, depth_);
  }
  lines_ = nullptr;
  return true;
}

bool ScriptReader::GetRowData(std::string_view* row, int* line) {
  for (;;) {
    std::string_view piece;
    bool split = false;
    bool continued = false;
    int first_line = 0;
    // The last piece that ended in "_", for the observer.
    int joined_line = 0;
    std::string joined_piece;
    for (;;) {
      if (!lines_->Next(&piece, &split)) {
        if (continued && events_) events_->OnRowLostAtEnd(path_, first_line);
        return false;
      }
      if (events_) {
        events_->OnLine(path_, lines_->line(), std::string(piece), lines_->nul());
        if (split) events_->OnLineSplit(path_, lines_->line());
      }
      if (!continued) first_line = lines_->line();
      piece = TrimView(piece);
      if (continued && events_) events_->OnJoin(path_, joined_line, joined_piece, lines_->line(), std::string(piece));
      if (!piece.empty() && piece.back() == '_') {
        if (!continued) joined_.clear();
        joined_.append(piece.data(), piece.size() - 1);
        continued = true;
        if (events_) {
          joined_line = lines_->line();
          joined_piece.assign(piece);
        }
        continue;
      }
      if (continued) {
        joined_.append(piece.data(), piece.size());
        piece = joined_;
      }
      break;
    }
    *row = piece;
    *line = first_line;
    if (!MayBeInclude(piece)) return true;
    int pos = 0;
    const String token = detail::SubStr(row->data(), row->size(), ' ', 0, &pos, "", "", 1);
    if (!EqualsNoCase(token, "#Include")) return true;
    Include(*row, pos, first_line);
  }
}

void ScriptReader::Include(std::string_view row, int pos, int line) {
  std::string_view name = static_cast<size_t>(pos) + 1 < row.size() ? row.substr(pos + 1) : std::string_view();
  while (!name.empty() && IsSpace(name.front())) name.remove_prefix(1);
  while (!name.empty() && name.back() == '>') name.remove_suffix(1);
  while (!name.empty() && name.front() == '<') name.remove_prefix(1);
  // The name is always relative to the including file's folder.
  const std::string target = sGetDirFromPath(path_) + "\\" + std::string(name);
  const bool too_deep = depth_ >= kMaxIncludeDepth;
  const bool too_many = !too_deep && budget_.included >= kMaxIncludedFiles;
  bool opened = false;
  if (!too_deep && !too_many) {
    ++budget_.included;
    ScriptReader nested(script_, events_, budget_, depth_ + 1);
    opened = nested.ReadFile(target);
  }
  if (events_) events_->OnInclude(path_, line, target, opened, too_deep, too_many);
}

bool ScriptReader::GetContentRow(std::string_view* row, int* line) {
  do {
    if (!GetRowData(row, line)) return false;
  } while (row->empty() || IsComment(*row));
  return true;
}

bool ScriptReader::GetNextCfg() {
  std::string_view row;
  int line = 0;
  String name;
  int header_line = 0;
  // Header search: "Config: name" followed by "Begin".
  for (;;) {
    if (!GetContentRow(&row, &line)) return false;
    int pos = 0;
    const String token = FieldBefore(row, ':', &pos);
    if (!EqualsNoCase(token, "Config")) {
      if (events_) events_->OnStrayRow(path_, line, std::string(row));
      continue;
    }
    if (row.size() <= static_cast<size_t>(pos) + 1) {
      if (events_) events_->OnEmptyHeader(path_, line);
      continue;
    }
    name.assign(Unquote(TrimView(row.substr(pos + 1))));
    header_line = line;
    if (!GetContentRow(&row, &line)) {
      if (events_) events_->OnBlockLost(path_, header_line, name, false);
      return false;
    }
    if (EqualsNoCase(row, "Begin")) break;
    if (events_) events_->OnHeaderAbandoned(path_, header_line, name, line, std::string(row));
  }
  // Body: key rows up to "End".
  CCfgScript::Block block;
  block.name = std::move(name);
  for (;;) {
    if (!GetContentRow(&row, &line)) {
      if (events_) events_->OnBlockLost(path_, header_line, block.name, true);
      return false;
    }
    if (EqualsNoCase(row, "End")) {
      if (events_) events_->OnBlock(path_, header_line, line, block.name);
      script_.AddBlock(std::move(block));
      return true;
    }
    int pos = 0;
    String key = FieldBefore(row, '=', &pos);
    std::string_view value;
    if (row.size() > static_cast<size_t>(pos) + 1) value = Unquote(TrimView(row.substr(pos + 1)));
    if (events_) {
      events_->OnKey(path_, line, block.name, key, static_cast<size_t>(pos) < row.size());
      int colon = 0;
      if (EqualsNoCase(FieldBefore(row, ':', &colon), "Config")) events_->OnHeaderInBlock(path_, line, block.name);
    }
    block.keys.push_back(std::move(key));
    block.values.emplace_back(value);
  }
}

}  // namespace mapcfg
