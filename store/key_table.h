// Script readers of records as tables: one row per key, with the key's
// configuration string, how its value is scanned, the field it goes to and
// the rule that gives a default or a clamp. Every reader of a record's keys
// goes through these tables, so that the keys a block may hold can be listed
// from them (the tool's unknown-key check).
//
//   const detail::KeyRow<_PMTLableProp> kRows[] = {
//       {cfg::kRulerHOffset, Scan::kFloat, &_PMTLableProp::RulerHOffset},
//       {cfg::kRulerScaleSpace, Scan::kInt, &_PMTLableProp::RulerScaleSpace, Rule::kZeroGives, 10},
//       {cfg::kRulerLineWidth, Scan::kFloat, &detail::At<&_PMTLableProp::RulerLine, &LINE_PROP::width>},
//   };
//   detail::ReadKeys(script, block, *prop, kRows);
#ifndef MAPCFG_STORE_KEY_TABLE_H_
#define MAPCFG_STORE_KEY_TABLE_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <variant>
#include <vector>

#include "mapcfg/script.h"
#include "mapcfg/utils.h"
#include "store/config_strings.h"

namespace mapcfg {
namespace detail {

// The scans of the readers, each into a variable zeroed first, so that an
// empty or unreadable value gives 0: "%d", "%x", "%f", "%lf"; kSwitch is 1
// for a value that is neither empty nor "0"; kText takes the value as it
// stands (a text field, or a name cut to its fixed field).
enum class Scan { kInt, kHex, kFloat, kDouble, kSwitch, kText };

// What becomes of the scanned number (in its scanned type):
enum class Rule {
  kNone,
  kEmptyGives,     // an empty value (or a missing key) gives `limit`
  kEmptyKeeps,     // an empty value leaves the field as it is (an initialiser set it)
  kPositiveOr,     // a number not above 0 gives `limit`
  kZeroGives,      // 0 gives `limit`
  kNotNegative,    // a negative number gives 0
  kNegativeGives,  // a negative number gives `limit`
  kTinyGives,      // a number below 0.0005 (in single precision) gives `limit`
};

// A fixed-size name field: at most `size` - 1 bytes and a terminating zero.
struct FixedText {
  char* text;
  size_t size;
};

// The field of a member inside a member: &At<&_LegendProp::Meta, &_LegendMetaProp::Line, &LINE_PROP::width>
// is a `float& (*)(_LegendProp&)`.
template <class M>
struct MemberOf;
template <class C, class M>
struct MemberOf<M C::*> {
  using Class = C;
};
template <class T, class M, class... Ms>
decltype(auto) Follow(T& t, M m, Ms... ms) {
  if constexpr (sizeof...(Ms) == 0) {
    return (t.*m);
  } else {
    return Follow(t.*m, ms...);
  }
}
template <auto First, auto... Rest>
decltype(auto) At(typename MemberOf<decltype(First)>::Class& r) {
  return Follow(r, First, Rest...);
}
// The same for a fixed-size name field: &FixedAt<&_OldProdProp::line, &LINE_PROP::style>.
template <auto First, auto... Rest>
FixedText FixedAt(typename MemberOf<decltype(First)>::Class& r) {
  auto& text = Follow(r, First, Rest...);
  return FixedText{text, sizeof text};
}

// Where a key's value goes: a member, a field inside an embedded record, a
// fixed name, or (for a rule no row can say) a function that stores the raw
// value itself.
template <class Rec>
using KeyField = std::variant<uint8_t Rec::*, uint16_t Rec::*, int32_t Rec::*, uint32_t Rec::*, float Rec::*,
                              double Rec::*, String Rec::*, uint32_t& (*)(Rec&), float& (*)(Rec&),
                              FixedText (*)(Rec&), void (*)(Rec&, const String&)>;

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
    case Rule::kNegativeGives:
      return v < T(0) ? static_cast<T>(limit) : v;
    case Rule::kTinyGives:
      return static_cast<float>(v) < 0.0005f ? static_cast<T>(limit) : v;
    case Rule::kNone:
    case Rule::kEmptyKeeps:
      break;
  }
  return v;
}

// `from` cut to the field's size.
inline void CopyFixed(FixedText to, const String& from) {
  const size_t n = from.size() < to.size - 1 ? from.size() : to.size - 1;
  std::memcpy(to.text, from.data(), n);
  to.text[n] = '\0';
}

// The number `value` scans to under `row`, after its rule.
template <class Rec, class T>
T ScanNumber(const KeyRow<Rec>& row, const String& value) {
  const bool empty = value.empty();
  switch (row.scan) {
    case Scan::kInt:
      return static_cast<T>(ApplyRule<int32_t>(sToInteger(value), empty, row.rule, row.limit));
    case Scan::kHex:
      return static_cast<T>(ApplyRule<uint32_t>(sToDWord(value), empty, row.rule, row.limit));
    case Scan::kFloat:
      return static_cast<T>(ApplyRule<float>(sToFloat(value), empty, row.rule, row.limit));
    case Scan::kDouble:
      return static_cast<T>(ApplyRule<double>(sToDouble(value), empty, row.rule, row.limit));
    case Scan::kSwitch:
      return static_cast<T>(!empty && value != "0");
    case Scan::kText:
      break;
  }
  return T(0);
}

// Stores `value` in the row's field; integers keep their low bits, as the
// scans' C assignments do.
template <class Rec>
void ReadKey(const KeyRow<Rec>& row, const String& value, Rec& r) {
  if (value.empty() && row.rule == Rule::kEmptyKeeps) return;
  std::visit(
      [&](auto f) {
        using F = decltype(f);
        if constexpr (std::is_same_v<F, void (*)(Rec&, const String&)>) {
          f(r, value);
        } else if constexpr (std::is_same_v<F, FixedText (*)(Rec&)>) {
          CopyFixed(f(r), value);
        } else if constexpr (std::is_same_v<F, String Rec::*>) {
          r.*f = value;
        } else if constexpr (std::is_member_object_pointer_v<F>) {
          using Field = std::remove_reference_t<decltype(r.*f)>;
          r.*f = ScanNumber<Rec, Field>(row, value);
        } else {
          using Field = std::remove_reference_t<decltype(f(r))>;
          f(r) = ScanNumber<Rec, Field>(row, value);
        }
      },
      row.field);
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

// The keys a block may hold, by configuration string.
using KeyList = std::vector<cfg::Str>;

// Appends the keys of `rows` to `keys`.
template <class Rec, size_t N>
void AppendKeys(KeyList& keys, const KeyRow<Rec> (&rows)[N]) {
  for (const KeyRow<Rec>& row : rows) keys.push_back(row.key);
}

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_STORE_KEY_TABLE_H_
