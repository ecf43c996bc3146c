// One description of a record's fields, run in every direction.
//
// Each record type has one function, beside the record, that names its
// fields in archive order:
//
//   template <class V>
//   void Fields(V& v, LINE_PROP& r) {
//     v("color", r.color);
//     v("width", r.width);
//     if constexpr (V::kReads)  // the fix-up of streams older than 0x02017519
//       if (v.ok() && v.version() < 0x02017519 && ...) r.width = 0.01f;
//     v("style", r.style);
//   }
//
// RecordWriter puts each field with its archive operation; RecordReader gets
// them back in the same order, stopping at the first failed read (later
// fields keep what the caller had), with the archive version for the guards
// of layouts that changed; RecordDescriber turns the fields into named texts
// for tools that show and compare configurations. Writers always write the
// current layout: a guard only changes what readers expect.
//
// How a field is stored follows from its C++ type:
//   String                       PutString
//   char[N]                      PutString; read back cut to N - 1 bytes, and
//                                left as it was when the read fails
//   int32_t, uint32_t            PutLong
//   int16_t, uint16_t            PutShort
//   uint8_t, char                PutByte
//   float, double                PutFloat, PutDouble
//   T[N] (other T)               its N elements in order
//   StringArray                  PutStringArray (count, then the texts)
//   std::vector<uint32_t>        PutDWordArray
//   std::vector<int32_t>         PutIntArray (the same bytes)
//   RecordArray<R>               PutLong(count), then each record; readers
//                                append a new record per element
//   a record R                   its own Fields, with the same version
// and two forms for layouts that are not one field per member:
//   v.Block(name, words, n)      n words as one long array (PutLong(p, n),
//                                GetDWord(p, n))
//   v.Rows(name, a, b, c)        PutLong(b.size()), then a[i], b[i], c[i]
//                                for each i (parallel arrays as rows)
//   v.Columns(name, a, b, ...)   PutLong(a.size()), then row i of every
//                                array in turn (any number of arrays; a
//                                RecordArray cell is its record)
//
// A record that holds records of its own type (a tree) brackets its fields
// with v.EnterNested() and v.LeaveNested(): readers and writers fail with
// error 539 on a record nested deeper than kMaxRecordNesting, and no visitor
// goes deeper.
//
// Fields functions are found by argument-dependent lookup, so they live in
// namespace mapcfg; they are not exported.
#ifndef MAPCFG_ARCHIVE_RECORD_IO_H_
#define MAPCFG_ARCHIVE_RECORD_IO_H_

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "archive/archive_core.h"
#include "mapcfg/archive.h"
#include "mapcfg/types.h"

namespace mapcfg {
namespace detail {

// The version writers and describers run with: every guard takes the
// current layout.
constexpr uint32_t kCurrentVersion = 0xFFFFFFFFu;

// Levels of records nested in records of their own type that any visitor
// follows; the archive's trees (single-well tracks) are at most this deep.
constexpr int kMaxRecordNesting = 256;

// The level count of a visitor: Enter is false, without counting, for a
// record that would lie deeper than kMaxRecordNesting.
class Nesting {
 public:
  bool Enter() {
    if (depth_ >= kMaxRecordNesting) return false;
    ++depth_;
    return true;
  }
  void Leave() { --depth_; }

 private:
  int depth_ = 0;
};

template <class T>
struct IsRecordArray : std::false_type {};
template <class R>
struct IsRecordArray<RecordArray<R>> : std::true_type {};

// Length of a name held in a fixed array (the array's size when a host left
// it without a terminator).
template <size_t N>
size_t FixedLength(const char (&text)[N]) {
  const void* end = std::memchr(text, '\0', N);
  return end ? static_cast<size_t>(static_cast<const char*>(end) - text) : N;
}

class RecordWriter {
 public:
  static constexpr bool kReads = false;
  explicit RecordWriter(CFFArchive& a) : a_(a) {}
  bool ok() const { return true; }
  uint32_t version() const { return kCurrentVersion; }
  // A record past kMaxRecordNesting levels is left out and the write
  // fails (PutRecord sets error 539): what was written cannot be read back.
  bool EnterNested() {
    if (nesting_.Enter()) return true;
    too_deep_ = true;
    return false;
  }
  void LeaveNested() { nesting_.Leave(); }
  bool too_deep() const { return too_deep_; }

