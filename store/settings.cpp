// The start-up settings file: home + "\Config\Vantrope.cfg".
#include <cstdio>
#include <memory>

#include "mapcfg/platform.h"
#include "mapcfg/script.h"
#include "mapcfg/store.h"
#include "base/line_source.h"
#include "base/text_bytes.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

constexpr char kTemplKey[] = "Current_Cfg_Templ";
constexpr char kPlateKey[] = "Current_Cfg_Plate";
using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

String SettingsPath() { return sGetHomeDir() + "\\Config\\Vantrope.cfg"; }

// The value of a settings line: from after the "=" to the first "/",
// trimmed.
String ValueAfter(const String& line, int eq) { return sGetSubStr(line, '/', eq + 1, nullptr, "", "", 1); }

}  // namespace

void sReadConfig() {
  File f(sOpenFile(SettingsPath(), "rb"), std::fclose);
  if (!f) return;
  // Read as text, in the same pieces as scripts are.
  detail::LineSource lines(f.get());
  std::string_view piece;
  bool split = false;
  while (lines.Next(&piece, &split)) {
    const String line(piece);
    int eq = 0;
    const String key = sGetSubStr(line, '=', 0, &eq, "", "", 1);
    if (key.compare(0, 2, "//") == 0) continue;
    if (detail::EqualsNoCase(key, kTemplKey)) {
      *sGetCfgTemplName() = ValueAfter(line, eq);
    } else if (detail::EqualsNoCase(key, kPlateKey)) {
      *sGetCfgPlatePath() = ValueAfter(line, eq);
    }
  }
}

void sWriteConfig() {
  File f(sOpenFile(SettingsPath(), "wb"), std::fclose);
  if (!f) return;
  const String text = String(kTemplKey) + " = " + *sGetCfgTemplName() + "\r\n" + kPlateKey + " = " +
                      *sGetCfgPlatePath() + "\r\n";
  std::fwrite(text.data(), 1, text.size(), f.get());
}

}  // namespace mapcfg
