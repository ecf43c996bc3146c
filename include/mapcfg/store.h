// The process-wide configuration store: directories, settings, language and
// message tables, extension libraries, system parameters, and the whole
// store as one archive stream.
//
// All of it lives in the library for the whole time it is loaded: it is
// created when the library is loaded and emptied (sCfgClearPlate) and
// destroyed when it is unloaded. Pointers returned by the `...Ptr` getters
// point into the library's own storage; hosts may read and write through
// them and never free them.
//
// Thread safety: none. The state is process-wide and unguarded; hosts call
// these functions from one thread.
#ifndef MAPCFG_STORE_H_
#define MAPCFG_STORE_H_

#include <string>

#include "mapcfg/export.h"
#include "mapcfg/archive.h"
#include "mapcfg/script.h"
#include "mapcfg/types.h"

namespace mapcfg {

// Source of information texts: the "dllGetResStrPtr" export of a language
// resource library. The returned text belongs to the resource library.
using ResStrFun = const char* (*)(int);
// A function registered by name with sAddExtraFun. What the argument points
// to is agreed between the module that registers and the one that calls.
using ExtraFun = std::string (*)(void*);
// Shows a message box for sMsgBox: kind 0 error (OK), 1 warning (OK),
// 2 question (Yes/No). Returns non-zero for OK or Yes, 0 for No. `text` is
// only valid during the call.
using MsgBoxHandler = int (*)(char kind, const char* text);

// --- Directories and start-up settings -----------------------------------

// The seven directory Strings, empty at load. The host writes them (the
// library never works them out); the library itself uses only the home
// directory, without trailing "\", for the settings file and the resource
// library.
MAPCFG_EXPORT String* sGetHomeDirPtr();
MAPCFG_EXPORT String* sGetConfigDirPtr();
MAPCFG_EXPORT String* sGetWorkProjDirPtr();
MAPCFG_EXPORT String* sGetOpenMapDirPtr();
MAPCFG_EXPORT String* sGetSaveMapDirPtr();
MAPCFG_EXPORT String* sGetOpenFileDirPtr();
MAPCFG_EXPORT String* sGetSaveFileDirPtr();
// A copy of the home directory.
MAPCFG_EXPORT String sGetHomeDir();
// The current configuration template name and plate path, empty at load and
// set by sReadConfig.
MAPCFG_EXPORT String* sGetCfgTemplName();
MAPCFG_EXPORT String* sGetCfgPlatePath();
// Reads home + "\Config\Vantrope.cfg": lines "Current_Cfg_Templ = name" and
// "Current_Cfg_Plate = path" (key without case; the value ends at the first
// "/", so a trailing "// remark" goes; blanks around it go; the last line of a
// key wins). Lines whose key begins with "//" and other keys are ignored. A
// missing file or key leaves the names as they were.
MAPCFG_EXPORT void sReadConfig();
// Writes both settings to home + "\Config\Vantrope.cfg", each as
// "Key = value" + CR LF; silently does nothing when the file cannot be made.
MAPCFG_EXPORT void sWriteConfig();
// Empties every configuration table of the store and frees its records.
MAPCFG_EXPORT void sCfgClearPlate();

// --- Language and messages -------------------------------------------------

// Number of configuration strings (the last, 541, is empty) and of shape
// help rows (the last, 35, is empty).
constexpr int kCfgStrCount = 542;
constexpr int kHelpStrCount = 36;

// The language byte: 1 selects Chinese (GBK) texts, any other value English.
// It starts at 1. Hosts change it through the pointer.
MAPCFG_EXPORT char* sGetCfgLang();
// Configuration string `index` (block and key names, fixed texts) of the
// Chinese table when `lang` is 1, else of the English one. The empty String
// when index is outside 0 .. kCfgStrCount - 1.
MAPCFG_EXPORT String sGetCfgStr(char lang, int index);
// Shape help row `index`, Chinese when `lang` is 1, else English. The empty
// String when index is outside 0 .. kHelpStrCount - 1.
MAPCFG_EXPORT String sGetHelpStr(char lang, int index);
// Information text number `index` from the current language resource
// library; before one is loaded, the built-in English text for the numbers
// the library uses itself, and the empty String for any other.
MAPCFG_EXPORT String sGetInfoStr(int index);
// The information-text source: null until a resource library is loaded.
// Hosts may set it to a function of their own.
MAPCFG_EXPORT ResStrFun* sDllGetResStrPtr();
// The name of the current language resource library, which hosts store here.
MAPCFG_EXPORT String* sCfgGet_dllResourcePtr();
// Loads home + "\" + `file` through sLoadDll. When that gives a module, it
// becomes the current resource module and its "dllGetResStrPtr" export the
// information-text source; otherwise nothing changes. Always returns the
// empty String.
MAPCFG_EXPORT String sLoadResoueceDLL(const char* file);
// The module handle of the current language resource library, or null.
MAPCFG_EXPORT void* sGetResourceModule();
// Shows `text` through the installed handler and returns: kinds 0 and 1 give
// 1, kind 2 gives 1 for Yes and 0 for No; any other kind shows nothing and
// gives 0. Without a handler nothing is shown and the answer is OK (1) for
// kinds 0 and 1 and No (0) for kind 2. `text` may be null (shown as "").
MAPCFG_EXPORT int sMsgBox(char kind, const char* text);
// Installs the message-box handler and returns the previous one; null
// restores the default.
MAPCFG_EXPORT MsgBoxHandler sSetMsgBoxHandler(MsgBoxHandler handler);
// The four bytes of `version`, most significant first, in hexadecimal and
// separated by "." (0x03012067 gives "3.1.20.67").
MAPCFG_EXPORT String sGetVersionStr(uint32_t version);

// --- Extension libraries, menus and extra functions -------------------------

// Appends every key of the block "ExpandDLL" (configuration string 3 in the
// current language) to the library names and its raw value to the library
// files, in file order. Nothing is emptied first.
MAPCFG_EXPORT void sCfgReadLibDlls(CCfgScript& script);
// Same for the block "ApplicationMenu" (configuration string 2) into the
// menu names and menu functions.
MAPCFG_EXPORT void sCfgReadMenuFuns(CCfgScript& script);
// The four lists above, parallel in pairs.
MAPCFG_EXPORT StringArray* sCfgGetLibNamesPtr();
MAPCFG_EXPORT StringArray* sCfgGetLibDllsPtr();
MAPCFG_EXPORT StringArray* sCfgGetMenuNamesPtr();
MAPCFG_EXPORT StringArray* sCfgGetMenuFunsPtr();
// Loads the shared library `file` (a library path, see sToNativePath) once
// per process: later calls with the same name, compared without case, return
// the same handle. A load that failed is remembered too and gives null
// without trying again. Modules are never unloaded. `file` may be null
// (gives null).
MAPCFG_EXPORT void* sLoadDll(const char* file);
// Registers `fun` under `name` (unique without case). Returns the index at
// which the name now stands in the ordered name list, or -1 (and changes
// nothing) when the name exists or is null. Later indices shift.
MAPCFG_EXPORT int sAddExtraFun(const char* name, ExtraFun fun);
// The function registered under `name` (without case), or null.
MAPCFG_EXPORT ExtraFun sGetExtraFunAddr(const char* name);
// Number of registered extra functions.
MAPCFG_EXPORT int sGetExtraFunCount();
// Name number `index` in ascending order without case. Throws
// std::out_of_range when index is outside 0 .. count - 1.
MAPCFG_EXPORT String sGetExtraFunName(int index);

// --- System parameters and display systems ------------------------------------
// Depths and coordinates are stored in a source system (0 metres, 1 feet)
// and shown in a display system: 0 metric, 1 feet, n >= 2 the user system
// n - 2, which only an archive brings.

// Script block "SysCfgParam" ("系统配置参数"): keys "DatumHeight" (double),
// "DepthDispSystem" and "CoordDispSystem" (integers). Archive: Double
// datumHeight, Byte depthSystem, Byte coordSystem, Long count of user depth
// systems, then each as String text1, Double factor, String text2; the same
// for the coordinate systems. Archives older than 0x03012067 hold none of
// it.
struct _SysCfgParam {
  double datumHeight = 0.0;
  uint8_t depthSystem = 0;
  uint8_t coordSystem = 0;
  StringArray depthTexts1;
  std::vector<double> depthFactors;
  StringArray depthTexts2;
  StringArray coordTexts1;
  std::vector<double> coordFactors;
  StringArray coordTexts2;
};

// The store's system parameters.
MAPCFG_EXPORT _SysCfgParam* sCfgGetSysCfgParamPtr();
// Reads the three keys (a missing or unreadable value gives 0) and drops
// every user system.
MAPCFG_EXPORT void sCfgReadSysCfgParam(CCfgScript& script);
// Factor and captions of source system `system`: 1 feet (3.28084), anything
// else metric (1.0). Captions go only through non-null pointers.
MAPCFG_EXPORT double cfgGetOrgSystem(char system, String* first, String* second);
// Factor (display units per metre) and captions of the depth or coordinate
// display system; an unknown user system falls back to metric.
MAPCFG_EXPORT double cfgGetDepthDispSystem(String* first, String* second);
MAPCFG_EXPORT double cfgGetCoordDispSystem(String* first, String* second);
// The factor that turns a value stored in system `org` into the display
// system, with the display system's captions.
MAPCFG_EXPORT double cfgDepthOrg2DispSystem(char org, String* first, String* second);
MAPCFG_EXPORT double cfgCoordOrg2DispSystem(char org, String* first, String* second);

// --- The whole store as one archive stream ---------------------------------------
// System parameters, extension and menu lists, the status, interpretation
// and lithology catalogues, colours, the name-to-picture catalogues, preset
// colours, text formats, data sources and label curves, in that order.
// Writing and reading stop at the first failure and return the archive's
// error text ("" on success); tables read before it keep what they
// received.
MAPCFG_EXPORT String sCfgWriteMain(CFFArchive& archive);
MAPCFG_EXPORT String sCfgReadMain(CFFArchive& archive, uint32_t version);

// --- Statistics template files -------------------------------------------------------
// Loads the file at `path`; when it begins with the text "Statis", reads its
// templates into the store (sCfgReadMapStat, mapcfg/maps.h) and returns ""
// or the error text. A file that cannot be loaded or is of another kind is
// skipped: "".
MAPCFG_EXPORT String sCfgReadCTPFile(const char* path);
// sCfgReadCTPFile on every file "*.ctp" of the folder `dir` (not its
// subfolders), in name order without case; stops at the first error text
// and returns it, else "".
MAPCFG_EXPORT String sCfgReadCTPFiles(const String& dir);

}  // namespace mapcfg

#endif  // MAPCFG_STORE_H_