  void operator()(const char*, const String& v) { a_.PutString(v.c_str()); }
  template <size_t N>
  void operator()(const char*, const char (&text)[N]) {
    a_.PutString(String(text, FixedLength(text)).c_str());
  }
  void operator()(const char*, int32_t v) { a_.PutLong(v); }
  void operator()(const char*, uint32_t v) { a_.PutLong(static_cast<int32_t>(v)); }
  void operator()(const char*, int16_t v) { a_.PutShort(v); }
  void operator()(const char*, uint16_t v) { a_.PutShort(static_cast<int16_t>(v)); }
  void operator()(const char*, uint8_t v) { a_.PutByte(v); }
  void operator()(const char*, char v) { a_.PutByte(static_cast<uint8_t>(v)); }
  void operator()(const char*, float v) { a_.PutFloat(v); }
  void operator()(const char*, double v) { a_.PutDouble(v); }
  void operator()(const char*, const StringArray& v) { a_.PutStringArray(v); }
  void operator()(const char*, const std::vector<uint32_t>& v) { a_.PutDWordArray(v); }
  void operator()(const char*, const std::vector<int32_t>& v) { a_.PutIntArray(v); }
  template <class T, size_t N>
  void operator()(const char* name, const T (&items)[N]) {
    for (const T& item : items) (*this)(name, item);
  }
  template <class R>
  void operator()(const char*, const RecordArray<R>& records) {
    a_.PutLong(static_cast<int32_t>(records.size()));
    for (const std::unique_ptr<R>& r : records) Record(*r);
  }
  template <class R, class = std::enable_if_t<std::is_class_v<R> && !IsRecordArray<R>::value>>
  void operator()(const char*, const R& record) {
    Record(record);
  }

  void Block(const char*, const uint32_t* words, uint32_t n) {
    a_.PutLong(reinterpret_cast<const int32_t*>(words), n);
  }
  // Rows of parallel arrays; a shorter `a` or `c` (which hosts should not
  // make) gives empty or zero cells rather than reading past its end.
  template <class A, class B, class C>
  void Rows(const char* name, const std::vector<A>& a, const std::vector<B>& b, const std::vector<C>& c) {
    a_.PutLong(static_cast<int32_t>(b.size()));
    for (size_t i = 0; i < b.size(); ++i) {
      (*this)(name, i < a.size() ? a[i] : A());
      (*this)(name, b[i]);
      (*this)(name, i < c.size() ? c[i] : C());
    }
  }
  // Rows of parallel arrays, as many rows as `first` has; a shorter array
  // (which hosts should not make) gives empty, zero or blank-record cells.
  template <class First, class... Rest>
  void Columns(const char* name, const std::vector<First>& first, const std::vector<Rest>&... rest) {
    a_.PutLong(static_cast<int32_t>(first.size()));
    for (size_t i = 0; i < first.size(); ++i) {
      Cell(name, first, i);
      (Cell(name, rest, i), ...);
    }
  }

 private:
  template <class R>
  void Record(const R& record) {
    Fields(*this, const_cast<R&>(record));
  }
  template <class T>
  void Cell(const char* name, const std::vector<T>& column, size_t i) {
    (*this)(name, i < column.size() ? column[i] : T());
  }
  template <class R>
  void Cell(const char*, const RecordArray<R>& column, size_t i) {
    if (i < column.size() && column[i]) {
      Record(*column[i]);
    } else {
      Record(R{});
    }
  }
  CFFArchive& a_;
  Nesting nesting_;
  bool too_deep_ = false;
};

class RecordReader {
 public:
  static constexpr bool kReads = true;
  RecordReader(CFFArchive& a, uint32_t version) : a_(a), version_(version) {}
  // False from the first failed read on; every later field is left alone.
  bool ok() const { return ok_; }
  uint32_t version() const { return version_; }
  // False, with error 539, for a record past kMaxRecordNesting levels.
  bool EnterNested() {
    if (!ok_) return false;
    if (nesting_.Enter()) return true;
    ArchiveCore::Fail(a_, kMsgLibraryFailure);
    ok_ = false;
    return false;
  }
  void LeaveNested() { nesting_.Leave(); }

  void operator()(const char*, String& v) {
    if (ok_) Check(v = a_.GetString());
  }
  template <size_t N>
  void operator()(const char*, char (&text)[N]) {
    if (!ok_) return;
    const String s = a_.GetString();
    if (!Check(s)) return;
    const size_t n = s.size() < N - 1 ? s.size() : N - 1;
    std::memcpy(text, s.data(), n);
    text[n] = '\0';
  }
  void operator()(const char*, int32_t& v) { Scalar(v, &CFFArchive::GetLong); }
  void operator()(const char*, uint32_t& v) { Scalar(v, &CFFArchive::GetLong); }
  void operator()(const char*, int16_t& v) { Scalar(v, &CFFArchive::GetShort); }
  void operator()(const char*, uint16_t& v) { Scalar(v, &CFFArchive::GetShort); }
  void operator()(const char*, uint8_t& v) { Scalar(v, &CFFArchive::GetByte); }
  void operator()(const char*, char& v) { Scalar(v, &CFFArchive::GetByte); }
  void operator()(const char*, float& v) { Scalar(v, &CFFArchive::GetFloat); }
  void operator()(const char*, double& v) { Scalar(v, &CFFArchive::GetDouble); }
  void operator()(const char*, StringArray& v) {
    if (ok_) ok_ = a_.GetStringArray(v) != 0;
  }
  void operator()(const char*, std::vector<uint32_t>& v) {
    if (ok_) ok_ = a_.GetDWordArray(v) != 0;
  }
  void operator()(const char*, std::vector<int32_t>& v) {
    if (ok_) ok_ = a_.GetIntArray(v) != 0;
  }
  template <class T, size_t N>
  void operator()(const char* name, T (&items)[N]) {
    for (T& item : items) (*this)(name, item);
  }
  // Appends one record per element; a record that fails is dropped. Nothing
  // is reserved ahead of the records read, so a count larger than the
  // stream can hold allocates nothing for it.
  template <class R>
  void operator()(const char*, RecordArray<R>& records) {
    ReadRecords(records);
  }
  template <class R, class = std::enable_if_t<std::is_class_v<R> && !IsRecordArray<R>::value>>
  void operator()(const char*, R& record) {
    Fields(*this, record);
  }

