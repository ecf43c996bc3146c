// Tagged values: the writers, and the readers that convert whatever type a
// value was stored as into the type asked for.
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <new>
#include <type_traits>
#include <utility>

#include "archive_core.h"
#include "mapcfg/archive.h"
#include "mapcfg/utils.h"

namespace mapcfg {

namespace {

// --- Writing ----------------------------------------------------------------

// A scalar: tag and payload in one write.
template <class T>
void PutScalar(CFFArchive& a, Tag tag, T value) {
  uint8_t bytes[1 + sizeof(T)];
  bytes[0] = static_cast<uint8_t>(tag);
  StoreLE(bytes + 1, value);
  ArchiveCore::Write(a, bytes, sizeof bytes);
  ArchiveCore::ClearError(a);
}

// A counted block: tag, count, then the elements, written straight into the
// block after one check for room.
template <class T>
void PutCounted(CFFArchive& a, Tag tag, const T* values, uint64_t n) {
  if (!values) n = 0;
  ArchiveCore::ClearError(a);
  const uint64_t bytes = 5 + n * sizeof(T);
  if (n <= kMaxStreamBytes && ArchiveCore::Reserve(a, bytes)) {
    uint8_t* p = ArchiveCore::Space(a);
    p[0] = static_cast<uint8_t>(tag);
    StoreLE(p + 1, static_cast<uint32_t>(n));
    StoreArrayLE(p + 5, values, static_cast<size_t>(n));
    ArchiveCore::Commit(a, static_cast<uint32_t>(bytes));
  } else if (n > kMaxStreamBytes) {
    ArchiveCore::Fail(a, kMsgLibraryFailure);
  }
  ArchiveCore::ClearError(a);
}

// --- Conversion -----------------------------------------------------------

// One stored scalar or text, decoded from its payload.
struct Stored {
  uint8_t tag = 0;             // 1 to 5, or 21 for a text
  int64_t integer = 0;         // tags 1 to 3
  float single = 0;            // tag 4
  double real = 0;             // tag 5
  const char* text = nullptr;  // tag 21: the text's bytes in the block,
  size_t text_length = 0;      // up to its first NUL
  String Text() const { return String(text, text_length); }
};

// The value of scalar tag `tag` at p, or of a text of `count` bytes.
inline Stored Decode(uint8_t tag, const uint8_t* p, uint32_t count) {
  Stored v;
  v.tag = tag;
  switch (tag) {
    case 1:
      v.integer = p[0];
      break;
    case 2:
      v.integer = LoadLE<int16_t>(p);
      break;
    case 3:
      v.integer = LoadLE<int32_t>(p);
      break;
    case 4:
      v.single = LoadLE<float>(p);
      break;
    case 5:
      v.real = LoadLE<double>(p);
      break;
    default: {
      // A text ends at its first NUL, as the conversions see it.
      const void* nul = count ? std::memchr(p, 0, count) : nullptr;
      v.text = reinterpret_cast<const char*>(p);
      v.text_length = nul ? static_cast<size_t>(static_cast<const uint8_t*>(nul) - p) : count;
    }
  }
  return v;
}

// Truncation toward zero to a 64-bit integer.
int64_t TruncateToInt64(double x) {
  // 2^63 is exact in a double; outside [-2^63, 2^63) and for NaN the result
  // is the processor's "integer indefinite", whose low-order bits are 0.
  constexpr double kTwo63 = 9223372036854775808.0;
  if (x >= -kTwo63 && x < kTwo63) return static_cast<int64_t>(x);
  return std::numeric_limits<int64_t>::min();
}

// A double rounded to the nearest single, infinity beyond its range.
float NarrowToSingle(double x) {
  if (std::isnan(x)) return std::numeric_limits<float>::quiet_NaN();
  // Beyond FLT_MAX by half a unit or more rounds to infinity.
  constexpr double kOverflow = 0x1.ffffffp+127;
  if (std::fabs(x) >= kOverflow) return x > 0 ? HUGE_VALF : -HUGE_VALF;
  if (std::fabs(x) > FLT_MAX) return x > 0 ? FLT_MAX : -FLT_MAX;
  return static_cast<float>(x);
}

// The low-order bits of v as Int (two's complement).
template <class Int>
Int Narrow(int64_t v) {
  return static_cast<Int>(static_cast<typename std::make_unsigned<Int>::type>(static_cast<uint64_t>(v)));
}

// The conversion table: one row per requested type, one entry per stored
// kind (integer, single, double, text).
template <class Int>
struct IntegerRow {
  static Int FromInteger(int64_t v) { return Narrow<Int>(v); }
  // Stored floats and doubles mend values a hair below a whole number: the
  // single nearest 0.0005 or the double 5e-7 is added whatever the sign,
  // then the sum is truncated (2.9996f reads as 3, -1.5 as -1).
  static Int FromSingle(float v) {
    return Narrow<Int>(TruncateToInt64(static_cast<double>(v) + static_cast<double>(0.0005f)));
  }
  static Int FromDouble(double v) { return Narrow<Int>(TruncateToInt64(v + 5e-7)); }
  static Int FromText(const Stored& v) { return Narrow<Int>(sToInteger(v.Text().c_str())); }
};

template <class T>
struct Row;
template <>
struct Row<uint8_t> : IntegerRow<uint8_t> {};
template <>
struct Row<int16_t> : IntegerRow<int16_t> {};
template <>
struct Row<int32_t> : IntegerRow<int32_t> {};
template <>
struct Row<float> {
  static float FromInteger(int64_t v) { return static_cast<float>(v); }
  static float FromSingle(float v) { return v; }
  static float FromDouble(double v) { return NarrowToSingle(v); }
  static float FromText(const Stored& v) { return sToFloat(v.Text().c_str()); }
};
template <>
struct Row<double> {
  static double FromInteger(int64_t v) { return static_cast<double>(v); }
  static double FromSingle(float v) { return v; }
  static double FromDouble(double v) { return v; }
  static double FromText(const Stored& v) { return sToDouble(v.Text().c_str()); }
};
template <>
struct Row<String> {
  // Bytes, shorts and longs all print as "%d".
  static String FromInteger(int64_t v) { return sToString(static_cast<int>(v)); }
  static String FromSingle(float v) { return sToString(v); }
  static String FromDouble(double v) { return sToString(v); }
  static String FromText(const Stored& v) { return v.Text(); }
};

template <class T>
inline T Convert(const Stored& v) {
  switch (v.tag) {
    case 1:
    case 2:
    case 3:
      return Row<T>::FromInteger(v.integer);
    case 4:
      return Row<T>::FromSingle(v.single);
    case 5:
      return Row<T>::FromDouble(v.real);
    default:
      return Row<T>::FromText(v);
  }
}

// --- Reading ----------------------------------------------------------------

// A value read from the stream: its tag, its count (counted tags) and its
// payload, which stays in the archive's block.
struct RawValue {
  uint8_t tag = 0;
  uint32_t count = 0;
  const uint8_t* payload = nullptr;
};

uint64_t PayloadBytes(const RawValue& v) {
  if (v.tag < kFirstCountedTag) return ScalarWidth(v.tag);
  if (v.tag == static_cast<uint8_t>(Tag::kString)) return v.count;
  return static_cast<uint64_t>(v.count) * ScalarWidth(ElementTag(v.tag));
}

// Error 838 unless the payload fits in what is left of the stream: checked
// before anything is allocated for it.
bool PayloadFits(CFFArchive& a, const RawValue& v) {
  if (PayloadBytes(v) <= ArchiveCore::Left(a)) return true;
  ArchiveCore::Fail(a, kMsgReadBeyondEnd);
  return false;
}

// The rest of the head after a tag byte that is not a scalar: the count of
// a counted tag. An unknown tag sets error 840 after consuming the tag byte
// (tags below 20) or the tag and its count.
bool ReadCountedHead(CFFArchive& a, RawValue* v) {
  const uint8_t* p = nullptr;
  if (v->tag >= kFirstCountedTag) {
    if (!ArchiveCore::Take(a, 4, &p)) return false;
    v->count = LoadLE<uint32_t>(p);
    if (v->tag == static_cast<uint8_t>(Tag::kString) || ElementTag(v->tag)) return true;
  }
  ArchiveCore::Fail(a, kMsgBadTag);
  return false;
}

// Reads the tag and, for counted tags, the count.
inline bool ReadHead(CFFArchive& a, RawValue* v) {
  const uint8_t* p = nullptr;
  if (!ArchiveCore::Take(a, 1, &p)) return false;
  v->tag = *p;
  return ScalarWidth(v->tag) != 0 || ReadCountedHead(a, v);
}

// The next value, head and payload. False after any failure.
inline bool ReadValue(CFFArchive& a, RawValue* v) {
  if (!ReadHead(a, v)) return false;
  const uint32_t width = ScalarWidth(v->tag);
  if (width) return ArchiveCore::Take(a, width, &v->payload);
  return PayloadFits(a, *v) && ArchiveCore::Take(a, static_cast<uint32_t>(PayloadBytes(*v)), &v->payload);
}

// The element tag a block of T is stored under when read back unconverted.
template <class T>
constexpr uint8_t kNativeTag = 0;
template <>
constexpr uint8_t kNativeTag<uint8_t> = 1;
template <>
constexpr uint8_t kNativeTag<int16_t> = 2;
template <>
constexpr uint8_t kNativeTag<int32_t> = 3;
template <>
constexpr uint8_t kNativeTag<float> = 4;
template <>
constexpr uint8_t kNativeTag<double> = 5;

// Reads the next value as a block of T (see the array readers).
template <class T>
uint32_t ReadArray(CFFArchive& a, std::unique_ptr<T[]>& out) {
  RawValue v;
  if (!ReadHead(a, &v) || !PayloadFits(a, v)) return 0;
  const uint8_t element = ElementTag(v.tag);
  const uint64_t n = element ? v.count : 1;
  // One spare element, as the blocks of older versions had.
  std::unique_ptr<T[]> block(n < SIZE_MAX / sizeof(T) ? new (std::nothrow) T[static_cast<size_t>(n) + 1] : nullptr);
  if (!block) {
    a.GetError(nullptr);
    return 0;
  }
  if (!ArchiveCore::Take(a, static_cast<uint32_t>(PayloadBytes(v)), &v.payload)) return 0;
  if (!element)
    block[0] = Convert<T>(Decode(v.tag, v.payload, v.count));
  else if (element == kNativeTag<T>)
    LoadArrayLE(block.get(), v.payload, static_cast<size_t>(n));
  else
    for (size_t i = 0; i < n; ++i) block[i] = Convert<T>(Decode(element, v.payload + i * ScalarWidth(element), 1));
  block[n] = T();
  out = std::move(block);
  return static_cast<uint32_t>(n);
}

// Reads the next value as one T (see the scalar readers).
template <class T>
T ReadScalar(CFFArchive& a) {
  RawValue v;
  if (!ReadValue(a, &v)) return T();
  const uint8_t element = ElementTag(v.tag);
  // Of a stored array the first element counts; the rest has been consumed.
  if (element) return v.count ? Convert<T>(Decode(element, v.payload, 1)) : T();
  return Convert<T>(Decode(v.tag, v.payload, v.count));
}

}  // namespace

// --- CFFArchive ---------------------------------------------------------------------

void CFFArchive::PutByte(uint8_t value) { PutScalar(*this, Tag::kByte, value); }
void CFFArchive::PutShort(int16_t value) { PutScalar(*this, Tag::kShort, value); }
void CFFArchive::PutLong(int32_t value) { PutScalar(*this, Tag::kLong, value); }
void CFFArchive::PutFloat(float value) { PutScalar(*this, Tag::kFloat, value); }
void CFFArchive::PutDouble(double value) { PutScalar(*this, Tag::kDouble, value); }

void CFFArchive::PutByte(const uint8_t* values, uint32_t n) { PutCounted(*this, Tag::kByteArray, values, n); }
void CFFArchive::PutShort(const int16_t* values, uint32_t n) { PutCounted(*this, Tag::kShortArray, values, n); }
void CFFArchive::PutLong(const int32_t* values, uint32_t n) { PutCounted(*this, Tag::kLongArray, values, n); }
void CFFArchive::PutFloat(const float* values, uint32_t n) { PutCounted(*this, Tag::kFloatArray, values, n); }
void CFFArchive::PutDouble(const double* values, uint32_t n) { PutCounted(*this, Tag::kDoubleArray, values, n); }

void CFFArchive::PutString(const char* text) {
  const char* t = text ? text : "";
  PutCounted(*this, Tag::kString, reinterpret_cast<const uint8_t*>(t), std::strlen(t));
}

void CFFArchive::PutBinary(const void* data, uint32_t n) {
  PutCounted(*this, Tag::kByteArray, static_cast<const uint8_t*>(data), n);
}

uint8_t CFFArchive::GetByte() { return ReadScalar<uint8_t>(*this); }
int16_t CFFArchive::GetShort() { return ReadScalar<int16_t>(*this); }
int32_t CFFArchive::GetLong() { return ReadScalar<int32_t>(*this); }
float CFFArchive::GetFloat() { return ReadScalar<float>(*this); }
double CFFArchive::GetDouble() { return ReadScalar<double>(*this); }
String CFFArchive::GetString() { return ReadScalar<String>(*this); }

uint32_t CFFArchive::GetByte(std::unique_ptr<uint8_t[]>& out) { return ReadArray(*this, out); }
uint32_t CFFArchive::GetShort(std::unique_ptr<int16_t[]>& out) { return ReadArray(*this, out); }
uint32_t CFFArchive::GetLong(std::unique_ptr<int32_t[]>& out) { return ReadArray(*this, out); }
uint32_t CFFArchive::GetFloat(std::unique_ptr<float[]>& out) { return ReadArray(*this, out); }
uint32_t CFFArchive::GetDouble(std::unique_ptr<double[]>& out) { return ReadArray(*this, out); }

uint32_t CFFArchive::GetBinary(void* buffer, uint32_t capacity) {
  std::unique_ptr<uint8_t[]> block;
  const uint32_t count = GetByte(block);
  const uint32_t copied = buffer ? std::min(count, capacity) : 0;
  if (copied) std::memcpy(buffer, block.get(), copied);
  return copied;
}

uint32_t CFFArchive::GetDWord(uint32_t* buffer, uint32_t capacity) {
  std::unique_ptr<int32_t[]> block;
  const uint32_t count = GetLong(block);
  if (!buffer) capacity = 0;
  if (capacity) std::memset(buffer, 0, capacity * sizeof(uint32_t));
  if (error_) return 0;
  // Older versions copied max(count, capacity) words; only what fits in the
  // buffer and was stored is copied, the rest stays 0.
  for (uint32_t i = 0; i < std::min(count, capacity); ++i) buffer[i] = static_cast<uint32_t>(block[i]);
  return std::max(count, capacity);
}

CFFArchive& CFFArchive::operator<<(char value) {
  PutByte(static_cast<uint8_t>(value));
  return *this;
}
CFFArchive& CFFArchive::operator<<(short value) {
  PutShort(value);
  return *this;
}
CFFArchive& CFFArchive::operator<<(int value) {
  PutLong(value);
  return *this;
}
CFFArchive& CFFArchive::operator<<(float value) {
  PutFloat(value);
  return *this;
}
CFFArchive& CFFArchive::operator<<(double value) {
  PutDouble(value);
  return *this;
}
CFFArchive& CFFArchive::operator<<(const char* text) {
  PutString(text);
  return *this;
}
CFFArchive& CFFArchive::operator>>(char& value) {
  value = static_cast<char>(GetByte());
  return *this;
}
CFFArchive& CFFArchive::operator>>(short& value) {
  value = GetShort();
  return *this;
}
CFFArchive& CFFArchive::operator>>(int& value) {
  value = GetLong();
  return *this;
}
CFFArchive& CFFArchive::operator>>(float& value) {
  value = GetFloat();
  return *this;
}
CFFArchive& CFFArchive::operator>>(double& value) {
  value = GetDouble();
  return *this;
}
CFFArchive& CFFArchive::operator>>(String& value) {
  value = GetString();
  return *this;
}

}  // namespace mapcfg
