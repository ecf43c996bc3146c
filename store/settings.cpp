// The start-up settings file: home + "\Config\Vantrope.cfg".
#include <cstdio>
#include <memory>

#include "mapcfg/platform.h"
#include "mapcfg/script.h"
#include "mapcfg/store.h"
#include "script/text_bytes.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

constexpr char kTemplKey[] = "Current_Cfg_Templ";
constexpr char kPlateKey[] = "Current_Cfg_Plate";
// The settings file was read with a line buffer of this size: a longer line
// is taken as several lines of kLineBuffer - 1 bytes.
constexpr int kLineBuffer = 2048;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

String SettingsPath() { return sGetHomeDir() + "\\Config\\Vantrope.cfg"; }

// Reads a file line by line as the suite's platform reads a text file: CR LF
// is one line end, a Ctrl-Z byte ends the file, and a line longer than the
// buffer comes in pieces. Lines keep their "\n".
class TextLineReader {
 public:
  explicit TextLineReader(std::FILE* f) : f_(f) {}
  // False at end of file.
  bool Next(String& line) {
    line.clear();
    while (!ended_ && line.size() < static_cast<size_t>(kLineBuffer - 1)) {
      int c = std::fgetc(f_);
      if (c == EOF || c == 0x1A) {
        ended_ = true;
        break;
      }
      if (c == '\r') {
        const int next = std::fgetc(f_);
        if (next == '\n') {
          c = '\n';
        } else if (next != EOF) {
          std::ungetc(next, f_);
        }
      }
      line += static_cast<char>(c);
      if (c == '\n') break;
    }
    return !line.empty();
  }

 private:
  std::FILE* f_;
  bool ended_ = false;
};

// The value of a settings line: from after the "=" to the first "/",
// trimmed.
String ValueAfter(const String& line, int eq) { return sGetSubStr(line, '/', eq + 1, nullptr, "", "", 1); }

}  // namespace

void sReadConfig() {
  File f(sOpenFile(SettingsPath(), "rb"), std::fclose);
  if (!f) return;
  TextLineReader reader(f.get());
  String line;
  while (reader.Next(line)) {
    // The platform's line reader stops at a NUL byte.
    line.resize(std::char_traits<char>::length(line.c_str()));
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