  // Consumes one value of type T (a field that older layouts had).
  template <class T>
  void Discard(const char* name) {
    T ignored{};
    (*this)(name, ignored);
  }
  void Block(const char*, uint32_t* words, uint32_t n) {
    if (!ok_) return;
    a_.GetDWord(words, n);
    ok_ = !ArchiveCore::HasError(a_);
  }
  // Appends one row at a time: the cells of a row read before a failure
  // stay appended.
  template <class A, class B, class C>
  void Rows(const char* name, std::vector<A>& a, std::vector<B>& b, std::vector<C>& c) {
    int32_t count = 0;
    Scalar(count, &CFFArchive::GetLong);
    for (int32_t i = 0; ok_ && i < count; ++i) {
      Append(name, a) && Append(name, b) && Append(name, c);
    }
  }
  template <class... C>
  void Columns(const char* name, std::vector<C>&... columns) {
    int32_t count = 0;
    Scalar(count, &CFFArchive::GetLong);
    for (int32_t i = 0; ok_ && i < count; ++i) (Append(name, columns) && ...);
  }

 private:
  template <class R>
  void ReadRecords(RecordArray<R>& records) {
    int32_t count = 0;
    Scalar(count, &CFFArchive::GetLong);
    for (int32_t i = 0; ok_ && i < count; ++i) {
      auto record = std::make_unique<R>();
      Fields(*this, *record);
      if (ok_) records.push_back(std::move(record));
    }
  }
  template <class T>
  bool Append(const char* name, std::vector<T>& to) {
    T cell{};
    (*this)(name, cell);
    if (ok_) to.push_back(std::move(cell));
    return ok_;
  }
  template <class R>
  bool Append(const char*, RecordArray<R>& to) {
    auto record = std::make_unique<R>();
    Fields(*this, *record);
    if (ok_) to.push_back(std::move(record));
    return ok_;
  }
  bool Check(const String&) { return ok_ = !ArchiveCore::HasError(a_); }
  // A number takes what the archive gives even when the read fails, as
  // GetDblPoint does; the reading stops there.
  template <class T, class Got>
  void Scalar(T& v, Got (CFFArchive::*get)()) {
    if (!ok_) return;
    v = static_cast<T>((a_.*get)());
    ok_ = !ArchiveCore::HasError(a_);
  }
  CFFArchive& a_;
  uint32_t version_;
  bool ok_ = true;
  Nesting nesting_;
};

// Named texts of the fields: "line.width", "texts1[2]", "props[0].name".
class RecordDescriber {
 public:
  static constexpr bool kReads = false;
  bool ok() const { return true; }
  uint32_t version() const { return kCurrentVersion; }
  FieldTexts& texts() { return texts_; }
  bool EnterNested() { return nesting_.Enter(); }
  void LeaveNested() { nesting_.Leave(); }

