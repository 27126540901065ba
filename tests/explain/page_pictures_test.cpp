#include "explain/page_pictures.h"

#include <gtest/gtest.h>

namespace tessel::explain {
namespace {

// As versions of Cairo write them.
std::string WithSymbols(const std::string& name, const std::string& clip) {
  return "<?xml version=\"1.0\"?>\n<svg viewBox=\"0 0 9 9\"><symbol id=\"glyph" + name +
         "\"><path d=\"M 1.2345 2\"/></symbol><clipPath id=\"" + clip + "\"/><g clip-path=\"url(#" +
         clip + ")\"><use href=\"#glyph" + name + "\"/></g></svg>";
}
std::string WithGroups(const std::string& name, const std::string& path) {
  return "<svg viewBox=\"0 0 9 9\"><g id=\"glyph" + name + "\"><path d=\"" + path +
         "\"/></g><use href=\"#glyph" + name + "\"/></svg>";
}

TEST(PagePictures, ShareOutlinesWhateverTheirNames) {
  PagePictures pictures;
  EXPECT_EQ(pictures.Element(WithSymbols("0-0", "clip1"), "A \"b\""),
            "<svg role=\"img\" aria-label=\"A &quot;b&quot;\" viewBox=\"0 0 9 9\">"
            "<clipPath id=\"p1-clip1\"/><g clip-path=\"url(#p1-clip1)\"><use href=\"#o1\"/></g>"
            "</svg>");
  EXPECT_EQ(pictures.Element(WithGroups("-7", "M 1.23 2"), "b"),
            "<svg role=\"img\" aria-label=\"b\" viewBox=\"0 0 9 9\"><use href=\"#o1\"/></svg>");
  EXPECT_EQ(pictures.Outlines(),
            "<svg class=\"outlines\" aria-hidden=\"true\"><defs>\n"
            "<symbol overflow=\"visible\" id=\"o1\"><path d=\"M 1.23 2\"/></symbol>\n"
            "</defs></svg>\n");
}

TEST(PagePictures, OfTheSameNamesHaveNamesOfTheirOwn) {
  PagePictures pictures;
  const std::string first = pictures.Element(WithGroups("0", "M 1 1"), "a");
  const std::string second = pictures.Element(WithGroups("0", "M 2 2"), "a");
  EXPECT_NE(first.find("\"#o1\""), std::string::npos);
  EXPECT_NE(second.find("\"#o2\""), std::string::npos);
  const std::string clipped = WithSymbols("0", "c");
  EXPECT_NE(pictures.Element(clipped, "").find("id=\"p3-c\""), std::string::npos);
  EXPECT_NE(pictures.Element(clipped, "").find("url(#p4-c)"), std::string::npos);
}

}  // namespace
}  // namespace tessel::explain
