// mapcfg dump: the values of an archive file, one by one with their byte
// offsets. Each value is read with the archive's own reader for its tag; the
// tool knows only how long each kind of value is (doc/archive_format.md).
#include <mapcfg/mapcfg.h>

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "commands.h"
#include "display_text.h"
#include "input.h"

namespace mapcfg_tool {

namespace {

// The kinds of value a stream holds: tags below 20 are a fixed payload,
// from 20 on a 4-byte element count comes first.
struct Kind {
  uint8_t tag;
  const char* type;  // as the library's own listing names it
  uint32_t element;  // bytes of the payload, or of one element
};
constexpr Kind kKinds[] = {
    {1, "TYPE_I1", 1},        {2, "TYPE_I2", 2},        {3, "TYPE_I4", 4},        {4, "TYPE_F4", 4},
    {5, "TYPE_F8", 8},        {21, "TYPE_STRING", 1},   {31, "TYPE_I1_ARRAY", 1}, {32, "TYPE_I2_ARRAY", 2},
    {33, "TYPE_I4_ARRAY", 4}, {34, "TYPE_F4_ARRAY", 4}, {35, "TYPE_F8_ARRAY", 8},
};
constexpr uint8_t kFirstCounted = 20;

const Kind* FindKind(uint8_t tag) {
  for (const Kind& k : kKinds)
    if (k.tag == tag) return &k;
  return nullptr;
}

// A byte offset in decimal or "0x" hexadecimal; false when it is not one.
bool ParseOffset(const std::string& text, uint32_t* offset) {
  const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
  const std::string digits = hex ? text.substr(2) : text;
  if (digits.empty() || digits.size() > 10 ||
      digits.find_first_not_of(hex ? "0123456789abcdefABCDEF" : "0123456789") != std::string::npos)
    return false;
  const unsigned long long value = std::strtoull(digits.c_str(), nullptr, hex ? 16 : 10);
  if (value > 0xFFFFFFFFull) return false;
  *offset = static_cast<uint32_t>(value);
  return true;
}

// One value as the dump shows it: a scalar's text, a string, or the
// elements of an array.
struct Value {
  uint32_t offset = 0;
  const Kind* kind = nullptr;
  bool is_string = false;
  std::string text;                // a scalar (as shown) or a string (its bytes)
  std::vector<std::string> items;  // array elements
};

template <class T>
std::string Text(T v) {
  if constexpr (std::is_integral_v<T>) {
    return std::to_string(v);
  } else {
    return NumberText(v);
  }
}

// A number's text as a JSON value: "nan", "inf" and "-inf" as strings.
std::string JsonOf(const std::string& number) {
  return std::isalpha(static_cast<unsigned char>(number.back())) ? "\"" + number + "\"" : number;
}

template <class T, T (mapcfg::CFFArchive::*Get)()>
void Scalar(mapcfg::CFFArchive& a, Value* v) {
  v->text = Text((a.*Get)());
}

template <class T, uint32_t (mapcfg::CFFArchive::*Get)(std::unique_ptr<T[]>&)>
void Array(mapcfg::CFFArchive& a, Value* v) {
  std::unique_ptr<T[]> block;
  const uint32_t n = (a.*Get)(block);
  for (uint32_t i = 0; i < n; ++i) v->items.push_back(Text(block[i]));
}

void ReadValue(mapcfg::CFFArchive& a, Value* v) {
  using A = mapcfg::CFFArchive;
  switch (v->kind->tag) {
    case 1: return Scalar<uint8_t, &A::GetByte>(a, v);
    case 2: return Scalar<int16_t, &A::GetShort>(a, v);
    case 3: return Scalar<int32_t, &A::GetLong>(a, v);
    case 4: return Scalar<float, &A::GetFloat>(a, v);
    case 5: return Scalar<double, &A::GetDouble>(a, v);
    case 21:
      v->is_string = true;
      v->text = a.GetString();
      return;
    case 31: return Array<uint8_t, &A::GetByte>(a, v);
    case 32: return Array<int16_t, &A::GetShort>(a, v);
    case 33: return Array<int32_t, &A::GetLong>(a, v);
    case 34: return Array<float, &A::GetFloat>(a, v);
    default: return Array<double, &A::GetDouble>(a, v);
  }
}

// Where and why a listing stopped before the end of the stream.
struct Stop {
  bool stopped = false;
  uint32_t offset = 0;
  uint8_t tag = 0;
  std::string reason;
};

// Reads the values from `offset` to the end of the stream, or up to the
// first one that is unknown or cut short.
std::vector<Value> ReadValues(mapcfg::CFFArchive& a, uint32_t offset, Stop* stop) {
  std::vector<Value> values;
  const uint64_t size = a.GetCount();
  while (offset < size) {
    a.Rewind();
    a.ReadUnit(nullptr, offset);
    uint8_t tag = 0;
    a.ReadUnit(&tag, 1);
    const Kind* kind = FindKind(tag);
    *stop = {true, offset, tag, ""};
    if (!kind) {
      stop->reason = "unknown tag " + std::to_string(tag);
      return values;
    }
    uint64_t need = 1 + kind->element;
    if (tag >= kFirstCounted) {
      uint8_t count[4] = {0, 0, 0, 0};
      if (!a.ReadUnit(count, 4)) {
        stop->reason = std::string(kind->type) + " value cut short: its count needs 4 bytes after the tag";
        return values;
      }
      const uint64_t n = count[0] | count[1] << 8 | count[2] << 16 | static_cast<uint64_t>(count[3]) << 24;
      need = 5 + n * kind->element;
    }
    if (need > size - offset) {
      stop->reason = std::string(kind->type) + " value cut short: it needs " + std::to_string(need) + " bytes, " +
                     std::to_string(size - offset) + " are left";
      return values;
    }
    a.Rewind();
    a.ReadUnit(nullptr, offset);
    Value v;
    v.offset = offset;
    v.kind = kind;
    ReadValue(a, &v);
    values.push_back(std::move(v));
    offset += static_cast<uint32_t>(need);
  }
  *stop = Stop();
  return values;
}

void PrintPlain(const std::vector<Value>& values) {
  for (const Value& v : values) {
    std::string shown = v.text;
    if (v.is_string) shown = "\"" + ToDisplay(v.text, false) + "\"";
    if (v.kind->tag >= kFirstCounted && !v.is_string)
      shown = std::to_string(v.items.size()) + (v.items.size() == 1 ? " value" : " values");
    std::printf("%8u  %-13s  %s\n", v.offset, v.kind->type, shown.c_str());
    for (size_t i = 0; i < v.items.size(); ++i) std::printf("%25s[%zu] %s\n", "", i, v.items[i].c_str());
  }
}

void PrintJson(const std::string& file, uint32_t size, const std::vector<Value>& values, const Stop& stop) {
  std::printf("{\"file\": %s, \"size\": %u, \"values\": [\n", NameToJson(file).c_str(), size);
  for (size_t i = 0; i < values.size(); ++i) {
    const Value& v = values[i];
    std::string value = v.is_string ? ToJson(v.text) : JsonOf(v.text);
    if (v.kind->tag >= kFirstCounted && !v.is_string) {
      value = "[";
      for (size_t k = 0; k < v.items.size(); ++k) value += (k ? ", " : "") + JsonOf(v.items[k]);
      value += "]";
    }
    std::printf("  {\"offset\": %u, \"tag\": %u, \"type\": \"%s\", \"value\": %s}%s\n", v.offset, v.kind->tag,
                v.kind->type, value.c_str(), i + 1 < values.size() ? "," : "");
  }
  if (stop.stopped)
    std::printf("], \"complete\": false, \"stop\": {\"offset\": %u, \"tag\": %u, \"reason\": %s}}\n", stop.offset,
                stop.tag, JsonQuote(stop.reason).c_str());
  else
    std::printf("], \"complete\": true, \"stop\": null}\n");
}

// The listing of the library's own inspection, byte for byte.
int PrintRaw(mapcfg::CFFArchive& archive, uint32_t offset, const std::string& file) {
  archive.ReadUnit(nullptr, offset);
  const mapcfg::ArchiveListing listing = mapcfg::sListArchive(archive);
  std::fwrite(listing.text.data(), 1, listing.text.size(), stdout);
  if (listing.complete) return 0;
  std::fflush(stdout);
  return Fail(1, file + ": stopped at byte offset " + std::to_string(listing.stop_offset) + " (tag " +
                     std::to_string(listing.stop_tag) + "): " + listing.reason);
}

}  // namespace

int RunDump(const Call& call) {
  const bool raw = call.Has("--raw");
  const bool json = call.Has("--json");
  if (raw && json) return UsageError("--raw and --json exclude each other");
  uint32_t offset = 0;
  if (call.Has("--offset") && !ParseOffset(call.Value("--offset"), &offset))
    return UsageError("--offset needs a byte offset (decimal or 0x hexadecimal), not '" +
                      NameToDisplay(call.Value("--offset")) + "'");

  const std::string& arg = call.operands[0];
  const std::string file = NameToDisplay(arg == "-" ? "<stdin>" : arg);
  mapcfg::CFFArchive archive;
  std::string why;
  if (arg == "-") {
    std::string bytes;
    if (!ReadStdin(&bytes, &why)) return Fail(1, why);
    if (bytes.size() > 0xFFFFFFFFu || !archive.FromData(bytes.data(), static_cast<uint32_t>(bytes.size())))
      return Fail(1, "cannot read standard input: " + archive.GetLastError());
  } else {
    why = WhyUnreadable(arg);
    if (!why.empty()) return Fail(1, "cannot read " + file + ": " + why);
    if (!archive.FromFile(arg)) return Fail(1, "cannot read " + file + ": " + archive.GetLastError());
  }
  if (offset > archive.GetCount())
    return Fail(1, "offset " + std::to_string(offset) + " is beyond the end of " + file + " (" +
                       std::to_string(archive.GetCount()) + " bytes)");
  if (raw) return PrintRaw(archive, offset, file);

  Stop stop;
  const std::vector<Value> values = ReadValues(archive, offset, &stop);
  if (json) {
    PrintJson(arg == "-" ? "<stdin>" : arg, archive.GetCount(), values, stop);
  } else {
    PrintPlain(values);
  }
  if (!stop.stopped) return 0;
  std::fflush(stdout);
  return Fail(1, file + ": stopped at byte offset " + std::to_string(stop.offset) + ": " + stop.reason);
}

}  // namespace mapcfg_tool
