// The tagged binary archive (CFFArchive).
//
// An archive is an in-memory stream of self-describing values: each value is
// a tag byte naming its type, then its payload, little-endian whatever the
// host (doc/archive_format.md gives the bytes). A stream is written from
// empty with Put... calls, then saved (ToFile, ToData) or rewound and read
// back with the matching Get... calls in the same order. Readers accept a
// value of any stored type and convert it to the type asked for, so a record
// layout may widen a field (short to long, float to double, number kept as
// text) while older streams still read.
//
// Failures are never thrown and never printed: the archive keeps an error
// flag and an error text (GetLastError). Every raw read and write clears the
// flag first and every Put... clears it again when it returns, so callers
// test GetLastError after a sequence of Get... calls. The messages are the
// information texts 539 (library failure: memory, files, a stream that would
// pass 4 GiB), 838 (read beyond the end), 839 (fewer bytes delivered than
// asked) and 840 (a stored tag the requested type cannot be read from).
//
// Thread safety: an archive is used by one thread at a time.
#ifndef MAPCFG_ARCHIVE_H_
#define MAPCFG_ARCHIVE_H_

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <vector>

#include "mapcfg/export.h"
#include "mapcfg/types.h"
#include "mapcfg/values.h"

namespace mapcfg {

class CDblPoint;
class CDblRect;
// Records of the catalogues (mapcfg/catalogs.h) and the store (mapcfg/store.h).
struct _HVSpaceProp;
struct LINE_PROP;
struct PATT_PROP;
struct FONT_PROP;
struct _StatusProp;
struct _IntepretProp;
struct _LithProp;
struct _SysCfgParam;
// Section map records (mapcfg/maps.h).
struct _PMTAutoParm;
struct _PMTMapProp;
struct _PMTBodyProp;
struct _PMTLableProp;
// Map records (mapcfg/catalogs.h).
struct _LayersProp;
struct _MapFrameProp;
struct _LegendProp;
struct _LegendMetaProp;
struct _ScaleProp;
struct _CurveParm;
// Production and test display (mapcfg/catalogs.h).
struct _OldProdProp;
struct _OldTestProp;
// Well location map (mapcfg/maps.h).
struct _JWTAutoParm;
struct _JWTMapProp;
// Plane-shape and migration templates (mapcfg/maps.h).
struct _PlaneShapeTempl;
struct _NoDiviType;
struct _MigraTempl;
struct _MigraItem;
// Statistics registry (mapcfg/maps.h).
struct _StatTempl;
struct _StatMeta;
struct _StatMember;
// Single-well charts (mapcfg/maps.h).
struct _DJTMapProp;
struct _DJTTrackProp;
struct _DJTTrack;
struct _DJTTempl;

namespace detail {
struct ArchiveCore;  // the archive's internal operations
}  // namespace detail

class MAPCFG_EXPORT CFFArchive {
 public:
  // An empty stream: GetCount() 0, no error. Allocates nothing.
  CFFArchive() noexcept;
  // Releases the memory block.
  ~CFFArchive();
  CFFArchive(const CFFArchive&) = delete;
  CFFArchive& operator=(const CFFArchive&) = delete;

  // --- Buffer and persistence -------------------------------------------------
  // The stream lives in a memory block with one position shared by reads and
  // writes. Two counters bound it: the size (bytes written, GetCount) and the
  // read position (bytes consumed by ReadUnit since the last reset). The
  // block is never shrunk; its physical length is the highest position ever
  // written, which may exceed the size after Empty.

  // Clears the error flag, writes n bytes at the block position and adds n to
  // the size. A write that would take the size or the block past 4 GiB - 1
  // bytes, or that finds no memory, writes nothing and sets error 539.
  // `data` may be null only when n is 0.
  void WriteUnit(const void* data, uint32_t n);
  // Clears the error flag and reads n bytes from the block position into
  // `buffer`. Returns 1 on success. When fewer than n bytes remain before the
  // size, sets error 838 and reads nothing; when the block itself ends
  // first, copies what it holds, sets error 839 and returns 0. The read
  // position moves only on success. A null `buffer` skips the bytes.
  int ReadUnit(void* buffer, uint32_t n);
  // Read position and block position back to 0; size and error flag kept.
  void Rewind();
  // Size, read position and block position back to 0; the error flag is kept
  // and no memory is released.
  void Empty();
  // The size of the stream in bytes.
  uint32_t GetCount() const;
  // The error text while the error flag is set, else the empty String.
  String GetLastError() const;
  // Turns a caught library failure into the archive's error: sets the flag
  // and takes e->what() as the text, or message 539 when e is null or its
  // text is empty.
  void GetError(const std::exception* e);

