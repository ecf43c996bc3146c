// The store's process-wide state, shared by the library's sources.
//
// Everything lives in one object that is created while the library is
// loaded (on first use at the latest, so the order in which translation
// units are initialised does not matter) and destroyed when it is unloaded,
// after every table has been emptied as sCfgClearPlate does.
//
// Configuration tables of later subsystems join it through StoreTable<Data>,
// where Data is a plain struct of the table's members:
//
//   struct LithTable {
//     StringArray codes;
//     RecordArray<_LithProp> props;
//   };
//   StringArray* sCfgGetLithCodesPtr() { return &detail::StoreTable<LithTable>().codes; }
//
// The store owns the table from its first use on. sCfgClearPlate resets it to
// a fresh Data{}, which empties every member and frees every record (none can
// be forgotten), while the table stays where it is, so that the pointers the
// getters handed out stay valid. It is destroyed with the store.
#ifndef MAPCFG_STORE_STORE_STATE_H_
#define MAPCFG_STORE_STORE_STATE_H_

#include <memory>
#include <string>
#include <vector>

#include "mapcfg/store.h"
#include "mapcfg/types.h"

namespace mapcfg {
namespace detail {

// A configuration table that sCfgClearPlate empties.
class Table {
 public:
  virtual ~Table();
  // Empties the table and frees its records.
  virtual void Clear() = 0;
};

// Hands `table` to the store, which keeps it until it is unloaded; returns
// the table.
Table* AddTable(std::unique_ptr<Table> table);

// A store table holding the members of Data; Clear assigns Data{}.
template <class Data>
class ValueTable final : public Table, public Data {
 public:
  void Clear() override { static_cast<Data&>(*this) = Data(); }
};

// The process-wide table of type Data, created and registered with the store
// on first use.
template <class Data>
Data& StoreTable() {
  static Data* const table = static_cast<ValueTable<Data>*>(AddTable(std::make_unique<ValueTable<Data>>()));
  return *table;
}

// The directories a host sets, in the order of their getters.
enum DirIndex { kHomeDir, kConfigDir, kWorkProjDir, kOpenMapDir, kSaveMapDir, kOpenFileDir, kSaveFileDir, kDirCount };

struct StoreState {
  StoreState();
  ~StoreState();
  StoreState(const StoreState&) = delete;
  StoreState& operator=(const StoreState&) = delete;

  // Empties every registered table (sCfgClearPlate).
  void ClearTables();

  // Each directory is a String of its own, so that pointers handed out stay
  // put.
  std::unique_ptr<String> dirs[kDirCount];
  String templ_name;
  String plate_path;

  char lang = 1;
  String resource_name;
  void* resource_module = nullptr;
  MsgBoxHandler msg_box = nullptr;

  StringArray lib_names;
  StringArray lib_dlls;
  StringArray menu_names;
  StringArray menu_funs;
  // Loaded modules: names ascending without case (kept with sAscFind and
  // the insertion point it gives), handles in parallel (null for a load
  // that failed).
  StringArray module_names;
  std::vector<void*> module_handles;
  // Extra functions: names ascending without case, functions in parallel.
  StringArray extra_names;
  std::vector<ExtraFun> extra_funs;

  // Registered configuration tables, in order of first use.
  std::vector<std::unique_ptr<Table>> tables;
};

// The store. Never null while the library is loaded.
StoreState& State();

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_STORE_STORE_STATE_H_