  void operator()(const char* name, const String& v) { Add(name, v, FieldText::kText); }
  template <size_t N>
  void operator()(const char* name, const char (&text)[N]) {
    Add(name, String(text, FixedLength(text)), FieldText::kText);
  }
  void operator()(const char* name, int32_t v) { Add(name, std::to_string(v), FieldText::kInteger); }
  void operator()(const char* name, uint32_t v) { Add(name, Hex(v), FieldText::kHex); }
  void operator()(const char* name, int16_t v) { Add(name, std::to_string(v), FieldText::kInteger); }
  void operator()(const char* name, uint16_t v) { Add(name, Hex(v), FieldText::kHex); }
  void operator()(const char* name, uint8_t v) { Add(name, std::to_string(v), FieldText::kInteger); }
  void operator()(const char* name, char v) {
    Add(name, std::to_string(static_cast<signed char>(v)), FieldText::kInteger);
  }
  void operator()(const char* name, float v) { Add(name, RealText(v), FieldText::kReal); }
  void operator()(const char* name, double v) { Add(name, RealText(v), FieldText::kReal); }
  template <class T>
  void operator()(const char* name, const std::vector<T>& items) {
    Items(name, items.data(), items.size());
  }
  template <class T, size_t N>
  void operator()(const char* name, const T (&items)[N]) {
    Items(name, items, N);
  }
  template <class R>
  void operator()(const char* name, const RecordArray<R>& records) {
    for (size_t i = 0; i < records.size(); ++i) Sub(Indexed(name, i), *records[i]);
  }
  template <class R, class = std::enable_if_t<std::is_class_v<R> && !IsRecordArray<R>::value>>
  void operator()(const char* name, const R& record) {
    Sub(name, record);
  }
  void Block(const char* name, const uint32_t* words, uint32_t n) { Items(name, words, n); }
  template <class A, class B, class C>
  void Rows(const char* name, const std::vector<A>& a, const std::vector<B>& b, const std::vector<C>& c) {
    (*this)((std::string(name) + ".1").c_str(), a);
    (*this)((std::string(name) + ".2").c_str(), b);
    (*this)((std::string(name) + ".3").c_str(), c);
  }
  // Column k (from 1) as name.k.
  template <class... C>
  void Columns(const char* name, const std::vector<C>&... columns) {
    int k = 0;
    ((*this)((std::string(name) + "." + std::to_string(++k)).c_str(), columns), ...);
  }

  static std::string Hex(uint32_t v);
  static std::string RealText(double v);
  static std::string RealText(float v);

 private:
  static std::string Indexed(const char* name, size_t i) { return std::string(name) + "[" + std::to_string(i) + "]"; }
  template <class T>
  void Items(const char* name, const T* items, size_t n) {
    for (size_t i = 0; i < n; ++i) (*this)(Indexed(name, i).c_str(), items[i]);
  }
  template <class R>
  void Sub(const std::string& name, const R& record) {
    const std::string saved = prefix_;
    prefix_ += name + ".";
    Fields(*this, const_cast<R&>(record));
    prefix_ = saved;
  }
  void Add(const char* name, String value, FieldText::Kind kind) {
    texts_.push_back(FieldText{prefix_ + name, std::move(value), kind});
  }
  std::string prefix_;
  FieldTexts texts_;
  Nesting nesting_;
};

// The archive operations of a record type, for its CFFArchive members.
// 1, or 0 with error 539 when the writer met a tree too deep to read back.
inline int WriteDone(CFFArchive& a, const RecordWriter& w) {
  if (!w.too_deep()) return 1;
  ArchiveCore::Fail(a, kMsgLibraryFailure);
  return 0;
}

template <class R>
int PutRecord(CFFArchive& a, const R& record) {
  RecordWriter w(a);
  w(nullptr, record);
  return WriteDone(a, w);
}

template <class R>
int GetRecord(CFFArchive& a, R& record, uint32_t version) {
  RecordReader r(a, version);
  r(nullptr, record);
  return r.ok() ? 1 : 0;
}

// Put...Array: the count of `first`, then for each index the record of
// first, second and third in turn; a shorter second or third array throws
// std::out_of_range when its missing index is reached.
template <class R>
int PutRecordArrays(CFFArchive& a, const RecordArray<R>& first, const RecordArray<R>* second,
                    const RecordArray<R>* third) {
  RecordWriter w(a);
  a.PutLong(static_cast<int32_t>(first.size()));
  for (size_t i = 0; i < first.size(); ++i) {
    w(nullptr, *first[i]);
    if (second) w(nullptr, *second->at(i));
    if (third) w(nullptr, *third->at(i));
  }
  return WriteDone(a, w);
}

// Get...Array: the count, then for each index a new record appended to
// first, second and third in turn; 0 at the first failure (records read
// before stay, the failed one is dropped).
template <class R>
int GetRecordArrays(CFFArchive& a, uint32_t version, RecordArray<R>& first, RecordArray<R>* second,
                    RecordArray<R>* third) {
  RecordReader r(a, version);
  int32_t count = 0;
  r(nullptr, count);
  RecordArray<R>* const targets[3] = {&first, second, third};
  for (int32_t i = 0; r.ok() && i < count; ++i) {
    for (RecordArray<R>* target : targets) {
      if (!target) continue;
      auto record = std::make_unique<R>();
      r(nullptr, *record);
      if (!r.ok()) break;
      target->push_back(std::move(record));
    }
  }
  return r.ok() ? 1 : 0;
}

template <class R>
FieldTexts DescribeRecord(const R& record) {
  RecordDescriber d;
  Fields(d, const_cast<R&>(record));
  return std::move(d.texts());
}

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_ARCHIVE_RECORD_IO_H_
