#include "core/markup.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(Markup, EscapesWhatMarkupReads) {
  EXPECT_EQ(EscapedForMarkup("<a href=\"b\">&amp;</a>"),
            "&lt;a href=&quot;b&quot;>&amp;amp;&lt;/a>");
}

TEST(Markup, LeavesEverythingElse) {
  EXPECT_EQ(EscapedForMarkup("it's 3 > 2,\tsaid \xC3\xA9"), "it's 3 > 2,\tsaid \xC3\xA9");
}

}  // namespace
}  // namespace tessel
