// The whole configuration at once: every table of the store and every map
// kind, read from one script, written to and read from one archive (a
// configuration pack), and described field by field for tools that compare
// configurations.
#ifndef MAPCFG_CONFIGURATION_H_
#define MAPCFG_CONFIGURATION_H_

#include <cstdint>

#include "mapcfg/archive.h"
#include "mapcfg/export.h"
#include "mapcfg/script.h"
#include "mapcfg/types.h"

namespace mapcfg {

// The layout version of the streams a pack holds, handed to their readers:
// the newest layout of any record this library writes.
constexpr uint32_t kPackLayoutVersion = 0x03030001;

// Runs every script reader of the store on `script`, in the current
// language: system parameters, extensions, catalogues, symbol tables, text
// formats, data sources, label curves, contour parameters and every map
// kind. Statistics templates come from their own files (sCfgReadCTPFiles).
MAPCFG_EXPORT void sCfgReadAll(CCfgScript& script);

// Writes the whole configuration as a pack: the text "mapcfg configuration
// pack", Long kPackLayoutVersion, Byte language (*sGetCfgLang()), Long
// number of sections, then each section as its name (String) and its
// stream: the whole store, the four map kinds, the plane-shape and
// migration templates, and the statistics templates as one template file.
// Returns "" or the archive's error text.
MAPCFG_EXPORT String sCfgWritePack(CFFArchive& archive);

// Reads a pack written by sCfgWritePack into the tables; `language`, when
// not null, receives the language byte it was written under. Returns "" or
// why it stopped: the archive's error text, or a message for a file that is
// not a pack, a newer pack or an unknown section. Sections read before a
// failure keep what they received.
MAPCFG_EXPORT String sCfgReadPack(CFFArchive& archive, char* language = nullptr);

// Every field of the whole configuration, section by section:
// "store.statusProps[0].name", "fence.frame.MapName" ...
MAPCFG_EXPORT FieldTexts sDescribeAll();

}  // namespace mapcfg

#endif  // MAPCFG_CONFIGURATION_H_
