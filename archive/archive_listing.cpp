// Inspection: the values of a stream listed as text, without knowing the
// record layouts that wrote them.
#include "archive_core.h"
#include "mapcfg/archive.h"
#include "mapcfg/utils.h"

namespace mapcfg {

namespace {

// The text of each element type, as "%d" and "%f" would print it in the C
// locale: the listing never depends on the host's locale.
String NumberText(uint8_t v) { return sToString(static_cast<int>(v)); }
String NumberText(int16_t v) { return sToString(static_cast<int>(v)); }
String NumberText(int32_t v) { return sToString(static_cast<int>(v)); }
String NumberText(float v) { return sToStdNumStr(v, 6, 0, 0); }
String NumberText(double v) { return sToStdNumStr(v, 6, 0, 0); }

template <class T>
void AppendLine(String& out, T value) {
  out += "    ";
  out += NumberText(value);
  out += "\r\n";
}

template <class T, T (CFFArchive::*Get)()>
void ListScalar(CFFArchive& a, String& out) {
  AppendLine(out, (a.*Get)());
}

void ListString(CFFArchive& a, String& out) {
  out += "    ";
  out += a.GetString();
  out += "\r\n";
}

// One line per element; a failed read or an empty array lists nothing.
template <class T, uint32_t (CFFArchive::*Get)(std::unique_ptr<T[]>&)>
void ListArray(CFFArchive& a, String& out) {
  std::unique_ptr<T[]> block;
  const uint32_t count = (a.*Get)(block);
  for (uint32_t i = 0; i < count; ++i) AppendLine(out, block[i]);
}

struct Lister {
  uint8_t tag;
  const char* type_line;
  void (*list)(CFFArchive&, String&);
};

constexpr Lister kListers[] = {
    {1, "TYPE_I1\r\n", ListScalar<uint8_t, &CFFArchive::GetByte>},
    {2, "TYPE_I2\r\n", ListScalar<int16_t, &CFFArchive::GetShort>},
    {3, "TYPE_I4\r\n", ListScalar<int32_t, &CFFArchive::GetLong>},
    {4, "TYPE_F4\r\n", ListScalar<float, &CFFArchive::GetFloat>},
    {5, "TYPE_F8\r\n", ListScalar<double, &CFFArchive::GetDouble>},
    {21, "TYPE_STRING\r\n", ListString},
    {31, "TYPE_I1_ARRAY\r\n", ListArray<uint8_t, &CFFArchive::GetByte>},
    {32, "TYPE_I2_ARRAY\r\n", ListArray<int16_t, &CFFArchive::GetShort>},
    {33, "TYPE_I4_ARRAY\r\n", ListArray<int32_t, &CFFArchive::GetLong>},
    {34, "TYPE_F4_ARRAY\r\n", ListArray<float, &CFFArchive::GetFloat>},
    {35, "TYPE_F8_ARRAY\r\n", ListArray<double, &CFFArchive::GetDouble>},
};

const Lister* FindLister(uint8_t tag) {
  for (const Lister& l : kListers)
    if (l.tag == tag) return &l;
  return nullptr;
}

// Lists values from the read position to the end of the stream. An unknown
// tag stops the listing with error 840. With `stop` null (TestData) a value
// cut short is listed as its reader left it and the walk goes on after what
// that reader consumed; otherwise the walk stops before such a value and
// `stop` says where and why.
String Walk(CFFArchive& a, ArchiveListing* stop) {
  String text;
  ArchiveCore::ClearError(a);
  for (;;) {
    const uint32_t offset = ArchiveCore::ReadPos(a);
    uint8_t tag = 0;
    if (!a.ReadUnit(&tag, 1)) {
      ArchiveCore::ClearError(a);  // the end of the stream
      break;
    }
    // Step back so that the value's own reader reads it whole.
    ArchiveCore::StepBack(a, 1);
    const Lister* lister = FindLister(tag);
    if (lister) {
      String lines = lister->type_line;
      lister->list(a, lines);
      if (!stop || !ArchiveCore::HasError(a)) {
        text += lines;
        continue;
      }
    } else {
      ArchiveCore::Fail(a, kMsgBadTag);
    }
    if (stop) {
      stop->complete = false;
      stop->stop_offset = offset;
      stop->stop_tag = tag;
      stop->reason = a.GetLastError();
    }
    break;
  }
  return text;
}

}  // namespace

String CFFArchive::TestData() { return Walk(*this, nullptr); }

ArchiveListing sListArchive(CFFArchive& archive) {
  ArchiveListing listing;
  listing.text = Walk(archive, &listing);
  return listing;
}

}  // namespace mapcfg
