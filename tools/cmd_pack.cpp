// mapcfg pack: a whole configuration into one archive file.
#include <mapcfg/mapcfg.h>

#include <cstdio>

#include "commands.h"
#include "config_set.h"
#include "display_text.h"

namespace mapcfg_tool {

int RunPack(const Call& call) {
  if (!call.Has("-o")) return UsageError("missing -o FILE");
  char lang = -1;
  if (call.Has("--lang") && !ParseLang(call.Value("--lang"), &lang))
    return UsageError("--lang takes en or zh, not '" + NameToDisplay(call.Value("--lang")) + "'");
  const char saved_lang = *mapcfg::sGetCfgLang();
  const std::string& from = call.operands[0];
  const std::string& to = call.Value("-o");
  LoadedConfig loaded;
  std::string why;
  int status = 0;
  if (!LoadConfig(from, lang, &loaded, &why)) {
    status = Fail(1, why);
  } else {
    mapcfg::CFFArchive archive;
    const mapcfg::String error = mapcfg::sCfgWritePack(archive);
    if (!error.empty() || !archive.ToFile(to)) {
      status = Fail(1, "cannot write " + NameToDisplay(to) + ": " + ToDisplay(archive.GetLastError(), false));
    } else {
      const std::string read_from =
          loaded.source == "pack" ? "a pack" : std::to_string(loaded.files.size()) + (loaded.files.size() == 1 ? " script" : " scripts");
      std::printf("packed %s (%s, %s) into %s: %zu fields\n", NameToDisplay(from).c_str(), read_from.c_str(),
                  loaded.lang ? "Chinese" : "English", NameToDisplay(to).c_str(), mapcfg::sDescribeAll().size());
    }
  }
  EmptyStore();
  *mapcfg::sGetCfgLang() = saved_lang;
  return status;
}

}  // namespace mapcfg_tool
