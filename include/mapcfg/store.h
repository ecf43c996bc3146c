// The process-wide configuration store: directories, settings, language and
// message tables, extension libraries.
#ifndef MAPCFG_STORE_H_
#define MAPCFG_STORE_H_

#include <string>

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {

// Source of information texts: the "dllGetResStrPtr" export of a language
// resource library. The returned text belongs to the resource library.
using ResStrFun = const char* (*)(int);

// Information text number `index` from the current language resource
// library; before one is loaded, the built-in English text for the numbers
// the library uses itself, and the empty String for any other.
MAPCFG_EXPORT String sGetInfoStr(int index);

}  // namespace mapcfg

#endif  // MAPCFG_STORE_H_
