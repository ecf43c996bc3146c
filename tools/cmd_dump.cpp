// mapcfg dump: the values of an archive file, tag by tag.
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "commands.h"
#include "display_text.h"

namespace mapcfg_tool {

namespace {

// A byte offset in decimal or "0x" hexadecimal; false when it is not one.
bool ParseOffset(const std::string& text, uint32_t* offset) {
  const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
  const std::string digits = hex ? text.substr(2) : text;
  if (digits.empty() || digits.find_first_not_of(hex ? "0123456789abcdefABCDEF" : "0123456789") != std::string::npos)
    return false;
  const unsigned long long value = std::strtoull(digits.c_str(), nullptr, hex ? 16 : 10);
  if (value > 0xFFFFFFFFull) return false;
  *offset = static_cast<uint32_t>(value);
  return true;
}

// The listing for a terminal: texts as UTF-8, lines ended by "\n".
std::string ForDisplay(const std::string& listing) {
  std::string out = ToDisplay(listing, false);
  std::string lines;
  for (size_t i = 0; i < out.size(); ++i)
    if (!(out[i] == '\r' && i + 1 < out.size() && out[i + 1] == '\n')) lines += out[i];
  return lines;
}

}  // namespace

int RunDump(const Args& args) {
  std::string file;
  uint32_t offset = 0;
  bool raw = false;
  for (size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--raw") {
      raw = true;
    } else if (args[i] == "--offset") {
      if (i + 1 >= args.size() || !ParseOffset(args[i + 1], &offset))
        return Fail(2, "--offset needs a byte offset (decimal or 0x hexadecimal)");
      ++i;
    } else if (!args[i].empty() && args[i][0] == '-') {
      return Fail(2, "unknown option '" + args[i] + "'");
    } else if (file.empty()) {
      file = args[i];
    } else {
      return Fail(2, "dump takes one file");
    }
  }
  if (file.empty()) return Fail(2, "usage: mapcfg dump FILE [--offset N] [--raw]");

  mapcfg::CFFArchive archive;
  if (!archive.FromFile(file)) {
    const std::string why = archive.GetLastError();
    return Fail(1, why.find(file) != std::string::npos ? why : "cannot read " + file + ": " + why);
  }
  if (offset > archive.GetCount())
    return Fail(1, "offset " + std::to_string(offset) + " is beyond the end of " + file + " (" +
                       std::to_string(archive.GetCount()) + " bytes)");
  archive.ReadUnit(nullptr, offset);
  const mapcfg::ArchiveListing listing = mapcfg::sListArchive(archive);
  const std::string shown = raw ? listing.text : ForDisplay(listing.text);
  std::fwrite(shown.data(), 1, shown.size(), stdout);
  if (listing.complete) return 0;
  std::fflush(stdout);
  return Fail(1, file + ": stopped at byte offset " + std::to_string(listing.stop_offset) + " (tag " +
                     std::to_string(listing.stop_tag) + "): " + listing.reason);
}

}  // namespace mapcfg_tool
