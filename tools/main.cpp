// mapcfg: shows what configuration scripts and archives hold.
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <cstring>

#include "commands.h"

namespace mapcfg_tool {

namespace {

// Subcommands, in the order --help lists them.
const Command kCommands[] = {
    {"script", "FILE [--block NAME] [--raw]", "list the blocks, keys and values a script yields", RunScript},
    {"check", "FILE...", "report what a script loses or does surprisingly, with file:line", RunCheck},
    {"dump", "FILE [--offset N] [--raw]", "list the values of an archive file, tag by tag", RunDump},
    {"strings", "[--lang en|zh] [--help-rows] [--raw] [INDEX | --find TEXT]",
     "configuration strings (block and key names) by index, English and Chinese side by side", RunStrings},
};

void PrintHelp(std::FILE* out) {
  std::fprintf(out,
               "usage: mapcfg COMMAND [ARGS]\n"
               "       mapcfg --help | --version\n\ncommands:\n");
  for (const Command& c : kCommands) std::fprintf(out, "  %s %s\n      %s\n", c.name, c.synopsis, c.summary);
  std::fprintf(out,
               "\nexit status: 0 success, 1 a problem was found or a file could not be read,\n"
               "2 a usage error.\n");
}

}  // namespace

int Fail(int status, const std::string& message) {
  std::fprintf(stderr, "mapcfg: %s\n", message.c_str());
  return status;
}

bool CanRead(const std::string& path) {
  std::FILE* f = mapcfg::sOpenFile(path, "rb");
  if (!f) return false;
  std::fclose(f);
  return true;
}

std::string Folded(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return text;
}

}  // namespace mapcfg_tool

int main(int argc, char** argv) {
  using namespace mapcfg_tool;
  if (argc < 2) {
    PrintHelp(stderr);
    return 2;
  }
  const std::string cmd = argv[1];
  if (cmd == "--help" || cmd == "-h" || cmd == "help") {
    PrintHelp(stdout);
    return 0;
  }
  if (cmd == "--version") {
    std::printf("mapcfg %s\n", mapcfg::sLibraryVersion());
    return 0;
  }
  for (const Command& c : kCommands) {
    if (cmd != c.name) continue;
    Args args(argv + 2, argv + argc);
    for (const std::string& a : args)
      if (a == "--help" || a == "-h") {
        std::printf("usage: mapcfg %s %s\n  %s\n", c.name, c.synopsis, c.summary);
        return 0;
      }
    return c.run(args);
  }
  return Fail(2, "unknown command '" + cmd + "' (see mapcfg --help)");
}
