// Extension libraries, external menu tools and extra functions.
#include <stdexcept>

#include "base/native_path.h"
#include "mapcfg/store.h"
#include "mapcfg/values.h"
#include "store/module_loader.h"
#include "store/script_fields.h"
#include "store/store_state.h"

namespace mapcfg {

using detail::State;

void sCfgReadLibDlls(CCfgScript& script) {
  detail::ReadNameValueBlock(script, cfg::kExpandDLL, State().lib_names, State().lib_dlls);
}

void sCfgReadMenuFuns(CCfgScript& script) {
  detail::ReadNameValueBlock(script, cfg::kApplicationMenu, State().menu_names, State().menu_funs);
}

StringArray* sCfgGetLibNamesPtr() { return &State().lib_names; }
StringArray* sCfgGetLibDllsPtr() { return &State().lib_dlls; }
StringArray* sCfgGetMenuNamesPtr() { return &State().menu_names; }
StringArray* sCfgGetMenuFunsPtr() { return &State().menu_funs; }

void* sLoadDll(const char* file) {
  if (!file) return nullptr;
  detail::StoreState& s = State();
  const String name = file;
  const int found = sAscFind(s.module_names, name, 1);
  if (found >= 0) return s.module_handles[static_cast<size_t>(found)];
  // A failed load is kept as a null handle, so it is never tried again.
  void* module = detail::OpenModule(detail::ResolvePath(name));
  const size_t at = static_cast<size_t>(~found);
  s.module_names.insert(s.module_names.begin() + static_cast<std::ptrdiff_t>(at), name);
  s.module_handles.insert(s.module_handles.begin() + static_cast<std::ptrdiff_t>(at), module);
  return module;
}

int sAddExtraFun(const char* name, ExtraFun fun) {
  if (!name) return -1;
  detail::StoreState& s = State();
  const int found = sAscFind(s.extra_names, name, 1);
  if (found >= 0) return -1;
  const int at = ~found;
  s.extra_names.insert(s.extra_names.begin() + at, name);
  s.extra_funs.insert(s.extra_funs.begin() + at, fun);
  return at;
}

ExtraFun sGetExtraFunAddr(const char* name) {
  if (!name) return nullptr;
  const int found = sAscFind(State().extra_names, name, 1);
  return found >= 0 ? State().extra_funs[static_cast<size_t>(found)] : nullptr;
}

int sGetExtraFunCount() { return static_cast<int>(State().extra_names.size()); }

String sGetExtraFunName(int index) {
  const StringArray& names = State().extra_names;
  if (index < 0 || static_cast<size_t>(index) >= names.size())
    throw std::out_of_range("sGetExtraFunName: index " + std::to_string(index) + " outside the extra functions");
  return names[static_cast<size_t>(index)];
}

}  // namespace mapcfg
