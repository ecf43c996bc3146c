// A whole configuration as the tool's users name it: a configuration folder
// (with the settings file Config/Vantrope.cfg naming the current plate), a
// plate folder of scripts, one script, or a pack written by `mapcfg pack`.
#ifndef MAPCFG_TOOLS_CONFIG_SET_H_
#define MAPCFG_TOOLS_CONFIG_SET_H_

#include <mapcfg/mapcfg.h>

#include <string>
#include <vector>

namespace mapcfg_tool {

struct LoadedConfig {
  std::string source;               // what was read: "scripts", "pack"
  std::vector<std::string> files;   // the scripts read, as shown to the user
  char lang = 0;                    // the language it was read in
};

// Empties the store and loads `arg` into it, reading scripts in `lang` (0
// English, 1 Chinese, -1 the language their block names use). Leaves the
// language byte set to the configuration's. False with *why set to the
// whole message when it cannot be read.
bool LoadConfig(const std::string& arg, char lang, LoadedConfig* loaded, std::string* why);

// Empties nothing: reads `files` (script paths as typed) as one script,
// appended in order, and runs every reader of the library on it in `lang`
// (-1: the language the block names use), which it leaves in force.
bool LoadScripts(const std::vector<std::string>& files, char lang, LoadedConfig* loaded, std::string* why);

// Empties every table of the store, the extension and menu lists too.
void EmptyStore();

// Whether `path` starts as a pack (the check reads only the file's head).
bool IsPackFile(const std::string& path);

// The language whose block names the script uses more: the configuration
// strings of the readers are counted in both languages.
char GuessLanguage(const mapcfg::CCfgScript& script);

// Reads the language option's value ("en" or "zh") into *lang; false for
// any other value.
bool ParseLang(const std::string& value, char* lang);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_CONFIG_SET_H_