  // Replaces the stream by the bytes of the file at `path` (opened through
  // sOpenFile). Returns 1, or 0 with the error set; the size then holds the
  // bytes read before the failure.
  int FromFile(const String& path);
  // Writes the memory block up to its physical length to `path`, creating or
  // truncating the file: after Empty and a shorter stream, the old bytes
  // beyond the size follow the new ones. Returns 1, or 0 with the error set.
  int ToFile(const String& path);
  // Replaces the stream by a copy of the caller's n bytes (the caller keeps
  // its block). Returns 1, or 0 with error 539 when no memory is found.
  int FromData(const void* data, uint32_t n);
  // A copy of exactly GetCount() bytes, owned by the caller, and its length
  // in `n`; null with n = 0 when the stream is empty or cannot be read whole
  // (error 839) or copied (539). Rewinds the stream.
  std::unique_ptr<uint8_t[]> ToData(uint32_t& n);

  // --- Scalar values ------------------------------------------------------------
  // Writers store the tag, the count for blocks, then the payload, and clear
  // the error flag when they return.
  void PutByte(uint8_t value);   // tag 1
  void PutShort(int16_t value);  // tag 2
  void PutLong(int32_t value);   // tag 3
  void PutFloat(float value);    // tag 4
  void PutDouble(double value);  // tag 5
  // Counted arrays (tags 31 to 35): the count n, then n elements. `values`
  // may be null only when n is 0 (a null block is stored as an empty one).
  void PutByte(const uint8_t* values, uint32_t n);
  void PutShort(const int16_t* values, uint32_t n);
  void PutLong(const int32_t* values, uint32_t n);
  void PutFloat(const float* values, uint32_t n);
  void PutDouble(const double* values, uint32_t n);
  // A NUL-terminated text (tag 21): its length, then its bytes without the
  // terminator. Null is stored as the empty text.
  void PutString(const char* text);
  // Raw bytes, stored exactly as PutByte(values, n).
  void PutBinary(const void* data, uint32_t n);

  // Scalar readers: the next value, whatever its stored type, converted to
  // the requested one (narrowing keeps the low-order bits; stored floats and
  // doubles become integers by adding 0.0005 or 5e-7 and truncating; texts
  // go through sToInteger, sToFloat, sToDouble; numbers become text through
  // sToString; of a stored array the first element is read and the rest
  // consumed). 0 or the empty String on failure.
  uint8_t GetByte();
  int16_t GetShort();
  int32_t GetLong();
  float GetFloat();
  double GetDouble();
  String GetString();

  // Array readers: a new block owned by the caller in `out` and its element
  // count. A stored scalar or text gives a count of 1. The block holds one
  // element more than the count (set to 0). On failure 0 is returned and
  // `out` is left as it was.
  uint32_t GetByte(std::unique_ptr<uint8_t[]>& out);
  uint32_t GetShort(std::unique_ptr<int16_t[]>& out);
  uint32_t GetLong(std::unique_ptr<int32_t[]>& out);
  uint32_t GetFloat(std::unique_ptr<float[]>& out);
  uint32_t GetDouble(std::unique_ptr<double[]>& out);

  // Reads a byte array and copies at most `capacity` bytes of it into
  // `buffer`; returns the number copied (0 on failure).
  uint32_t GetBinary(void* buffer, uint32_t capacity);
  // Reads a long array, zero-fills the first `capacity` words of `buffer`,
  // then copies min(count, capacity) words; returns 0 on failure, otherwise
  // max(count, capacity). Never writes past `capacity` words.
  uint32_t GetDWord(uint32_t* buffer, uint32_t capacity);

  // Stream operators: char as tag 1, short 2, int 3, float 4, double 5, a
  // NUL-terminated text as PutString; the readers use GetByte, GetShort,
  // GetLong, GetFloat, GetDouble, GetString.
  CFFArchive& operator<<(char value);
  CFFArchive& operator<<(short value);
  CFFArchive& operator<<(int value);
  CFFArchive& operator<<(float value);
  CFFArchive& operator<<(double value);
  CFFArchive& operator<<(const char* text);
  CFFArchive& operator>>(char& value);
  CFFArchive& operator>>(short& value);
  CFFArchive& operator>>(int& value);
  CFFArchive& operator>>(float& value);
  CFFArchive& operator>>(double& value);
  CFFArchive& operator>>(String& value);

