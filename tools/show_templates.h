// mapcfg show for statistics template files ("*.ctp"): their templates,
// conditions, legends and items as a tree.
#ifndef MAPCFG_TOOLS_SHOW_TEMPLATES_H_
#define MAPCFG_TOOLS_SHOW_TEMPLATES_H_

#include <string>
#include <vector>

namespace mapcfg_tool {

// Whether the file at library path `path` begins with the archive text
// "Statis", as every statistics template file does.
bool IsStatTemplateFile(const std::string& path);

// Reads each template file as sCfgReadCTPFile does and prints what it
// holds; returns the exit status (1 when a file could not be read whole).
int ShowStatTemplates(const std::vector<std::string>& files, bool raw);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_SHOW_TEMPLATES_H_
