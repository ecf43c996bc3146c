// Script readers of map parameter records as tables: one row per key, with
// the key's configuration string, how its value is scanned, the field it
// goes to and the rule that gives a default or a clamp.
//
//   const detail::KeyRow<_PMTLableProp> kRows[] = {
//       {cfg::kRulerHOffset, Scan::kFloat, &_PMTLableProp::RulerHOffset},
//       {cfg::kRulerScaleSpace, Scan::kInt, &_PMTLableProp::RulerScaleSpace, Rule::kZeroGives, 10},
//   };
//   detail::ReadKeys(script, block, *prop, kRows);
#ifndef MAPCFG_MAPS_KEY_TABLE_H_
#define MAPCFG_MAPS_KEY_TABLE_H_

#include <cstdint>
#include <type_traits>
#include <variant>

#include "mapcfg/script.h"
#include "mapcfg/utils.h"
#include "store/config_strings.h"

namespace mapcfg {
namespace detail {

// The scans of the readers, each into a variable zeroed first, so that an
// empty or unreadable value gives 0: "%d", "%x", "%f", "%lf"; kSwitch is 1
// for a value that is neither empty nor "0".
enum class Scan { kInt, kHex, kFloat, kDouble, kSwitch };

// What becomes of the scanned number (in its scanned type):
enum class Rule {
  kNone,
  kEmptyGives,     // an empty value (or a missing key) gives `limit`
  kPositiveOr,     // a number not above 0 gives `limit`
  kZeroGives,      // 0 gives `limit`
  kNotNegative,    // a negative number gives 0
};

// A field of a record: a member, or a float inside an embedded record.
template <class Rec>
using KeyField = std::variant<uint8_t Rec::*, uint16_t Rec::*, int32_t Rec::*, float Rec::*, double Rec::*,
                              float& (*)(Rec&)>;

template <class Rec>
struct KeyRow {
  cfg::Str key;
  Scan scan;
  KeyField<Rec> field;
  Rule rule = Rule::kNone;
  double limit = 0.0;
};

template <class T>
T ApplyRule(T v, bool empty, Rule rule, double limit) {
  switch (rule) {
    case Rule::kEmptyGives:
      return empty ? static_cast<T>(limit) : v;
    case Rule::kPositiveOr:
      return v > T(0) ? v : static_cast<T>(limit);
    case Rule::kZeroGives:
      return v == T(0) ? static_cast<T>(limit) : v;
    case Rule::kNotNegative:
      return v < T(0) ? T(0) : v;
    case Rule::kNone:
      break;
  }
  return v;
}

// Stores `v` in the field; integers keep their low bits, as the scans' C
// assignments do.
template <class Rec, class T>
void StoreField(Rec& r, const KeyField<Rec>& field, T v) {
  std::visit(
      [&](auto f) {
        if constexpr (std::is_member_object_pointer_v<decltype(f)>) {
          using Field = std::remove_reference_t<decltype(r.*f)>;
          r.*f = static_cast<Field>(v);
        } else {
          f(r) = static_cast<float>(v);
        }
      },
      field);
}

template <class Rec>
void ReadKey(const KeyRow<Rec>& row, const String& value, Rec& r) {
  const bool empty = value.empty();
  switch (row.scan) {
    case Scan::kInt:
      StoreField(r, row.field, ApplyRule<int32_t>(sToInteger(value), empty, row.rule, row.limit));
      break;
    case Scan::kHex:
      StoreField(r, row.field, ApplyRule<uint32_t>(sToDWord(value), empty, row.rule, row.limit));
      break;
    case Scan::kFloat:
      StoreField(r, row.field, ApplyRule<float>(sToFloat(value), empty, row.rule, row.limit));
      break;
    case Scan::kDouble:
      StoreField(r, row.field, ApplyRule<double>(sToDouble(value), empty, row.rule, row.limit));
      break;
    case Scan::kSwitch:
      StoreField(r, row.field, static_cast<uint8_t>(!empty && value != "0"));
      break;
  }
}

// The value of `key` in `block`; empty when either is missing.
inline String KeyValue(const CCfgScript& script, const String& block, cfg::Str key) {
  return script.GetKeyVal(block.c_str(), cfg::Name(key).c_str());
}

// Reads every row's key of `block` into `r`.
template <class Rec, size_t N>
void ReadKeys(const CCfgScript& script, const String& block, Rec& r, const KeyRow<Rec> (&rows)[N]) {
  for (const KeyRow<Rec>& row : rows) ReadKey(row, KeyValue(script, block, row.key), r);
}

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_MAPS_KEY_TABLE_H_
