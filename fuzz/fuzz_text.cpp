// The tokenisers and text routines on any bytes. The first bytes choose the
// separator, the start position and the flags; the rest is the text.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

void Check(bool ok) {
  if (!ok) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 3) return 0;
  const char sep = static_cast<char>(data[0]);
  const int start = static_cast<int8_t>(data[1]);
  const int ctrl = data[2] & 1;
  const std::string bytes(reinterpret_cast<const char*>(data + 3), size - 3);
  const std::string text = bytes.c_str();  // up to the first NUL, as C text
  using namespace mapcfg;

  // Both overloads agree, and a field never outgrows its text.
  int pos1 = 0, pos2 = 0;
  const String a = sGetSubStr(text.c_str(), sep, start, &pos1, "(", ")", ctrl);
  const String b = sGetSubStr(text, sep, start, &pos2, "(", ")", ctrl);
  Check(a == b && pos1 == pos2 && a.size() <= text.size());
  // Walking a value ends: every step moves past the separator.
  int pos = -1;
  for (int steps = 0; pos < static_cast<int>(text.size()); ++steps) {
    Check(steps <= static_cast<int>(text.size()) + 1);
    sGetSubStr(text, sep, pos + 1, &pos);
  }
  (void)sGetSubStr(bytes, sep, start, nullptr, "", "", ctrl);  // NULs inside a String

  StringArray out, out2;
  Check(sGetStrArray(text.c_str(), out, sep) == static_cast<int>(out.size()));
  const int pairs = sGetStrArray(text.c_str(), out, sep, &out2);
  Check(pairs <= static_cast<int>(out2.size()));

  const String squeezed = sFormatString(text.c_str(), 1);
  Check(squeezed.find(' ') == String::npos);
  (void)sFormatString(text.c_str(), 0);
  (void)sGetFmtFldName(text.c_str());
  (void)sIsNumber(text, ctrl);
  (void)sPrefixLenStr(text.c_str(), start);
  (void)sSuffixLenStr(text.c_str(), start, sep);
  (void)sFormatStr(text.c_str(), text.c_str(), sep, start);

  String s = bytes;
  sNewLnStrToAct(s);
  sNewLnActToStr(s);
  Check(s.find('\n') == String::npos);
  s = bytes;
  sNewLnDrawToAct(s);

  // Conversions: text to numbers and back, angles on whatever the bytes hold.
  const int i = sToInteger(text);
  const double d = sToDouble(text);
  (void)sToFloat(text);
  (void)sToDWord(text);
  (void)sStdNumber(text);
  Check(sToInteger(sToString(i)) == i);
  (void)sToStdNumStr(d, start & 15, ctrl, sep & 1);
  (void)sToStdNumStr(static_cast<float>(d), start & 15, ctrl, sep & 1);
  (void)sToInteger(d);
  double raw = 0;
  if (bytes.size() >= sizeof raw) std::memcpy(&raw, bytes.data(), sizeof raw);  // any bit pattern
  (void)sGetStdAngle360(raw);
  (void)sGetStdAngle180(raw);
  (void)sGetStdRadianPI2(raw);
  (void)sDMSToDegree(raw);
  (void)sDegreeToDMS(raw);
  String high, low;
  sGetKMHighLow2Str(i, high, low);
  (void)sLeftCmpStr(text, bytes, String(1, sep), ctrl);

  // The collation of catalogue names is an order: antisymmetric, reflexive.
  const String left = text.substr(0, text.size() / 2), right = text.substr(text.size() / 2);
  const int lr = sCmpStrByAccess(left, right), rl = sCmpStrByAccess(right, left);
  Check((lr > 0) == (rl < 0) && (lr == 0) == (rl == 0) && sCmpStrByAccess(left, left) == 0);

  const String dir = sGetDirFromPath(text);
  const String file = sGetFileFromPath(text);
  Check(dir.size() + file.size() <= text.size() + 1);
  (void)sGetNameFromFile(file);
  (void)sGetExtFromFile(file);
  return 0;
}
