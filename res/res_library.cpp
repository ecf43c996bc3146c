// A language resource library: serves the information texts of one
// language through its single export, dllGetResStrPtr. Built once per
// language; MAPCFG_RES_TEXTS names the table of texts to include.
#include "info_text_table.h"

#if defined(_WIN32)
#define MAPCFG_RES_EXPORT __declspec(dllexport)
#else
#define MAPCFG_RES_EXPORT __attribute__((visibility("default")))
#endif

namespace {

constexpr mapcfg::res::InfoText kTexts[] = {
#include MAPCFG_RES_TEXTS
};

}  // namespace

// Information text number `index`, or "" for a number this library does not
// hold. The text stays valid while the library is loaded.
extern "C" MAPCFG_RES_EXPORT const char* dllGetResStrPtr(int index) {
  return mapcfg::res::FindInfoText(kTexts, index);
}
