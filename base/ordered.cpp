// The exported ordered-array members: each is the one search or insertion
// of ordered.h with its key and comparison.
#include "ordered.h"

#include <algorithm>
#include <cstdint>

#include "mapcfg/values.h"

namespace mapcfg {

using namespace ordered;

namespace {

// The key of an integer element: chars compare as signed everywhere.
template <typename T>
struct ElementKey {
  using Key = T;
  using Get = Identity;
};
template <>
struct ElementKey<char> {
  using Key = signed char;
  using Get = SignedChar;
};

template <bool Desc, typename T>
auto ExactSide(T value) {
  using EK = ElementKey<T>;
  return By(Exact<typename EK::Key, Desc>{typename EK::Get()(value)}, typename EK::Get());
}

template <bool Desc>
int FindText(const StringArray& a, const String& text, int nocase, int first, int last) {
  if (nocase) return SearchIn(a, first, last, TextSide<NoCaseCompare, Desc>{text});
  return SearchIn(a, first, last, TextSide<CaseCompare, Desc>{text});
}

template <bool Desc>
int InsertText(StringArray& a, const String& text, int mode, int nocase) {
  if (nocase) return InsertIn(a, text, mode, TextSide<NoCaseCompare, Desc>{text});
  return InsertIn(a, text, mode, TextSide<CaseCompare, Desc>{text});
}

// Points by x, then by y among those whose x matches within the tolerance.
struct XYSide {
  CDblPoint value;
  double tolerance;
  int operator()(const CDblPoint& e) const {
    const Tolerant<double, false> by_x{value.x, tolerance};
    if (by_x(e.x) != 0) return by_x(e.x);
    return Tolerant<double, false>{value.y, tolerance}(e.y);
  }
};

// Pointers ordered by address.
struct Address {
  uintptr_t operator()(void* p) const { return reinterpret_cast<uintptr_t>(p); }
};
auto PointerSide(void* p) { return By(Exact<uintptr_t, false>{Address()(p)}, Address()); }

template <typename T>
void CopyRange(std::vector<T>& destination, const std::vector<T>& source, int clear, int reverse, int first,
               int last) {
  if (last < 0) last = Size(source.size()) - 1;
  std::vector<T> picked;
  if (first <= last) {
    if (first < 0 || last >= Size(source.size())) throw std::out_of_range("mapcfg: array index out of range");
    picked.assign(source.begin() + first, source.begin() + last + 1);
    if (reverse) std::reverse(picked.begin(), picked.end());
  }
  if (clear) std::vector<T>().swap(destination);
  destination.insert(destination.end(), picked.begin(), picked.end());
}

}  // namespace

// Integer elements.
#define MAPCFG_EXACT_FINDS(T)                                              \
  int sAscFind(const std::vector<T>& a, T value, int first, int last) {  \
    return SearchIn(a, first, last, ExactSide<false>(value));            \
  }                                                                        \
  int sDescFind(const std::vector<T>& a, T value, int first, int last) { \
    return SearchIn(a, first, last, ExactSide<true>(value));             \
  }
#define MAPCFG_EXACT_INSERT(Name, Desc, T) \
  int Name(std::vector<T>& a, T value, int mode) { return InsertIn(a, value, mode, ExactSide<Desc>(value)); }

MAPCFG_EXACT_FINDS(uint32_t)
MAPCFG_EXACT_FINDS(uint16_t)
MAPCFG_EXACT_FINDS(uint8_t)
MAPCFG_EXACT_FINDS(int32_t)
MAPCFG_EXACT_FINDS(int16_t)
MAPCFG_EXACT_FINDS(char)
MAPCFG_EXACT_INSERT(sAscInsert, false, uint32_t)
MAPCFG_EXACT_INSERT(sAscInsert, false, uint16_t)
MAPCFG_EXACT_INSERT(sAscInsert, false, int32_t)
MAPCFG_EXACT_INSERT(sAscInsert, false, int16_t)
MAPCFG_EXACT_INSERT(sAscInsert, false, char)
MAPCFG_EXACT_INSERT(sDescInsert, true, uint32_t)
MAPCFG_EXACT_INSERT(sDescInsert, true, uint16_t)
MAPCFG_EXACT_INSERT(sDescInsert, true, uint8_t)
MAPCFG_EXACT_INSERT(sDescInsert, true, int32_t)
MAPCFG_EXACT_INSERT(sDescInsert, true, int16_t)
MAPCFG_EXACT_INSERT(sDescInsert, true, char)

// Floating-point elements, vectors and plain arrays.
#define MAPCFG_TOLERANT_MEMBERS(Dir, Desc, T)                                                 \
  int s##Dir##Find(const std::vector<T>& a, T value, T tolerance, int first, int last) {    \
    return SearchIn(a, first, last, Tolerant<T, Desc>{value, tolerance});                   \
  }                                                                                          \
  int s##Dir##Insert(std::vector<T>& a, T value, int mode, T tolerance) {                   \
    return InsertIn(a, value, mode, Tolerant<T, Desc>{value, tolerance});                   \
  }

MAPCFG_TOLERANT_MEMBERS(Asc, false, float)
MAPCFG_TOLERANT_MEMBERS(Asc, false, double)
MAPCFG_TOLERANT_MEMBERS(Desc, true, float)
MAPCFG_TOLERANT_MEMBERS(Desc, true, double)

