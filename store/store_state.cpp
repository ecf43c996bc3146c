// The store's process-wide state, the directories and sCfgClearPlate.
#include "store/store_state.h"

namespace mapcfg {
namespace detail {

Table::~Table() = default;

StoreState::StoreState() {
  for (std::unique_ptr<String>& dir : dirs)
    if (!dir) dir = std::make_unique<String>();
}

StoreState::~StoreState() { ClearTables(); }

void StoreState::ClearTables() {
  for (const std::unique_ptr<Table>& table : tables) table->Clear();
}

StoreState& State() {
  static StoreState state;
  return state;
}

namespace {
// Creates the store while the library is loaded, so that it exists before
// any host call.
[[maybe_unused]] const bool kStoreCreatedAtLoad = (State(), true);
}  // namespace

Table* AddTable(std::unique_ptr<Table> table) {
  State().tables.push_back(std::move(table));
  return State().tables.back().get();
}

}  // namespace detail

using detail::State;

String* sGetHomeDirPtr() { return State().dirs[detail::kHomeDir].get(); }
String* sGetConfigDirPtr() { return State().dirs[detail::kConfigDir].get(); }
String* sGetWorkProjDirPtr() { return State().dirs[detail::kWorkProjDir].get(); }
String* sGetOpenMapDirPtr() { return State().dirs[detail::kOpenMapDir].get(); }
String* sGetSaveMapDirPtr() { return State().dirs[detail::kSaveMapDir].get(); }
String* sGetOpenFileDirPtr() { return State().dirs[detail::kOpenFileDir].get(); }
String* sGetSaveFileDirPtr() { return State().dirs[detail::kSaveFileDir].get(); }
String sGetHomeDir() { return *sGetHomeDirPtr(); }
String* sGetCfgTemplName() { return &State().templ_name; }
String* sGetCfgPlatePath() { return &State().plate_path; }

void sCfgClearPlate() { State().ClearTables(); }

}  // namespace mapcfg
