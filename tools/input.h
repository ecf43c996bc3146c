// The files the tool reads, opened as users mean them: "-" is standard
// input, anything that is not a regular file is refused, a bare file name
// is read from the current folder, and paths are shown as they were typed.
#ifndef MAPCFG_TOOLS_INPUT_H_
#define MAPCFG_TOOLS_INPUT_H_

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace mapcfg_tool {

// Standard input is read up to this many bytes; more is refused.
constexpr size_t kMaxStdinBytes = 256u * 1024 * 1024;

// A library path as the tool shows it and hands it to std::filesystem: the
// platform path with "/" separators (Windows takes them too), so that
// reports read the same on every system.
std::string ShownPath(const std::string& library_path);

enum class Unreadable { kNo, kMissing, kFolder, kNotRegular, kRefused };

// Why the file at `native` (a platform path) cannot be read as a regular
// file, or "" when it can: "No such file or directory", "it is a folder",
// "not a regular file ...", or the system's reason for refusing it. The
// kind of reason goes to *kind when it is given.
std::string WhyUnreadable(const std::string& native, Unreadable* kind = nullptr);

// Reads standard input whole into *bytes; false with *why set when it fails
// or holds more than kMaxStdinBytes.
bool ReadStdin(std::string* bytes, std::string* why);

// A script to hand to the library, and how to show the paths it reports.
class ScriptInput {
 public:
  ScriptInput() = default;
  ~ScriptInput();
  ScriptInput(const ScriptInput&) = delete;
  ScriptInput& operator=(const ScriptInput&) = delete;

  // Prepares `arg` as typed on the command line. A bare file name gets "./"
  // in front, since the library reads the includes of a bare name from the
  // root folder. "-" is copied to a file of its own in a new temporary
  // folder: a script from standard input has no folder, so its includes are
  // not found. False with *why set when the file cannot be read.
  bool Open(const std::string& arg, std::string* why);

  // The path for CCfgScript::Open.
  const std::string& path() const { return path_; }
  bool from_stdin() const { return !temp_dir_.empty(); }
  // A path the library reports, shown as the user would write it: the file
  // itself as typed, others as ShownPath gives them and without the
  // "./" the tool added, the script from standard input as "<stdin>".
  std::string Shown(const std::string& library_path) const;

 private:
  std::string typed_;
  std::string path_;
  std::string added_;     // the prefix the tool put in front, or ""
  std::string temp_dir_;  // folder of the copy of standard input, or ""
};

// Raised by a script observer to end a read: an included file that is not a
// regular file (a device or a pipe never ends).
struct ReadStopped : std::runtime_error {
  ReadStopped(std::string file, const std::string& why)
      : std::runtime_error(why), included(std::move(file)) {}
  std::string included;  // the library path of that file
};

// Throws ReadStopped when the file the library opened at `library_path` is
// not a regular file; for the OnFileBegin of an included file.
void StopUnlessRegular(const std::string& library_path);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_INPUT_H_
