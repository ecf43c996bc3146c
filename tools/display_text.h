// Showing script and archive text (GBK or ASCII bytes) on a UTF-8 terminal
// and in JSON, and taking names typed in UTF-8.
#ifndef MAPCFG_TOOLS_DISPLAY_TEXT_H_
#define MAPCFG_TOOLS_DISPLAY_TEXT_H_

#include <string>

namespace mapcfg_tool {

// `bytes` for a terminal: GBK converted to UTF-8; printable ASCII as it is;
// tab, LF and CR as \t, \n, \r; every other control byte (DEL included) and
// every byte that is not part of a GBK character as \xNN. The result holds
// no control character, so it can neither move the cursor nor start a line.
// With `raw` the bytes are returned as they are.
std::string ToDisplay(const std::string& bytes, bool raw);

// `bytes` as a quoted JSON string: GBK converted to UTF-8, a byte that is
// not part of a GBK character written as the four characters \xNN, and a
// backslash followed by "x" written as \x5C, so that the text reads back to
// the same bytes.
std::string ToJson(const std::string& bytes);

// A name from the file system or the command line (a path, a message), for
// a terminal or as a quoted JSON string: each "/"-separated part is read as
// UTF-8 when it is UTF-8 and as GBK otherwise, then escaped as above.
std::string NameToDisplay(const std::string& name);
std::string NameToJson(const std::string& name);

// UTF-8 `text` without control characters (a message made of the forms
// above) as a quoted JSON string.
std::string JsonQuote(const std::string& text);

// The shortest decimal text that reads back to the same number ("0.1",
// "1e-07", "5e-324"), whatever the locale; "nan", "inf" and "-inf" for the
// values that are not numbers.
std::string NumberText(double value);
std::string NumberText(float value);

// True when `bytes` holds a byte above 0x7F and is valid UTF-8 as a whole.
bool LooksLikeUtf8(const std::string& bytes);

// `utf8` converted to GBK in *gbk; false when it is not UTF-8 or holds a
// character GBK lacks.
bool Utf8ToGbk(const std::string& utf8, std::string* gbk);

// Index of the first byte of `bytes` that is not ASCII and not part of a GBK
// character, or std::string::npos.
size_t FirstNonGbk(const std::string& bytes);

// True when the last byte of `bytes` is the second byte of a GBK character.
bool EndsInGbkPair(const std::string& bytes);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_DISPLAY_TEXT_H_
