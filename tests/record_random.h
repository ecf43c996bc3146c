// Fills records with random values through the same field lists that the
// archive and the describer walk, so that a round trip can compare every
// field without naming them.
#ifndef MAPCFG_TESTS_RECORD_RANDOM_H_
#define MAPCFG_TESTS_RECORD_RANDOM_H_

#include <cstring>
#include <memory>
#include <random>
#include <type_traits>
#include <vector>

#include "archive/record_io.h"

namespace mapcfg_test {

class RecordRandomizer {
 public:
  static constexpr bool kReads = false;
  // Arrays get at most `max_items` elements, nested records at most
  // `max_depth` levels of arrays.
  RecordRandomizer(std::mt19937& rng, size_t max_items = 3, int max_depth = 4)
      : rng_(rng), max_items_(max_items), depth_left_(max_depth) {}
  bool ok() const { return true; }
  uint32_t version() const { return mapcfg::detail::kCurrentVersion; }

  // Printable ASCII and GBK-range bytes, never a zero byte.
  std::string Text(size_t max_length) {
    std::string s(Below(max_length + 1), ' ');
    for (char& c : s) c = static_cast<char>(Below(4) ? 0x20 + Below(0x5F) : 0x81 + Below(0x7E));
    return s;
  }

  void operator()(const char*, std::string& v) { v = Text(12); }
  template <size_t N>
  void operator()(const char*, char (&text)[N]) {
    const std::string s = Text(N - 1);
    std::memcpy(text, s.c_str(), s.size() + 1);
  }
  template <class T, class = std::enable_if_t<std::is_arithmetic_v<T>>>
  void operator()(const char*, T& v) {
    if constexpr (std::is_floating_point_v<T>) {
      // Finite values of every size, exactly representable or not.
      const T values[] = {T(0), T(-999.25), static_cast<T>(std::uniform_real_distribution<double>(-1e4, 1e4)(rng_)),
                          static_cast<T>(std::ldexp(1.0, static_cast<int>(Below(120)) - 60))};
      v = values[Below(4)];
    } else {
      v = static_cast<T>(rng_());
    }
  }
  template <class T>
  void operator()(const char* name, std::vector<T>& items) {
    items.resize(Below(max_items_ + 1));
    for (T& item : items) (*this)(name, item);
  }
  template <class T, size_t N>
  void operator()(const char* name, T (&items)[N]) {
    for (T& item : items) (*this)(name, item);
  }
  template <class R>
  void operator()(const char*, mapcfg::RecordArray<R>& records) {
    records.clear();
    if (depth_left_ <= 0) return;
    --depth_left_;
    for (size_t n = Below(max_items_ + 1); n > 0; --n) {
      records.push_back(std::make_unique<R>());
      Fields(*this, *records.back());
    }
    ++depth_left_;
  }
  template <class R, class = std::enable_if_t<std::is_class_v<R> && !mapcfg::detail::IsRecordArray<R>::value>,
            class = void>
  void operator()(const char*, R& record) {
    Fields(*this, record);
  }
  void Block(const char* name, uint32_t* words, uint32_t n) {
    for (uint32_t i = 0; i < n; ++i) (*this)(name, words[i]);
  }
  template <class A, class B, class C>
  void Rows(const char* name, std::vector<A>& a, std::vector<B>& b, std::vector<C>& c) {
    const size_t n = Below(max_items_ + 1);
    a.resize(n);
    b.resize(n);
    c.resize(n);
    for (size_t i = 0; i < n; ++i) {
      (*this)(name, a[i]);
      (*this)(name, b[i]);
      (*this)(name, c[i]);
    }
  }

 private:
  size_t Below(size_t n) { return n ? static_cast<size_t>(rng_() % n) : 0; }
  std::mt19937& rng_;
  size_t max_items_;
  int depth_left_;
};

}  // namespace mapcfg_test

#endif  // MAPCFG_TESTS_RECORD_RANDOM_H_
