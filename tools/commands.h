// The subcommands of the mapcfg tool. Each takes the arguments after its
// name and returns the exit status: 0 success, 1 a problem found or a file
// that could not be read, 2 a usage error.
#ifndef MAPCFG_TOOLS_COMMANDS_H_
#define MAPCFG_TOOLS_COMMANDS_H_

#include <string>
#include <vector>

namespace mapcfg_tool {

using Args = std::vector<std::string>;

struct Command {
  const char* name;
  const char* synopsis;  // arguments, as shown by --help
  const char* summary;   // one line
  int (*run)(const Args& args);
};

int RunScript(const Args& args);
int RunCheck(const Args& args);
int RunDump(const Args& args);
int RunStrings(const Args& args);

// Prints "mapcfg: " + message on stderr and returns `status`.
int Fail(int status, const std::string& message);

// True when `path` (a library path) names a file that can be opened.
bool CanRead(const std::string& path);

// `text` with ASCII letters in lower case, as the library compares names.
std::string Folded(std::string text);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_COMMANDS_H_
