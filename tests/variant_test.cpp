// Variants holding text that is not ASCII; the variants of every other kind
// are in data/conversions.txt (see conversions_test.cpp).
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

using namespace mapcfg;

TEST(Variant, WideText) {
  VARIANT var;
  var.vt = VT_BSTR;
  var.bstrVal = u"W\u00e9ll \U0001F600!";  // a surrogate pair is one character
  String text;
  sVar2Str(var, text);
  EXPECT_EQ(text, "W?ll ?!");
}
