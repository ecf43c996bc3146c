// Inspection: the values of a stream listed as text, without knowing the
// record layouts that wrote them.
#include <cstdio>

#include "archive_core.h"
#include "mapcfg/archive.h"

namespace mapcfg {

namespace {

// "    " + the number in printf format `format` + CR LF.
template <class T>
void AppendLine(String& out, const char* format, T value) {
  char buf[512];  // room for "%f" of the largest double
  const int n = std::snprintf(buf, sizeof buf, format, value);
  out += "    ";
  if (n > 0) out.append(buf, static_cast<size_t>(n) < sizeof buf ? static_cast<size_t>(n) : sizeof buf - 1);
  out += "\r\n";
}

// Printf argument of each element type: bytes and shorts print as int,
// floats as double.
int Printable(uint8_t v) { return v; }
int Printable(int16_t v) { return v; }
int Printable(int32_t v) { return v; }
double Printable(float v) { return v; }
double Printable(double v) { return v; }

template <class T, T (CFFArchive::*Get)()>
void ListScalar(CFFArchive& a, String& out, const char* format) {
  AppendLine(out, format, Printable((a.*Get)()));
}

void ListString(CFFArchive& a, String& out, const char*) {
  out += "    ";
  out += a.GetString();
  out += "\r\n";
}

// One line per element; a failed read or an empty array lists nothing.
template <class T, uint32_t (CFFArchive::*Get)(std::unique_ptr<T[]>&)>
void ListArray(CFFArchive& a, String& out, const char* format) {
  std::unique_ptr<T[]> block;
  const uint32_t count = (a.*Get)(block);
  for (uint32_t i = 0; i < count; ++i) AppendLine(out, format, Printable(block[i]));
}

struct Lister {
  uint8_t tag;
  const char* type_line;
  const char* format;
  void (*list)(CFFArchive&, String&, const char*);
};

constexpr Lister kListers[] = {
    {1, "TYPE_I1\r\n", "%d", ListScalar<uint8_t, &CFFArchive::GetByte>},
    {2, "TYPE_I2\r\n", "%d", ListScalar<int16_t, &CFFArchive::GetShort>},
    {3, "TYPE_I4\r\n", "%d", ListScalar<int32_t, &CFFArchive::GetLong>},
    {4, "TYPE_F4\r\n", "%f", ListScalar<float, &CFFArchive::GetFloat>},
    {5, "TYPE_F8\r\n", "%f", ListScalar<double, &CFFArchive::GetDouble>},
    {21, "TYPE_STRING\r\n", "", ListString},
    {31, "TYPE_I1_ARRAY\r\n", "%d", ListArray<uint8_t, &CFFArchive::GetByte>},
    {32, "TYPE_I2_ARRAY\r\n", "%d", ListArray<int16_t, &CFFArchive::GetShort>},
    {33, "TYPE_I4_ARRAY\r\n", "%d", ListArray<int32_t, &CFFArchive::GetLong>},
    {34, "TYPE_F4_ARRAY\r\n", "%f", ListArray<float, &CFFArchive::GetFloat>},
    {35, "TYPE_F8_ARRAY\r\n", "%f", ListArray<double, &CFFArchive::GetDouble>},
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
      lister->list(a, lines, lister->format);
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
