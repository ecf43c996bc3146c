// Composite values: structures stored as one counted block, points as two
// scalar doubles, and arrays stored element by element behind a count.
#include <algorithm>
#include <cstring>

#include "archive_core.h"
#include "mapcfg/archive.h"
#include "mapcfg/values.h"

namespace mapcfg {

namespace {

constexpr uint32_t kLogFontBytes = 60;
constexpr uint32_t kTimeBytes = 8;
constexpr uint32_t kDateBytes = 12;

// LOGFONT as stored: five int32, eight bytes, the 32-byte face name.
void EncodeLogFont(const LOGFONT& f, uint8_t* p) {
  const int32_t metrics[5] = {f.lfHeight, f.lfWidth, f.lfEscapement, f.lfOrientation, f.lfWeight};
  StoreArrayLE(p, metrics, 5);
  const uint8_t flags[8] = {f.lfItalic,       f.lfUnderline,     f.lfStrikeOut, f.lfCharSet,
                            f.lfOutPrecision, f.lfClipPrecision, f.lfQuality,   f.lfPitchAndFamily};
  std::memcpy(p + 20, flags, 8);
  std::memcpy(p + 28, f.lfFaceName, 32);
}

void DecodeLogFont(const uint8_t* p, LOGFONT& f) {
  int32_t metrics[5];
  LoadArrayLE(metrics, p, 5);
  f.lfHeight = metrics[0];
  f.lfWidth = metrics[1];
  f.lfEscapement = metrics[2];
  f.lfOrientation = metrics[3];
  f.lfWeight = metrics[4];
  uint8_t* const flags[8] = {&f.lfItalic,       &f.lfUnderline,     &f.lfStrikeOut, &f.lfCharSet,
                             &f.lfOutPrecision, &f.lfClipPrecision, &f.lfQuality,   &f.lfPitchAndFamily};
  for (int i = 0; i < 8; ++i) *flags[i] = p[20 + i];
  std::memcpy(f.lfFaceName, p + 28, 32);
}

void EncodeDate(const COleDateTime& d, uint8_t* p) {
  StoreLE(p, d.m_dt);
  StoreLE(p + 8, d.m_status);
}

// The block reader of each element type.
uint32_t GetBlock(CFFArchive& a, std::unique_ptr<uint8_t[]>& b) { return a.GetByte(b); }
uint32_t GetBlock(CFFArchive& a, std::unique_ptr<int32_t[]>& b) { return a.GetLong(b); }
uint32_t GetBlock(CFFArchive& a, std::unique_ptr<double[]>& b) { return a.GetDouble(b); }

// Reads a block and copies it into `values` only when it holds exactly N
// elements. True when it did.
template <class T, size_t N>
bool ReadExactly(CFFArchive& a, T (&values)[N]) {
  std::unique_ptr<T[]> block;
  if (GetBlock(a, block) != N) return false;
  std::copy(block.get(), block.get() + N, values);
  return true;
}

// Reads a byte block over the leading bytes of `bytes` (as many as it has,
// at most N).
template <size_t N>
void ReadLeading(CFFArchive& a, uint8_t (&bytes)[N]) {
  std::unique_ptr<uint8_t[]> block;
  const uint32_t count = a.GetByte(block);
  if (count) std::memcpy(bytes, block.get(), std::min<size_t>(count, N));
}

int ReadTwoDoubles(CFFArchive& a, double& first, double& second) {
  first = a.GetDouble();
  if (ArchiveCore::HasError(a)) return 0;
  second = a.GetDouble();
  return ArchiveCore::HasError(a) ? 0 : 1;
}

// Array writer: the count of `first`, then element i of first, second and
// third in turn. A shorter second or third array throws std::out_of_range.
template <class T, class PutOne>
int PutArrays(CFFArchive& a, const std::vector<T>& first, const std::vector<T>* second, const std::vector<T>* third,
              PutOne put) {
  a.PutLong(static_cast<int32_t>(first.size()));
  for (size_t i = 0; i < first.size(); ++i) {
    put(first[i]);
    if (second) put(second->at(i));
    if (third) put(third->at(i));
  }
  return 1;
}

// Array reader: appends count rounds of elements; 0 at the first failed read.
template <class T, class GetOne>
int GetArrays(CFFArchive& a, std::vector<T>& first, std::vector<T>* second, std::vector<T>* third, GetOne get) {
  const int32_t count = a.GetLong();
  if (ArchiveCore::HasError(a)) return 0;
  std::vector<T>* const targets[3] = {&first, second, third};
  for (int32_t i = 0; i < count; ++i) {
    for (std::vector<T>* target : targets) {
      if (!target) continue;
      T value{};
      get(value);
      if (ArchiveCore::HasError(a)) return 0;
      target->push_back(std::move(value));
    }
  }
  return 1;
}

}  // namespace

CFFArchive& CFFArchive::operator<<(const LOGFONT& font) {
  uint8_t bytes[kLogFontBytes];
  EncodeLogFont(font, bytes);
  PutByte(bytes, kLogFontBytes);
  return *this;
}

CFFArchive& CFFArchive::operator<<(const CSize& size) {
  const int32_t values[2] = {size.cx, size.cy};
  PutLong(values, 2);
  return *this;
}

CFFArchive& CFFArchive::operator<<(const CRect& rect) {
  const int32_t values[4] = {rect.left, rect.top, rect.right, rect.bottom};
  PutLong(values, 4);
  return *this;
}

CFFArchive& CFFArchive::operator<<(const CDblPoint& point) {
  const double values[2] = {point.x, point.y};
  PutDouble(values, 2);
  return *this;
}

CFFArchive& CFFArchive::operator<<(const CDblRect& rect) {
  const double values[4] = {rect.left, rect.top, rect.right, rect.bottom};
  PutDouble(values, 4);
  return *this;
}

CFFArchive& CFFArchive::operator<<(const CTime& time) {
  uint8_t bytes[kTimeBytes];
  StoreLE(bytes, time.m_time);
  PutByte(bytes, kTimeBytes);
  return *this;
}

CFFArchive& CFFArchive::operator<<(const COleDateTime& date) {
  uint8_t bytes[kDateBytes];
  EncodeDate(date, bytes);
  PutByte(bytes, kDateBytes);
  return *this;
}

CFFArchive& CFFArchive::operator>>(LOGFONT& font) {
  uint8_t bytes[kLogFontBytes];
  if (ReadExactly(*this, bytes)) DecodeLogFont(bytes, font);
  return *this;
}

CFFArchive& CFFArchive::operator>>(CSize& size) {
  int32_t v[2];
  if (ReadExactly(*this, v)) size = CSize(v[0], v[1]);
  return *this;
}

CFFArchive& CFFArchive::operator>>(CRect& rect) {
  int32_t v[4];
  if (ReadExactly(*this, v)) rect = CRect(v[0], v[1], v[2], v[3]);
  return *this;
}

CFFArchive& CFFArchive::operator>>(CDblPoint& point) {
  double v[2];
  if (ReadExactly(*this, v)) point = CDblPoint(v[0], v[1]);
  return *this;
}

CFFArchive& CFFArchive::operator>>(CDblRect& rect) {
  double v[4];
  if (ReadExactly(*this, v)) rect = CDblRect(v[0], v[1], v[2], v[3]);
  return *this;
}

CFFArchive& CFFArchive::operator>>(CTime& time) {
  uint8_t bytes[kTimeBytes];
  StoreLE(bytes, time.m_time);
  ReadLeading(*this, bytes);
  time.m_time = LoadLE<int64_t>(bytes);
  return *this;
}

CFFArchive& CFFArchive::operator>>(COleDateTime& date) {
  uint8_t bytes[kDateBytes];
  EncodeDate(date, bytes);
  ReadLeading(*this, bytes);
  date.m_dt = LoadLE<double>(bytes);
  date.m_status = LoadLE<int32_t>(bytes + 8);
  return *this;
}

int CFFArchive::PutDblPoint(const CDblPoint* point) {
  if (!point) return 0;
  PutDouble(point->x);
  PutDouble(point->y);
  return 1;
}

int CFFArchive::GetDblPoint(CDblPoint* point) { return point ? ReadTwoDoubles(*this, point->x, point->y) : 0; }

int CFFArchive::PutDblPointArray(const std::vector<CDblPoint>& first, const std::vector<CDblPoint>* second,
                                 const std::vector<CDblPoint>* third) {
  return PutArrays(*this, first, second, third, [this](const CDblPoint& p) { PutDblPoint(&p); });
}

int CFFArchive::PutStringArray(const StringArray& first, const StringArray* second, const StringArray* third) {
  return PutArrays(*this, first, second, third, [this](const String& s) { PutString(s.c_str()); });
}

int CFFArchive::PutCharArray(const std::vector<char>& first, const std::vector<char>* second,
                             const std::vector<char>* third) {
  return PutArrays(*this, first, second, third, [this](char c) { PutByte(static_cast<uint8_t>(c)); });
}

int CFFArchive::PutIntArray(const std::vector<int32_t>& first, const std::vector<int32_t>* second,
                            const std::vector<int32_t>* third) {
  return PutArrays(*this, first, second, third, [this](int32_t v) { PutLong(v); });
}

int CFFArchive::PutDWordArray(const std::vector<uint32_t>& first, const std::vector<uint32_t>* second,
                              const std::vector<uint32_t>* third) {
  return PutArrays(*this, first, second, third, [this](uint32_t v) { PutLong(static_cast<int32_t>(v)); });
}

int CFFArchive::GetDblPointArray(std::vector<CDblPoint>& first, std::vector<CDblPoint>* second,
                                 std::vector<CDblPoint>* third) {
  return GetArrays(*this, first, second, third, [this](CDblPoint& p) { GetDblPoint(&p); });
}

int CFFArchive::GetStringArray(StringArray& first, StringArray* second, StringArray* third) {
  return GetArrays(*this, first, second, third, [this](String& s) { s = GetString(); });
}

int CFFArchive::GetCharArray(std::vector<char>& first, std::vector<char>* second, std::vector<char>* third) {
  return GetArrays(*this, first, second, third, [this](char& c) { c = static_cast<char>(GetByte()); });
}

int CFFArchive::GetIntArray(std::vector<int32_t>& first, std::vector<int32_t>* second, std::vector<int32_t>* third) {
  return GetArrays(*this, first, second, third, [this](int32_t& v) { v = GetLong(); });
}

int CFFArchive::GetDWordArray(std::vector<uint32_t>& first, std::vector<uint32_t>* second,
                              std::vector<uint32_t>* third) {
  return GetArrays(*this, first, second, third, [this](uint32_t& v) { v = static_cast<uint32_t>(GetLong()); });
}

}  // namespace mapcfg
