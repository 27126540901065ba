#include "core/text_replacement.h"

#include <gtest/gtest.h>

#include <array>

namespace tessel {
namespace {

constexpr std::array kReplacements{Replacement{'a', "bb"}, Replacement{'b', ""},
                                   Replacement{'\n', " "}};

TEST(TextReplacement, LeavesOtherCharactersAsTheyAre) {
  EXPECT_EQ(Replaced("", kReplacements), "");
  EXPECT_EQ(Replaced("\xC3\xA9 A\r", kReplacements), "\xC3\xA9 A\r");
}

TEST(TextReplacement, ReplacesEveryOccurrence) {
  EXPECT_EQ(Replaced("\naXa\n", kReplacements), " bbXbb ");
}

TEST(TextReplacement, DoesNotLookAtWhatItHasWritten) {
  EXPECT_EQ(Replaced("ab", kReplacements), "bb");
}

}  // namespace
}  // namespace tessel
