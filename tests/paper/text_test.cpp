#include "paper/text.h"

#include <gtest/gtest.h>

namespace tessel::paper {
namespace {

const Fonts& TestFonts() {
  return **Fonts::Get();
}
constexpr TextStyle kTen{Face::kRegular, 10};

TEST(Text, DigitsAreEquallyWide) {
  const double width = WidthOf(TestFonts(), "1", kTen);
  EXPECT_GT(width, 0);
  for (const char* const digit : {"2", "3", "4", "5", "6", "7", "8", "9"}) {
    EXPECT_DOUBLE_EQ(WidthOf(TestFonts(), digit, kTen), width);
  }
}

TEST(Text, PairsOfLettersAreKerned) {
  const double apart = WidthOf(TestFonts(), "T", kTen) + WidthOf(TestFonts(), "e", kTen);
  EXPECT_LT(WidthOf(TestFonts(), "Te", kTen), apart);
}

TEST(Text, WrapsAtBlanksAndKeepsEveryWord) {
  const auto lines = Wrapped(TestFonts(), "  one two  three four ", kTen, 50);
  std::string joined;
  for (const std::string& line : lines) {
    EXPECT_LE(WidthOf(TestFonts(), line, kTen), 50);
    joined += line + "|";
  }
  EXPECT_EQ(joined, "one two|three four|");
}

TEST(Text, PartsWordsThatAreTooWideBetweenCharacters) {
  const std::string word = "\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4";
  std::string joined;
  for (const std::string& line : Wrapped(TestFonts(), word, kTen, 20)) {
    EXPECT_LE(WidthOf(TestFonts(), line, kTen), 20);
    EXPECT_EQ(line.size() % 2, 0u);
    joined += line;
  }
  EXPECT_EQ(joined, word);
}

TEST(Text, WrapsAsLongAsTheTextGoesOn) {
  std::string text;
  for (int k = 0; k < 2000; ++k) text += "w\u00f6rd" + std::to_string(k) + " ";
  text.pop_back();
  std::string joined;
  for (const std::string& line : Wrapped(TestFonts(), text, kTen, 700)) {
    EXPECT_LE(WidthOf(TestFonts(), line, kTen), 700);
    EXPECT_TRUE(WidthOf(TestFonts(), line, kTen) > 600 || text.ends_with(line));
    joined += (joined.empty() ? "" : " ") + line;
  }
  EXPECT_EQ(joined, text);
}

TEST(Text, EveryLineTakesSomethingHoweverNarrow) {
  EXPECT_EQ(Wrapped(TestFonts(), "abc", kTen, 0).size(), 3u);
  EXPECT_TRUE(Wrapped(TestFonts(), "   ", kTen, 0).empty());
}

TEST(Text, ShortensWithAnEllipsis) {
  EXPECT_EQ(Shortened(TestFonts(), "short", kTen, 100), "short");
  const std::string cut = Shortened(TestFonts(), "a rather long line of text", kTen, 60);
  EXPECT_TRUE(cut.ends_with("\u2026"));
  EXPECT_LE(WidthOf(TestFonts(), cut, kTen), 60);
}

TEST(Text, TellsWhatTheFontLacks) {
  EXPECT_TRUE(TestFonts().Shape("\u0416\u00df\u03a9", Face::kBold).complete);
  EXPECT_FALSE(TestFonts().Shape("\u6570", Face::kBold).complete);
  EXPECT_TRUE(TestFonts().Shape("\xFF", Face::kBold).glyphs.empty());
}

}  // namespace
}  // namespace tessel::paper
