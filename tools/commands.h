// The subcommands of the mapcfg tool and the one option parser they share.
// Each command is described once, in main.cpp's table: its operands, its
// options and their help. The parser turns the arguments after the command
// name into a Call; the command returns the exit status: 0 success, 1 a
// problem found or a file that could not be read, 2 a usage error.
#ifndef MAPCFG_TOOLS_COMMANDS_H_
#define MAPCFG_TOOLS_COMMANDS_H_

#include <map>
#include <string>
#include <vector>

namespace mapcfg_tool {

struct Option {
  const char* name;   // "--block"
  const char* value;  // name of its value ("NAME"), or null for a flag
  const char* help;   // one line
};

// A command line after parsing: operands in order, options by name ("--raw"
// maps to "" for a flag; the last of repeated options counts).
struct Call {
  std::vector<std::string> operands;
  std::map<std::string, std::string> options;
  bool Has(const char* name) const { return options.count(name) > 0; }
  const std::string& Value(const char* name) const { return options.at(name); }
};

struct Command {
  const char* name;
  const char* operands;  // as the usage line shows them: "FILE", "FILE..."
  int min_operands;
  int max_operands;  // -1: any number
  std::vector<Option> options;
  const char* summary;  // one line
  int (*run)(const Call& call);
};

int RunScript(const Call& call);
int RunCheck(const Call& call);
int RunDump(const Call& call);
int RunStrings(const Call& call);
int RunShow(const Call& call);
int RunPack(const Call& call);
int RunDiff(const Call& call);

// Prints "mapcfg: " + message on stderr and returns `status`.
int Fail(int status, const std::string& message);
// A usage error of the running command: the message, then its usage line;
// returns 2.
int UsageError(const std::string& message);

// `text` with ASCII letters in lower case, as the library compares names.
std::string Folded(std::string text);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_COMMANDS_H_