  // --- Composite values ---------------------------------------------------------
  // Each structure is one counted block: LOGFONT a byte array of its 60
  // bytes in field order, CSize and CRect long arrays (cx, cy / left, top,
  // right, bottom), CDblPoint and CDblRect double arrays, CTime a byte array
  // of its 8-byte seconds, COleDateTime a byte array of its 8-byte date and
  // 4-byte status. Readers copy only a block of the exact count (2 or 4
  // elements, 60 bytes) and otherwise leave the target unchanged; CTime and
  // COleDateTime take min(count, 8 or 12) leading bytes.
  CFFArchive& operator<<(const LOGFONT& font);
  CFFArchive& operator<<(const CSize& size);
  CFFArchive& operator<<(const CRect& rect);
  CFFArchive& operator<<(const CDblPoint& point);
  CFFArchive& operator<<(const CDblRect& rect);
  CFFArchive& operator<<(const CTime& time);
  CFFArchive& operator<<(const COleDateTime& date);
  CFFArchive& operator>>(LOGFONT& font);
  CFFArchive& operator>>(CSize& size);
  CFFArchive& operator>>(CRect& rect);
  CFFArchive& operator>>(CDblPoint& point);
  CFFArchive& operator>>(CDblRect& rect);
  CFFArchive& operator>>(CTime& time);
  CFFArchive& operator>>(COleDateTime& date);

  // A point as two scalar doubles (x, y): 18 bytes, unlike operator<< (one
  // block of 21). PutDblPoint returns 1 (0 for a null point). GetDblPoint
  // stores x, returns 0 at once if that read failed, then stores y and
  // returns 1 when it succeeded.
  int PutDblPoint(const CDblPoint* point);
  int GetDblPoint(CDblPoint* point);
  // The spacing record's two doubles, exactly as PutDblPoint/GetDblPoint.
  int PutHVSpaceProp(const _HVSpaceProp* prop);
  int GetHVSpaceProp(_HVSpaceProp* prop);

