// Loading a whole configuration for pack, diff and show.
#include "config_set.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "commands.h"
#include "display_text.h"
#include "input.h"

namespace mapcfg_tool {

namespace {

namespace fs = std::filesystem;
using mapcfg::String;

struct Guard : mapcfg::ScriptEvents {
  void OnFileBegin(const std::string& file, int depth) override {
    if (depth > 1) StopUnlessRegular(file);
  }
};

bool HasExtension(const fs::path& p, const char* ext) {
  return Folded(p.extension().string()) == ext;
}

// The scripts of a plate folder: every ".cfg" file in it, by name.
std::vector<std::string> PlateScripts(const fs::path& folder) {
  std::vector<std::string> files;
  std::error_code ec;
  for (const fs::directory_entry& e : fs::directory_iterator(folder, ec))
    if (e.is_regular_file(ec) && HasExtension(e.path(), ".cfg")) files.push_back(e.path().string());
  std::sort(files.begin(), files.end());
  return files;
}

// The plate folder of a configuration folder: its settings file's
// Current_Cfg_Plate, relative to the folder unless absolute.
bool PlateOf(const fs::path& home, fs::path* plate, std::string* why) {
  *mapcfg::sGetHomeDirPtr() = home.string();
  mapcfg::sReadConfig();
  const String named = *mapcfg::sGetCfgPlatePath();
  if (named.empty()) {
    *why = "cannot read " + NameToDisplay(home.string()) + ": its settings file names no plate (Current_Cfg_Plate)";
    return false;
  }
  const fs::path p = mapcfg::sToNativePath(named);
  *plate = p.is_absolute() ? p : home / p;
  return true;
}

}  // namespace

void EmptyStore() {
  mapcfg::sCfgClearPlate();
  // The extension and menu lists outlive a plate in a host; a configuration
  // brings its own.
  for (mapcfg::StringArray* list : {mapcfg::sCfgGetLibNamesPtr(), mapcfg::sCfgGetLibDllsPtr(),
                                     mapcfg::sCfgGetMenuNamesPtr(), mapcfg::sCfgGetMenuFunsPtr()})
    list->clear();
}

bool LoadScripts(const std::vector<std::string>& files, char lang, LoadedConfig* loaded, std::string* why) {
  mapcfg::CCfgScript script;
  Guard guard;
  for (size_t i = 0; i < files.size(); ++i) {
    ScriptInput input;
    if (!input.Open(files[i], why)) {
      *why = "cannot read " + NameToDisplay(files[i]) + ": " + *why;
      return false;
    }
    try {
      script.Open(input.path().c_str(), i > 0 ? 1 : 0, &guard);
    } catch (const ReadStopped& e) {
      *why = NameToDisplay(input.Shown(e.included)) + " is " + e.what() + ": reading stopped there";
      return false;
    }
  }
  loaded->lang = lang >= 0 ? lang : GuessLanguage(script);
  *mapcfg::sGetCfgLang() = loaded->lang;
  mapcfg::sCfgReadAll(script);
  loaded->source = "scripts";
  loaded->files = files;
  return true;
}

bool ParseLang(const std::string& value, char* lang) {
  if (value != "en" && value != "zh") return false;
  *lang = value == "zh" ? 1 : 0;
  return true;
}

char GuessLanguage(const mapcfg::CCfgScript& script) {
  int found[2] = {0, 0};
  for (int index = 0; index < mapcfg::kCfgStrCount; ++index)
    for (char lang : {0, 1}) {
      const String name = mapcfg::sGetCfgStr(lang, index);
      if (!name.empty() && script.GetKeyCnt(name.c_str()) >= 0) ++found[static_cast<int>(lang)];
    }
  return found[1] > found[0] ? 1 : 0;
}

bool IsPackFile(const std::string& path) {
  mapcfg::CFFArchive archive;
  if (!WhyUnreadable(mapcfg::sToNativePath(path)).empty() || !archive.FromFile(path)) return false;
  return archive.GetString() == "mapcfg configuration pack";
}

bool LoadConfig(const std::string& arg, char lang, LoadedConfig* loaded, std::string* why) {
  EmptyStore();
  std::error_code ec;
  const fs::path path = mapcfg::sToNativePath(arg);
  if (fs::is_directory(path, ec)) {
    // A configuration folder names its plate in its settings file, and keeps
    // statistics templates in its folder "stat"; any other folder is a plate,
    // of the configuration around it if there is one.
    const auto is_configuration = [&ec](const fs::path& p) {
      return fs::is_regular_file(p / "Config" / "Vantrope.cfg", ec);
    };
    fs::path plate = path, home;
    if (is_configuration(path)) {
      home = path;
      if (!PlateOf(path, &plate, why)) return false;
    } else {
      fs::path clean = fs::absolute(path, ec).lexically_normal();
      if (!clean.has_filename()) clean = clean.parent_path();
      if (is_configuration(clean.parent_path())) home = clean.parent_path();
    }
    if (!fs::is_directory(plate, ec)) {
      *why = "cannot read " + NameToDisplay(arg) + ": the plate folder " + NameToDisplay(plate.string()) + " does not exist";
      return false;
    }
    const std::vector<std::string> files = PlateScripts(plate);
    if (files.empty()) {
      *why = "cannot read " + NameToDisplay(arg) + ": no scripts (*.cfg) in " + NameToDisplay(plate.string());
      return false;
    }
    if (!LoadScripts(files, lang, loaded, why)) return false;
    std::vector<fs::path> template_folders = {plate};
    if (!home.empty()) template_folders.push_back(home / "stat");
    for (const fs::path& folder : template_folders) {
      if (!fs::is_directory(folder, ec)) continue;
      const String error = mapcfg::sCfgReadCTPFiles(folder.string());
      if (!error.empty()) {
        *why = "cannot read the statistics templates of " + NameToDisplay(folder.string()) + ": " + ToDisplay(error, false);
        return false;
      }
    }
    return true;
  }
  if (arg != "-" && IsPackFile(arg)) {
    mapcfg::CFFArchive archive;
    archive.FromFile(arg);
    char packed = 0;
    const String error = mapcfg::sCfgReadPack(archive, &packed);
    if (!error.empty()) {
      *why = NameToDisplay(arg) + ": the pack stops early: " + ToDisplay(error, false);
      return false;
    }
    loaded->lang = packed;
    *mapcfg::sGetCfgLang() = packed;
    loaded->source = "pack";
    return true;
  }
  return LoadScripts({arg}, lang, loaded, why);
}

}  // namespace mapcfg_tool
