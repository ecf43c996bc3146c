// What every script reader of the store's tables needs: block names by
// configuration string, keys and values of a block, and the fields of a
// value.
#ifndef MAPCFG_STORE_SCRIPT_FIELDS_H_
#define MAPCFG_STORE_SCRIPT_FIELDS_H_

#include <cstdint>

#include "mapcfg/script.h"
#include "mapcfg/utils.h"
#include "store/config_strings.h"

namespace mapcfg {
namespace detail {

// The fields of a script value, taken in turn: each call reads from one past
// the end of the previous field up to the next `sep` (sGetSubStr, so fields
// are trimmed and a field past the end is empty). Numbers read as the C scans
// do ("%d", "%x", "%f", "%lf"): an empty or unreadable field gives 0.
//
//   ValueFields f(value);           // "Oil well; 0000FF; 3"
//   r.name = f.Text(';');           // "Oil well"
//   r.color = f.Hex(';');           // 0xFF
//   r.displayNo = f.Int(';');       // 3
class ValueFields {
 public:
  explicit ValueFields(const String& value) : value_(value) {}
  String Text(char sep) { return sGetSubStr(value_, sep, pos_ + 1, &pos_); }
  int32_t Int(char sep) { return sToInteger(Text(sep)); }
  uint32_t Hex(char sep) { return sToDWord(Text(sep)); }
  float Float(char sep) { return sToFloat(Text(sep)); }
  double Double(char sep) { return sToDouble(Text(sep)); }

 private:
  const String& value_;
  int pos_ = -1;
};

// Appends the keys of block `block` (in the current language) to `names` and
// their raw values to `values`, in file order.
inline void ReadNameValueBlock(const CCfgScript& script, cfg::Str block, StringArray& names, StringArray& values) {
  const String name = cfg::Name(block);
  const int count = script.GetKeyCnt(name.c_str());
  for (int i = 0; i < count; ++i) {
    names.push_back(script.GetKeyName(name.c_str(), i));
    values.push_back(script.GetKeyVal(name.c_str(), i));
  }
}

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_STORE_SCRIPT_FIELDS_H_
