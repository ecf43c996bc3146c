// mapcfg: shows what configuration scripts and archives hold.
#include <mapcfg/mapcfg.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "commands.h"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// After windows.h.
#include <shellapi.h>

#include <vector>

#include "base/code_pages.h"
#endif

namespace mapcfg_tool {

namespace {

const Option kJson = {"--json", nullptr, "one JSON document instead of lines (the form is in mapcfg(1))"};
const Option kRaw = {"--raw", nullptr, "texts as the bytes they are (GBK), nothing converted or escaped"};

// Every command, its operands and options, in the order --help lists them.
const Command kCommands[] = {
    {"script", "FILE", 1, 1,
     {{"--block", "NAME", "only the first block of that name (in UTF-8 or GBK)"}, kRaw, kJson},
     "list the blocks, keys and values a script yields",
     RunScript},
    {"check", "FILE...", 1, -1, {kJson}, "report what a script loses or does surprisingly, with file:line", RunCheck},
    {"dump", "FILE", 1, 1,
     {{"--offset", "N", "start at byte offset N (decimal or 0x hexadecimal), as dump shows them"},
      {"--raw", nullptr, "the library's own listing (TestData), byte for byte"},
      kJson},
     "list the values of an archive file with their byte offsets",
     RunDump},
    {"strings", "[INDEX]", 0, 1,
     {{"--lang", "en|zh", "one language only"},
      {"--find", "TEXT", "entries holding TEXT as shown (UTF-8 unless --raw), ASCII case ignored"},
      {"--help-rows", nullptr, "the shape help rows instead of the configuration strings"},
      kRaw},
     "configuration strings (block and key names) by index, English and Chinese side by side",
     RunStrings},
    {"show", "[FILE...]", 0, -1,
     {{"--table", "NAME", "only that table (sysparam, status, lith, colors, ..., wellloc, reserv, fence, correl, single)"},
      {"--lang", "en|zh", "read the scripts' blocks in that language (default: the one they use)"},
      {"--archive", "FILE", "load a whole-store archive (sCfgReadMain) instead of scripts"},
      {"--version", "N", "the archive version to read it with (default: the current layout)"},
      kRaw},
     "the configuration tables the scripts or a whole-store archive fill, record by record;\n"
     "      the templates of statistics template files (*.ctp)",
     RunShow},
    {"pack", "CONFIG", 1, 1,
     {{"-o", "FILE", "the archive file to write (required)"},
      {"--lang", "en|zh", "read the scripts' blocks in that language (default: the one they use)"}},
     "a whole configuration (folder, plate folder, script or pack) into one archive file",
     RunPack},
    {"diff", "A B", 2, 2,
     {{"--layout", nullptr, "compare which records and fields there are, not their values"},
      {"--lang", "en|zh", "read both configurations' scripts in that language"},
      kRaw},
     "two whole configurations compared field by field: what changed, was removed or added",
     RunDiff},
};

const Command* g_running = nullptr;

std::string UsageLine(const Command& c) {
  std::string line = std::string("mapcfg ") + c.name;
  for (const Option& o : c.options) line += std::string(" [") + o.name + (o.value ? std::string(" ") + o.value : "") + "]";
  return line + " " + c.operands;
}

void PrintHelp(std::FILE* out) {
  std::fprintf(out, "usage: mapcfg COMMAND [OPTIONS] [--] OPERANDS\n       mapcfg --help | --version\n\ncommands:\n");
  for (const Command& c : kCommands) std::fprintf(out, "  %s\n      %s\n", UsageLine(c).c_str(), c.summary);
  std::fprintf(out,
               "\nA FILE of \"-\" is standard input. Options take their value as --opt VALUE or\n"
               "--opt=VALUE; \"--\" ends the options. \"mapcfg COMMAND --help\" lists a command's\n"
               "options; mapcfg(1) has the rest.\n"
               "\nexit status: 0 success, 1 a problem was found or a file could not be read or\n"
               "written, 2 a usage error.\n");
}

void PrintCommandHelp(const Command& c) {
  std::printf("usage: %s\n  %s\n", UsageLine(c).c_str(), c.summary);
  if (c.options.empty()) return;
  std::printf("options:\n");
  for (const Option& o : c.options) {
    const std::string flag = std::string(o.name) + (o.value ? std::string(" ") + o.value : "");
    std::printf("  %-14s %s\n", flag.c_str(), o.help);
  }
}

const Option* FindOption(const Command& c, const std::string& name) {
  for (const Option& o : c.options)
    if (name == o.name) return &o;
  return nullptr;
}

// Parses the arguments after the command name. Returns -1 when the command
// should run, otherwise the exit status (help shown: 0, usage error: 2).
int Parse(const Command& c, int argc, char** argv, Call* call) {
  bool options_end = false;
  for (int i = 0; i < argc; ++i) {
    const std::string arg = argv[i];
    if (options_end || arg == "-" || arg.empty() || arg[0] != '-') {
      call->operands.push_back(arg);
      continue;
    }
    if (arg == "--") {
      options_end = true;
      continue;
    }
    if (arg == "--help" || arg == "-h") {
      PrintCommandHelp(c);
      return 0;
    }
    const size_t eq = arg.find('=');
    const std::string name = arg.substr(0, eq);
    const Option* o = FindOption(c, name);
    if (!o) return UsageError("unknown option '" + name + "'");
    if (!o->value) {
      if (eq != std::string::npos) return UsageError(name + " takes no value");
      call->options[name] = "";
    } else if (eq != std::string::npos) {
      call->options[name] = arg.substr(eq + 1);
    } else if (i + 1 < argc) {
      call->options[name] = argv[++i];
    } else {
      return UsageError(name + " needs a value (" + o->value + ")");
    }
  }
  const int n = static_cast<int>(call->operands.size());
  if (n < c.min_operands) return UsageError(std::string("missing ") + c.operands);
  if (c.max_operands >= 0 && n > c.max_operands)
    return UsageError("unexpected operand '" + call->operands[static_cast<size_t>(c.max_operands)] + "'");
  return -1;
}

int Dispatch(int argc, char** argv) {
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
    g_running = &c;
    Call call;
    const int status = Parse(c, argc - 2, argv + 2, &call);
    return status >= 0 ? status : c.run(call);
  }
  return Fail(2, "unknown command '" + cmd + "' (see mapcfg --help)");
}

}  // namespace