int sAscFind(const double* a, double value, int first, int last, double tolerance) {
  return SearchPlain(a, first, last, Tolerant<double, false>{value, tolerance});
}
int sDescFind(const double* a, double value, int first, int last, double tolerance) {
  return SearchPlain(a, first, last, Tolerant<double, true>{value, tolerance});
}

// Points by one coordinate: integer points, point vectors, plain arrays.
#define MAPCFG_POINT_MEMBERS(Dir, Axis, Desc, Key)                                                   \
  int s##Dir##FindBy##Axis(const std::vector<CPoint>& a, int32_t value, int first, int last) {     \
    return SearchIn(a, first, last, By(Exact<int32_t, Desc>{value}, Key()));                       \
  }                                                                                                 \
  int s##Dir##InsertBy##Axis(std::vector<CPoint>& a, CPoint point, int mode) {                     \
    return InsertIn(a, point, mode, By(Exact<int32_t, Desc>{Key()(point)}, Key()));                \
  }                                                                                                 \
  int s##Dir##FindBy##Axis(const std::vector<CDblPoint>& a, double value, double tolerance, int first, \
                           int last) {                                                              \
    return SearchIn(a, first, last, By(Tolerant<double, Desc>{value, tolerance}, Key()));          \
  }                                                                                                 \
  int s##Dir##InsertBy##Axis(std::vector<CDblPoint>& a, CDblPoint point, int mode, double tolerance) { \
    return InsertIn(a, point, mode, By(Tolerant<double, Desc>{Key()(point), tolerance}, Key()));   \
  }                                                                                                 \
  int s##Dir##FindBy##Axis(const CDblPoint* a, double value, int first, int last, double tolerance) { \
    return SearchPlain(a, first, last, By(Tolerant<double, Desc>{value, tolerance}, Key()));       \
  }                                                                                                 \
  int s##Dir##InsertBy##Axis(CDblPoint* a, int& count, CDblPoint point, int mode, double tolerance) { \
    return InsertPlain(a, count, point, mode, By(Tolerant<double, Desc>{Key()(point), tolerance}, Key())); \
  }

MAPCFG_POINT_MEMBERS(Asc, XX, false, XKey)
MAPCFG_POINT_MEMBERS(Asc, YY, false, YKey)
MAPCFG_POINT_MEMBERS(Desc, XX, true, XKey)
MAPCFG_POINT_MEMBERS(Desc, YY, true, YKey)

int sAscFindByXY(const std::vector<CDblPoint>& a, CDblPoint point, double tolerance, int first, int last) {
  return SearchIn(a, first, last, XYSide{point, tolerance});
}

// Texts.
int sAscFind(const StringArray& a, const String& text, int nocase, int first, int last) {
  return FindText<false>(a, text, nocase, first, last);
}
int sDescFind(const StringArray& a, const String& text, int nocase, int first, int last) {
  return FindText<true>(a, text, nocase, first, last);
}
int sAscInsert(StringArray& a, const String& text, int mode, int nocase) {
  return InsertText<false>(a, text, mode, nocase);
}
int sDescInsert(StringArray& a, const String& text, int mode, int nocase) {
  return InsertText<true>(a, text, mode, nocase);
}

int sAscFind(const std::vector<char>& codes, const StringArray& texts, char code, const String& text, int first,
             int last) {
  CheckRange(codes.size() < texts.size() ? codes.size() : texts.size(), first, last);
  const Exact<signed char, false> by_code{static_cast<signed char>(code)};
  const TextSide<NoCaseCompare, false> by_text{text};
  const auto side = [&](int i) {
    const int s = by_code(static_cast<signed char>(codes[static_cast<size_t>(i)]));
    return s != 0 ? s : by_text(texts[static_cast<size_t>(i)]);
  };
  return Search([](int i) { return i; }, first, last, side);
}

int sNoSortFind(const StringArray& a, const String& text, int nocase) {
  for (size_t i = 0; i < a.size(); ++i)
    if ((nocase ? NoCaseCompare()(a[i], text) : CaseCompare()(a[i], text)) == 0) return Size(i);
  return -1;
}

int sNoSortInsert(StringArray& a, const String& text, int mode, int nocase) {
  const int found = sNoSortFind(a, text, nocase);
  if (found < 0)
    a.push_back(text);
  else if (mode >= 1)
    a[static_cast<size_t>(found)] = text;
  return found;
}

int sAscFindArray(const std::vector<void*>& sorted, const std::vector<void*>& probe) {
  for (void* p : probe)
    if (SearchIn(sorted, 0, -1, PointerSide(p)) >= 0) return 1;
  return 0;
}

void sAscInsertArray(std::vector<void*>& sorted, const std::vector<void*>& items) {
  if (&sorted == &items) return;  // a union with itself changes nothing
  for (void* p : items) InsertIn(sorted, p, -1, PointerSide(p));
}

void sCopyPtrArray(std::vector<void*>& destination, const std::vector<void*>& source, int clear, int reverse,
                   int first, int last) {
  CopyRange(destination, source, clear, reverse, first, last);
}

void sCopyPoints(std::vector<CDblPoint>& destination, const std::vector<CDblPoint>& source, int clear,
                 int reverse, int first, int last) {
  CopyRange(destination, source, clear, reverse, first, last);
}

}  // namespace mapcfg
