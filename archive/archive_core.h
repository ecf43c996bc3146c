// Internal to the archive: the tag values, little-endian byte access and the
// raw operations on an archive's memory block that every typed operation is
// built on. Inline so that the typed operations do not pay for a call per
// byte run; nothing here is exported.
#ifndef MAPCFG_ARCHIVE_ARCHIVE_CORE_H_
#define MAPCFG_ARCHIVE_ARCHIVE_CORE_H_

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <type_traits>

#include "mapcfg/archive.h"
#include "base/info_text.h"

namespace mapcfg {

// Tag bytes. These values are written to files and never change; a new type
// gets a new number and a retired one stays listed here.
enum class Tag : uint8_t {
  kByte = 1,     // uint8
  kShort = 2,    // int16
  kLong = 3,     // int32
  kFloat = 4,    // IEEE single
  kDouble = 5,   // IEEE double
  kString = 21,  // count, then count bytes of 8-bit text
  kByteArray = 31,
  kShortArray = 32,
  kLongArray = 33,
  kFloatArray = 34,
  kDoubleArray = 35,
};

// Tags from this value on are followed by a 4-byte element count.
constexpr uint8_t kFirstCountedTag = 20;
// An array tag is its element's scalar tag plus this.
constexpr uint8_t kArrayTagOffset = 30;

// Payload width of the scalar tags 1 to 5, 0 for any other tag.
constexpr uint32_t ScalarWidth(uint8_t tag) {
  return tag == 1 ? 1 : tag == 2 ? 2 : tag == 3 || tag == 4 ? 4 : tag == 5 ? 8 : 0;
}
// The element tag of an array tag 31 to 35, 0 for any other tag.
constexpr uint8_t ElementTag(uint8_t tag) {
  return tag >= 31 && tag <= 35 ? static_cast<uint8_t>(tag - kArrayTagOffset) : 0;
}

// Information texts of the archive's errors.
constexpr int kMsgLibraryFailure = 539;
constexpr int kMsgReadBeyondEnd = 838;
constexpr int kMsgShortRead = 839;
constexpr int kMsgBadTag = 840;

// Largest size and block length: the counters are 32-bit.
constexpr uint32_t kMaxStreamBytes = std::numeric_limits<uint32_t>::max();

// --- Little-endian bytes -----------------------------------------------------

#if defined(__BYTE_ORDER__) && defined(__ORDER_LITTLE_ENDIAN__)
constexpr bool kHostLittleEndian = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;
#elif defined(_WIN32)
constexpr bool kHostLittleEndian = true;
#else
constexpr bool kHostLittleEndian = false;  // element by element: correct anywhere
#endif

template <size_t N>
struct UnsignedOfSize;
template <>
struct UnsignedOfSize<1> {
  using type = uint8_t;
};
template <>
struct UnsignedOfSize<2> {
  using type = uint16_t;
};
template <>
struct UnsignedOfSize<4> {
  using type = uint32_t;
};
template <>
struct UnsignedOfSize<8> {
  using type = uint64_t;
};

// Stores `value` (an integer or IEEE float) as sizeof(T) little-endian bytes.
template <class T>
inline void StoreLE(uint8_t* p, T value) {
  static_assert(std::is_trivially_copyable<T>::value, "plain values only");
  using U = typename UnsignedOfSize<sizeof(T)>::type;
  U u;
  std::memcpy(&u, &value, sizeof u);
  for (size_t i = 0; i < sizeof(T); ++i) p[i] = static_cast<uint8_t>(u >> (8 * i));
}

// The value stored as sizeof(T) little-endian bytes at p.
template <class T>
inline T LoadLE(const uint8_t* p) {
  using U = typename UnsignedOfSize<sizeof(T)>::type;
  U u = 0;
  for (size_t i = 0; i < sizeof(T); ++i) u = static_cast<U>(u | static_cast<U>(static_cast<U>(p[i]) << (8 * i)));
  T value;
  std::memcpy(&value, &u, sizeof value);
  return value;
}

// n elements from `src` as little-endian bytes at `dst`.
template <class T>
inline void StoreArrayLE(uint8_t* dst, const T* src, size_t n) {
  if (kHostLittleEndian) {
    if (n) std::memcpy(dst, src, n * sizeof(T));
  } else {
    for (size_t i = 0; i < n; ++i) StoreLE(dst + i * sizeof(T), src[i]);
  }
}

// n little-endian elements at `src` into `dst`.
template <class T>
inline void LoadArrayLE(T* dst, const uint8_t* src, size_t n) {
  if (kHostLittleEndian) {
    if (n) std::memcpy(dst, src, n * sizeof(T));
  } else {
    for (size_t i = 0; i < n; ++i) dst[i] = LoadLE<T>(src + i * sizeof(T));
  }
}

// --- Raw operations on an archive ---------------------------------------------

namespace detail {

struct ArchiveCore {
  // Sets the error flag and takes information text `message` as the text.
  // Out of line: it keeps the inline read and write paths small.
  static void Fail(CFFArchive& a, int message);  // archive_buffer.cpp
  static bool HasError(const CFFArchive& a) { return a.error_ != 0; }
  static void ClearError(CFFArchive& a) { a.error_ = 0; }
  static uint32_t ReadPos(const CFFArchive& a) { return a.read_pos_; }

