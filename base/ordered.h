// The one search and the one insertion behind every ordered-array function.
//
// A "side" function tells where the sought value lies against an element:
// 0 the element matches, < 0 the element is on the value's upper side (the
// search's upper bound moves down to it), > 0 it is on the lower side. Every
// exported member is the search or the insertion below with a side built
// from a key (what is taken from an element) and a comparison (exact or
// tolerant, ascending or descending).
#ifndef MAPCFG_BASE_ORDERED_H_
#define MAPCFG_BASE_ORDERED_H_

#include <climits>
#include <cmath>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "base/text_bytes.h"

namespace mapcfg {
namespace ordered {

template <typename T>
struct At {
  const T* a;
  const T& operator()(int i) const { return a[i]; }
};

// Hints that element i of an array will be read soon.
template <typename Get>
void Prefetch(const Get&, int) {}
template <typename T>
void Prefetch(const At<T>& get, int i) {
#if defined(__GNUC__)
  __builtin_prefetch(get.a + i);
#else
  (void)get;
  (void)i;
#endif
}

// Keeps a real branch where it is called: a predicted branch lets the CPU
// start the next probe's load at once, where a select would wait for the
// comparison (measured faster on arrays larger than the cache).
inline void KeepBranch() {
#if defined(__GNUC__)
  __asm__ volatile("");
#endif
}

// Bisection over [lo, hi); get(i) gives the element at index i. See
// "Ordered arrays" in mapcfg/values.h.
template <typename Get, typename Side>
int Search(const Get& get, int lo, int hi, const Side& side) {
  if (hi - lo < 1) return ~lo;
  while (hi - lo > 1) {
    const int mid = lo + (hi - lo) / 2;  // (lo + hi) / 2 without overflow
    // Both possible next probes are fetched while this one is compared: the
    // direction is a coin toss, and large arrays are out of cache.
    Prefetch(get, lo + (mid - lo) / 2);
    Prefetch(get, mid + (hi - mid) / 2);
    const int s = side(get(mid));
    if (s == 0) return mid;
    if (s < 0) {
      hi = mid;
      KeepBranch();
    } else {
      lo = mid;
    }
  }
  const int s = side(get(lo));
  if (s == 0) return lo;
  return s < 0 ? ~lo : ~hi;
}

inline int Size(size_t n) { return n > static_cast<size_t>(INT_MAX) ? INT_MAX : static_cast<int>(n); }

// Resolves a negative `last` and checks the range against the array.
inline void CheckRange(size_t size, int first, int& last) {
  const int n = Size(size);
  if (last < 0) last = n;
  if (first < 0 || first > n || last > n) throw std::out_of_range("mapcfg: array index out of range");
}

template <typename T, typename Side>
int SearchIn(const std::vector<T>& a, int first, int last, const Side& side) {
  CheckRange(a.size(), first, last);
  return Search(At<T>{a.data()}, first, last, side);
}

template <typename T, typename Side>
int SearchPlain(const T* a, int first, int last, const Side& side) {
  if (first < 0) throw std::out_of_range("mapcfg: array index out of range");
  return Search(At<T>{a}, first, last, side);
}

// Where a value goes for an insertion `mode` given the whole-array search
// result `found`; sets *store when the value is to be stored at the index
// returned (overwriting when `*insert` is false).
inline int InsertionPoint(int found, int mode, bool* store, bool* insert) {
  *store = true;
  *insert = true;
  if (found < 0) return ~found;
  if (mode == 0) return found + 1;
  *insert = false;
  *store = mode > 0;
  return found;
}

template <typename T, typename Side>
int InsertIn(std::vector<T>& a, const T& value, int mode, const Side& side) {
  bool store, insert;
  const int at = InsertionPoint(Search(At<T>{a.data()}, 0, Size(a.size()), side), mode, &store, &insert);
  if (insert)
    a.insert(a.begin() + at, value);
  else if (store)
    a[static_cast<size_t>(at)] = value;
  return at;
}

// REQUIRES: `a` has room for count + 1 elements.
template <typename T, typename Side>
int InsertPlain(T* a, int& count, const T& value, int mode, const Side& side) {
  bool store, insert;
  const int n = count < 0 ? 0 : count;
  const int at = InsertionPoint(Search(At<T>{a}, 0, n, side), mode, &store, &insert);
  if (insert) {
    for (int i = n; i > at; --i) a[i] = a[i - 1];
    count = n + 1;
  }
  if (store) a[at] = value;
  return at;
}

// --- Comparisons: each gives the side of an element key `e` -------------------

// Exact keys: a three-way comparison of the value with the key.
template <typename K, bool Desc>
struct Exact {
  K value;
  int operator()(K e) const {
    if (Desc ? value < e : e < value) return 1;
    return (Desc ? e < value : value < e) ? -1 : 0;
  }
};

// Tolerant keys: a match within the tolerance, otherwise the plain direction.
template <typename K, bool Desc>
struct Tolerant {
  K value;
  K tolerance;
  int operator()(K e) const {
    if (std::fabs(e - value) < tolerance) return 0;
    return (Desc ? e <= value : e >= value) ? -1 : 1;
  }
};

// Three-way comparison of texts, negative when `a` sorts first.
struct CaseCompare {
  int operator()(const std::string& a, const std::string& b) const { return a.compare(b); }
};

// Byte order with ASCII letters folded to lower case (as stricmp).
struct NoCaseCompare {
  int operator()(const std::string& a, const std::string& b) const {
    const size_t n = a.size() < b.size() ? a.size() : b.size();
    for (size_t i = 0; i < n; ++i) {
      const int x = Fold(a[i]), y = Fold(b[i]);
      if (x != y) return x - y;
    }
    return a.size() < b.size() ? -1 : (a.size() > b.size() ? 1 : 0);
  }
  static int Fold(char c) { return static_cast<unsigned char>(detail::FoldAscii(c)); }
};

// Texts compared with Compare, in the given direction.
template <typename Compare, bool Desc>
struct TextSide {
  const std::string& value;
  int operator()(const std::string& e) const {
    const int c = Compare()(value, e);
    const int s = c < 0 ? -1 : (c > 0 ? 1 : 0);
    return Desc ? -s : s;
  }
};

// A side applied to a key taken from the element.
template <typename Side, typename Key>
struct Keyed {
  Side side;
  Key key;
  template <typename T>
  int operator()(const T& e) const {
    return side(key(e));
  }
};
template <typename Side, typename Key>
Keyed<Side, Key> By(Side side, Key key) {
  return Keyed<Side, Key>{side, key};
}

// Keys.
struct Identity {
  template <typename T>
  T operator()(T e) const {
    return e;
  }
};
struct SignedChar {
  signed char operator()(char c) const { return static_cast<signed char>(c); }
};
struct XKey {
  template <typename P>
  auto operator()(const P& p) const {
    return p.x;
  }
};
struct YKey {
  template <typename P>
  auto operator()(const P& p) const {
    return p.y;
  }
};

}  // namespace ordered
}  // namespace mapcfg

#endif  // MAPCFG_BASE_ORDERED_H_
