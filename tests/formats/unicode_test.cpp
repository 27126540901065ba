#include "formats/unicode.h"

#include <gtest/gtest.h>

namespace tessel::formats {
namespace {

TEST(Unicode, TellsUtf8FromOtherBytes) {
  for (const char* const text : {"", "a", "\xC3\xBC", "\xE2\x82\xAC", "\xF0\x9F\x8C\x8D"}) {
    EXPECT_TRUE(IsUtf8(text)) << text;
  }
  // A lone byte, a cut character, one written longer than needed, half a pair, beyond the last.
  for (const char* const bytes : {"\x80", "\xC3", "\xE2\x82", "\xC0\x80", "\xE0\x80\x80",
                                  "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
    EXPECT_FALSE(IsUtf8(bytes));
  }
}

TEST(Unicode, PairsOfUtf16AreOneCharacter) {
  EXPECT_EQ(Utf8Of(u"\u20AC\U0001F30D"), "\xE2\x82\xAC\xF0\x9F\x8C\x8D");
  EXPECT_EQ(Utf8Of(std::u16string(1, 0xD83C)), std::nullopt);
  EXPECT_EQ(Utf8Of(std::u16string(2, 0xDF0D)), std::nullopt);
}

TEST(Unicode, BytesOfUtf8AreTakenAsSuch) {
  EXPECT_EQ(Utf8Of(u"M\u00C3\u00BCnchen"), "M\xC3\xBCnchen");
  EXPECT_EQ(Utf8Of(u"M\u00FCnchen"), "M\xC3\xBCnchen");
}

}  // namespace
}  // namespace tessel::formats