  // Makes room for `extra` more bytes at the block position, growing the
  // block geometrically. False, with error 539, when that would take the
  // size or the block past kMaxStreamBytes or no memory is found.
  static bool Reserve(CFFArchive& a, uint64_t extra) {
    if (extra > kMaxStreamBytes - a.size_ || extra > kMaxStreamBytes - a.block_pos_) {
      Fail(a, kMsgLibraryFailure);
      return false;
    }
    const uint64_t need = a.block_pos_ + extra;
    return need <= a.block_capacity_ || Grow(a, need);
  }

  // WriteUnit: clears the error flag and appends n bytes at the block
  // position. False (nothing written, error 539) when there is no room.
  static bool Write(CFFArchive& a, const void* data, uint32_t n) {
    a.error_ = 0;
    if (!Reserve(a, n)) return false;
    if (n) std::memcpy(a.block_ + a.block_pos_, data, n);
    Advance(a, n);
    return true;
  }

  // The block's bytes [position, position + n), for a caller that has
  // reserved them and fills them itself; Commit(n) then counts them.
  static uint8_t* Space(CFFArchive& a) { return a.block_ + a.block_pos_; }
  static void Commit(CFFArchive& a, uint32_t n) { Advance(a, n); }

  // ReadUnit without the copy: on success *p points at the next n bytes of
  // the block, which are consumed. Failures as ReadUnit: 838 with nothing
  // consumed when fewer than n bytes remain before the size; 839 when the
  // block itself ends first (its position then moves to its end, the read
  // position stays).
  static bool Take(CFFArchive& a, uint32_t n, const uint8_t** p) {
    a.error_ = 0;
    if (n > a.size_ - a.read_pos_) {
      Fail(a, kMsgReadBeyondEnd);
      return false;
    }
    const uint32_t available = a.block_length_ - a.block_pos_;
    if (n > available) {
      a.block_pos_ = a.block_length_;
      Fail(a, kMsgShortRead);
      return false;
    }
    *p = a.block_ + a.block_pos_;
    a.block_pos_ += n;
    a.read_pos_ += n;
    return true;
  }

  // Bytes left between the read position and the size.
  static uint32_t Left(const CFFArchive& a) { return a.size_ - a.read_pos_; }

  // Moves both positions back over n bytes just read.
  static void StepBack(CFFArchive& a, uint32_t n) {
    a.read_pos_ -= n;
    a.block_pos_ -= n;
  }

  // Size, read position and block position to 0 (Empty, FromFile, FromData).
  static void Reset(CFFArchive& a) {
    a.read_pos_ = 0;
    a.size_ = 0;
    a.block_pos_ = 0;
  }

  static bool Grow(CFFArchive& a, uint64_t need);  // archive_buffer.cpp

 private:
  static void Advance(CFFArchive& a, uint32_t n) {
    a.block_pos_ += n;
    if (a.block_pos_ > a.block_length_) a.block_length_ = a.block_pos_;
    a.size_ += n;
  }
};

}  // namespace detail

using detail::ArchiveCore;

}  // namespace mapcfg

#endif  // MAPCFG_ARCHIVE_ARCHIVE_CORE_H_
