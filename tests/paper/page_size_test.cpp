#include "paper/page_size.h"

#include <gtest/gtest.h>

namespace tessel::paper {
namespace {

constexpr double kTiny = 1e-9;

TEST(PageSize, NamedSizesInAnyCase) {
  EXPECT_EQ(ParsePageSize("A4"), kA4);
  EXPECT_EQ(ParsePageSize("a4"), kA4);
  EXPECT_EQ(ParsePageSize("Letter"), (Size{612, 792}));
  EXPECT_EQ(ParsePageSize("LEGAL"), (Size{612, 1008}));
  EXPECT_NEAR(ParsePageSize("A5")->height, kA4.width, kTiny);
}

TEST(PageSize, MeasuredSizes) {
  EXPECT_EQ(ParsePageSize("6x9in"), (Size{432, 648}));
  EXPECT_NEAR(ParsePageSize("210x297mm")->width, kA4.width, kTiny);
  EXPECT_EQ(ParsePageSize("300x400.5pt"), (Size{300, 400.5}));
}

TEST(PageSize, WhatIsNoSizeIsToldByItsName) {
  for (const char* const wrong :
       {"", "A3", "6x9", "6in", "6x9x9in", "x9in", "-6x9in", "6 x 9in", "nanx9in", "1e2x9in"}) {
    const auto size = ParsePageSize(wrong);
    ASSERT_FALSE(size) << wrong;
    EXPECT_NE(size.error().find("\"" + std::string(wrong) + "\""), std::string::npos);
  }
}

TEST(PageSize, SizesOutOfRange) {
  EXPECT_FALSE(ParsePageSize("19x100mm"));
  EXPECT_TRUE(ParsePageSize("20x100mm"));
  EXPECT_FALSE(ParsePageSize("100x2001mm"));
  EXPECT_FALSE(ParsePageSize("99999999999x99999999999in"));
}

TEST(PageSize, Lengths) {
  EXPECT_NEAR(*ParseLength("25.4mm"), 72, kTiny);
  EXPECT_EQ(ParseLength("0.5in"), 36);
  EXPECT_EQ(ParseLength("0pt"), 0);
  for (const char* const wrong : {"15", "mm", "-1mm", "1 mm", "1,5mm"}) {
    EXPECT_FALSE(ParseLength(wrong)) << wrong;
  }
}

TEST(PageSize, MarginsOfOneTwoOrFourLengths) {
  EXPECT_EQ(ParseMargins("36pt"), (Margins{36, 36, 36, 36}));
  EXPECT_EQ(ParseMargins("1in,36pt"), (Margins{72, 36, 72, 36}));
  EXPECT_EQ(ParseMargins("1pt,2pt,3pt,4pt"), (Margins{1, 2, 3, 4}));
  EXPECT_FALSE(ParseMargins("1pt,2pt,3pt"));
  EXPECT_FALSE(ParseMargins("1pt,"));
}

}  // namespace
}  // namespace tessel::paper