int Fail(int status, const std::string& message) {
  std::fprintf(stderr, "mapcfg: %s\n", message.c_str());
  return status;
}

int UsageError(const std::string& message) {
  Fail(2, message);
  if (g_running) std::fprintf(stderr, "usage: %s\n", UsageLine(*g_running).c_str());
  return 2;
}

std::string Folded(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return text;
}

}  // namespace mapcfg_tool

#if defined(_WIN32)
namespace {

// Windows hands main its arguments in the ANSI code page, which cannot hold
// every name: the tool takes them as UTF-8 from the wide command line, as
// on other systems. Its streams carry bytes (no CR added before LF), and a
// console shows the UTF-8 it writes.
std::vector<std::string> Utf8Arguments(int argc, char** argv) {
  std::vector<std::string> args(argv, argv + argc);
  int n = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &n);
  if (!wide) return args;
  if (n == argc)
    for (int i = 0; i < n; ++i) mapcfg::detail::FromWide(wide[i], mapcfg::detail::kCodePageUtf8, &args[i]);
  LocalFree(wide);
  return args;
}

void BinaryStreams() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

}  // namespace
#endif

int main(int argc, char** argv) {
#if defined(_WIN32)
  BinaryStreams();
  std::vector<std::string> utf8 = Utf8Arguments(argc, argv);
  std::vector<char*> utf8_argv;
  for (std::string& a : utf8) utf8_argv.push_back(&a[0]);
  utf8_argv.push_back(nullptr);
  argv = utf8_argv.data();
#endif
  int status = mapcfg_tool::Dispatch(argc, argv);
  // Whatever was written must have arrived: a full disk or a closed pipe is
  // an error, not a success with a shorter output.
  errno = 0;
  if (std::fflush(stdout) != 0 || std::ferror(stdout)) {
    const int err = errno;
    status = mapcfg_tool::Fail(1, std::string("cannot write the output: ") +
                                      (err ? std::strerror(err) : "write error"));
  }
  return status;
}