  // --- Records -------------------------------------------------------------------
  // Each record is its fields in order (the layouts are in mapcfg/catalogs.h
  // and mapcfg/store.h). Put... writes the current layout and returns 1. Get...
  // reads it, taking the layout of archive `version` where the layout
  // changed; it stops at the first failed read and returns 0: fields read
  // before keep their new values, later ones what the caller had (a failed
  // name read leaves the name as it was).
  int PutLineProp(const LINE_PROP& line);
  int GetLineProp(LINE_PROP& line, uint32_t version);
  int PutPattProp(const PATT_PROP& patt);
  int GetPattProp(PATT_PROP& patt, uint32_t version);
  int PutFontProp(const FONT_PROP& font);
  int GetFontProp(FONT_PROP& font);
  int PutStatusProp(const _StatusProp* prop);
  int GetStatusProp(_StatusProp* prop);
  int PutInterpretProp(const _IntepretProp* prop);
  int GetInterpretProp(_IntepretProp* prop);
  int PutLithProp(const _LithProp* prop);
  int GetLithProp(_LithProp* prop);
  int PutSysCfgParam(const _SysCfgParam* param);
  int GetSysCfgParam(_SysCfgParam* param, uint32_t version);
  // Section map records (mapcfg/maps.h). The versioned readers hand the
  // version to every embedded line and fill.
  int PutPMTAutoParm(const _PMTAutoParm* parm);
  int GetPMTAutoParm(_PMTAutoParm* parm);
  int PutPMTMapProp(const _PMTMapProp* prop);
  int GetPMTMapProp(_PMTMapProp* prop, uint32_t version);
  int PutPMTBodyProp(const _PMTBodyProp* prop);
  int GetPMTBodyProp(_PMTBodyProp* prop, uint32_t version);
  int PutPMTLabelProp(const _PMTLableProp* prop);
  int GetPMTLabelProp(_PMTLableProp* prop, uint32_t version);
  // End of the section map records.
  // Map records. Get... takes the version for the line and pattern
  // records inside and for layouts after kMapRecordsVersion1.
  int PutLayersProp(const _LayersProp* prop);
  int GetLayersProp(_LayersProp* prop, uint32_t version);
  int PutMapFrameProp(const _MapFrameProp* prop);
  int GetMapFrameProp(_MapFrameProp* prop, uint32_t version);
  int PutLegendProp(const _LegendProp* prop);
  int GetLegendProp(_LegendProp* prop, uint32_t version);
  int PutLegendMetaProp(const _LegendMetaProp* prop);
  int GetLegendMetaProp(_LegendMetaProp* prop, uint32_t version);
  int PutScaleProp(const _ScaleProp* prop);
  int GetScaleProp(_ScaleProp* prop, uint32_t version);
  int PutCurveParm(const _CurveParm* parm);
  int GetCurveParm(_CurveParm* parm, uint32_t version);
  // PutLong(count), then each record; the reader appends.
  int PutCurveParmArray(const RecordArray<_CurveParm>& parms);
  int GetCurveParmArray(RecordArray<_CurveParm>& parms, uint32_t version);
  // Production and test display; the version goes on to the line and
  // pattern reads.
  int PutOldProdProp(const _OldProdProp* prop);
  int GetOldProdProp(_OldProdProp* prop, uint32_t version);
  int PutOldTestProp(const _OldTestProp* prop);
  int GetOldTestProp(_OldTestProp* prop, uint32_t version);
  // Well location map parameters (no version).
  int PutJWTAutoParm(const _JWTAutoParm* parm);
  int GetJWTAutoParm(_JWTAutoParm* parm);
  int PutJWTMapProp(const _JWTMapProp* prop);
  int GetJWTMapProp(_JWTMapProp* prop);
  // Plane-shape and migration templates. Get... takes the version for the
  // line and pattern records inside and for layouts after
  // kShapeTemplsVersion1.
  int PutPlaneShapeTempl(const _PlaneShapeTempl* templ);
  int GetPlaneShapeTempl(_PlaneShapeTempl* templ, uint32_t version);
  int PutNoDiviType(const _NoDiviType* type);
  int GetNoDiviType(_NoDiviType* type, uint32_t version);
  int PutMigraTempl(const _MigraTempl* templ);
  int GetMigraTempl(_MigraTempl* templ, uint32_t version);
  int PutMigraItem(const _MigraItem* item);
  int GetMigraItem(_MigraItem* item, uint32_t version);
  // Statistics registry records: a template and an item in the layout of
  // the template file, read with the current version; a member as one
  // String. The array forms: PutLong(count), then each record; the readers
  // append.
  int PutStatTempl(const _StatTempl* templ);
  int GetStatTempl(_StatTempl* templ);
  int PutStatMetal(const _StatMeta* meta);
  int GetStatMetal(_StatMeta* meta);
  int PutStatMember(const _StatMember* member);
  int GetStatMember(_StatMember* member);
  int PutStatTemplArray(const RecordArray<_StatTempl>& templs);
  int GetStatTemplArray(RecordArray<_StatTempl>& templs);
  int PutStatMetalArray(const RecordArray<_StatMeta>& metas);
  int GetStatMetalArray(RecordArray<_StatMeta>& metas);
  int PutStatMemberArray(const RecordArray<_StatMember>& members);
  int GetStatMemberArray(RecordArray<_StatMember>& members);
  // Single-well charts. A track is its properties, its curves and its
  // children; the Get forms fail with error 539 on a track deeper than
  // kMaxTrackDepth and the Put forms write nothing for a tree deeper than
  // that (error 539, 0).
  int PutDJTMapProp(const _DJTMapProp* prop);
  int GetDJTMapProp(_DJTMapProp* prop);
  int PutDJTTrackProp(const _DJTTrackProp* prop);
  int GetDJTTrackProp(_DJTTrackProp* prop, uint32_t version);
  int PutDJTTrack(const _DJTTrack* track);
  int GetDJTTrack(_DJTTrack* track, uint32_t version);
  int PutDJTTempl(const _DJTTempl* templ);
  int GetDJTTempl(_DJTTempl* templ, uint32_t version);
  // PutLong(count), then each record; the readers append.
  int PutDJTTrackArray(const RecordArray<_DJTTrack>& tracks);
  int GetDJTTrackArray(RecordArray<_DJTTrack>& tracks, uint32_t version);
  int PutDJTTemplArray(const RecordArray<_DJTTempl>& templs);
  int GetDJTTemplArray(RecordArray<_DJTTempl>& templs, uint32_t version);
  // Record arrays, as the value arrays below: PutLong(first.size()), then for
  // each index the record of `first`, then of `second` and `third` when
  // given. The readers append a new record per element, stop at the first
  // failure (the records read before stay) and never allocate ahead of the
  // bytes that hold the records.
  int PutStatusPropArray(const RecordArray<_StatusProp>& first, const RecordArray<_StatusProp>* second = nullptr,
                         const RecordArray<_StatusProp>* third = nullptr);
  int GetStatusPropArray(RecordArray<_StatusProp>& first, RecordArray<_StatusProp>* second = nullptr,
                         RecordArray<_StatusProp>* third = nullptr);
  int PutInterpretPropArray(const RecordArray<_IntepretProp>& first,
                            const RecordArray<_IntepretProp>* second = nullptr,
                            const RecordArray<_IntepretProp>* third = nullptr);
  int GetInterpretPropArray(RecordArray<_IntepretProp>& first, RecordArray<_IntepretProp>* second = nullptr,
                            RecordArray<_IntepretProp>* third = nullptr);
  int PutLithPropArray(const RecordArray<_LithProp>& first, const RecordArray<_LithProp>* second = nullptr,
                       const RecordArray<_LithProp>* third = nullptr);
  int GetLithPropArray(RecordArray<_LithProp>& first, RecordArray<_LithProp>* second = nullptr,
                       RecordArray<_LithProp>* third = nullptr);

