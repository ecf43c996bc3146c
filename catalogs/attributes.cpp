// Drawing attribute records: defaults, copies, comparisons, archive.
#include <cmath>
#include <cstring>

#include "base/info_text.h"
#include "base/text_bytes.h"
#include "catalogs/attribute_fields.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"

namespace mapcfg {

namespace {

// Information text of the default font face.
constexpr int kMsgDefaultFace = 1251;

// Floats agree when they differ by less than 0.0005 (the single-precision
// constant, compared in double precision).
bool Near(float a, float b) {
  return std::fabs(static_cast<double>(a) - static_cast<double>(b)) < static_cast<double>(0.0005f);
}

template <size_t N>
bool SameName(const char (&a)[N], const char (&b)[N]) {
  return detail::EqualsNoCase(a, detail::FixedLength(a), b, detail::FixedLength(b));
}

}  // namespace

void sInitLineProp(LINE_PROP* line) {
  line->color = 0;
  line->width = 0.05f;
  line->style[0] = '\0';
}

void sInitPattProp(PATT_PROP* patt, float ratio) {
  patt->foreColor = 0;
  patt->backColor = 0xFFFFFF;
  patt->ratio = ratio;
  patt->name[0] = '\0';
}

void sInitFontProp(FONT_PROP* font) {
  font->color = 0;
  font->height = 24.0f;
  font->fWidth = 0.0f;
  font->fAngle = 0.0f;
  font->weight = 400;
  font->charSet = 134;  // the Simplified-Chinese character set
  std::memset(font->flags, 0, sizeof font->flags);
  const std::string face = detail::InfoText(kMsgDefaultFace);
  const size_t n = face.size() < sizeof font->faceName - 1 ? face.size() : sizeof font->faceName - 1;
  std::memcpy(font->faceName, face.data(), n);
  font->faceName[n] = '\0';
}

void sCopyLineProp(LINE_PROP* dst, const LINE_PROP* src) { std::memcpy(dst, src, sizeof *dst); }
void sCopyPattProp(PATT_PROP* dst, const PATT_PROP* src) { std::memcpy(dst, src, sizeof *dst); }
void sCopyFontProp(FONT_PROP* dst, const FONT_PROP* src) { std::memcpy(dst, src, sizeof *dst); }

int sCmpLineProp(const LINE_PROP* a, const LINE_PROP* b) {
  return a->color == b->color && Near(a->width, b->width) && SameName(a->style, b->style);
}

int sCmpPattProp(const PATT_PROP* a, const PATT_PROP* b) {
  return a->foreColor == b->foreColor && a->backColor == b->backColor && Near(a->ratio, b->ratio) &&
         SameName(a->name, b->name);
}

int sCmpFontProp(const FONT_PROP* a, const FONT_PROP* b) {
  return a->color == b->color && Near(a->height, b->height) && Near(a->fWidth, b->fWidth) &&
         Near(a->fAngle, b->fAngle) && a->weight == b->weight && a->charSet == b->charSet &&
         std::memcmp(a->flags, b->flags, sizeof a->flags) == 0 && SameName(a->faceName, b->faceName);
}

int CFFArchive::PutLineProp(const LINE_PROP& line) { return detail::PutRecord(*this, line); }
int CFFArchive::GetLineProp(LINE_PROP& line, uint32_t version) { return detail::GetRecord(*this, line, version); }
int CFFArchive::PutPattProp(const PATT_PROP& patt) { return detail::PutRecord(*this, patt); }
int CFFArchive::GetPattProp(PATT_PROP& patt, uint32_t version) { return detail::GetRecord(*this, patt, version); }
int CFFArchive::PutFontProp(const FONT_PROP& font) { return detail::PutRecord(*this, font); }
int CFFArchive::GetFontProp(FONT_PROP& font) { return detail::GetRecord(*this, font, detail::kCurrentVersion); }

int CFFArchive::PutHVSpaceProp(const _HVSpaceProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetHVSpaceProp(_HVSpaceProp* prop) {
  return prop ? detail::GetRecord(*this, *prop, detail::kCurrentVersion) : 0;
}

FieldTexts sDescribe(const LINE_PROP& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const PATT_PROP& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const FONT_PROP& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