  // Arrays behind a count: PutLong(first.size()), then for each index the
  // element of `first`, then of `second` and `third` when given, interleaved.
  // A second or third array shorter than the first throws std::out_of_range
  // after the elements before it were written. Points are written with
  // PutDblPoint, strings with PutString, chars with PutByte, ints and words
  // with PutLong. Return 1.
  int PutDblPointArray(const std::vector<CDblPoint>& first, const std::vector<CDblPoint>* second = nullptr,
                       const std::vector<CDblPoint>* third = nullptr);
  int PutStringArray(const StringArray& first, const StringArray* second = nullptr, const StringArray* third = nullptr);
  int PutCharArray(const std::vector<char>& first, const std::vector<char>* second = nullptr,
                   const std::vector<char>* third = nullptr);
  int PutIntArray(const std::vector<int32_t>& first, const std::vector<int32_t>* second = nullptr,
                  const std::vector<int32_t>* third = nullptr);
  int PutDWordArray(const std::vector<uint32_t>& first, const std::vector<uint32_t>* second = nullptr,
                    const std::vector<uint32_t>* third = nullptr);
  // Readers of the above: GetLong the count, then append each element read
  // to the end of its array (the arrays are not emptied first). Return 1
  // after count rounds (at once for a count of 0 or less), 0 at the first
  // failed read; the elements read before it stay appended and the failed
  // one is not.
  int GetDblPointArray(std::vector<CDblPoint>& first, std::vector<CDblPoint>* second = nullptr,
                       std::vector<CDblPoint>* third = nullptr);
  int GetStringArray(StringArray& first, StringArray* second = nullptr, StringArray* third = nullptr);
  int GetCharArray(std::vector<char>& first, std::vector<char>* second = nullptr, std::vector<char>* third = nullptr);
  int GetIntArray(std::vector<int32_t>& first, std::vector<int32_t>* second = nullptr,
                  std::vector<int32_t>* third = nullptr);
  int GetDWordArray(std::vector<uint32_t>& first, std::vector<uint32_t>* second = nullptr,
                    std::vector<uint32_t>* third = nullptr);

  // --- Inspection ---------------------------------------------------------------
  // Lists the values from the read position to the end, consuming them: per
  // value a type line ("TYPE_I4\r\n" ...) and its value lines ("    7\r\n").
  // Stops at an unknown tag with error 840, returning the listing so far; a
  // value cut short lists as its reader left it and the listing goes on
  // from the byte after its tag.
  String TestData();

 private:
  friend struct detail::ArchiveCore;

  MAPCFG_STD_MEMBERS_BEGIN
  String error_text_;
  MAPCFG_STD_MEMBERS_END
  uint8_t* block_ = nullptr;  // memory block (malloc'd), block_capacity_ bytes
  size_t block_capacity_ = 0;
  uint32_t block_length_ = 0;  // physical length: the highest position written
  uint32_t block_pos_ = 0;     // the block's position, shared by reads and writes
  uint32_t read_pos_ = 0;      // bytes consumed by reads since the last reset
  uint32_t size_ = 0;          // bytes in the stream
  int32_t error_ = 0;          // 1 after a failed operation
};

// Where an inspection stopped, for tools that show an archive.
struct ArchiveListing {
  String text;               // the TestData lines of every value read whole
  bool complete = true;      // false when a value could not be read whole
  uint32_t stop_offset = 0;  // byte offset of that value's tag
  uint8_t stop_tag = 0;      // that tag
  String reason;             // the archive's error text for it
};

// The TestData listing of `archive` from its read position, stopping before
// the first value that is unknown or cut short instead of reading on from
// inside it. Consumes what it lists.
MAPCFG_EXPORT ArchiveListing sListArchive(CFFArchive& archive);

}  // namespace mapcfg

#endif  // MAPCFG_ARCHIVE_H_
