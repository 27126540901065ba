// The Help menu in the real window, by mouse and by keys.
#include <gtest/gtest.h>

#include "tests/e2e/menu_by_hand.h"

namespace tessel {
namespace {

class HelpMenuByHand : public MenuByHand {
 protected:
  HelpMenuByHand() { Starts(); }
};

TEST_P(HelpMenuByHand, OpensItsPages) {
  const ExpectedGame game = PlaysExample();
  for (const auto& [entry, name] :
       {std::pair(Entry::kHelp, "Help"), std::pair(Entry::kTechniques, "Techniques"),
        std::pair(Entry::kKeys, "Keys"), std::pair(Entry::kAbout, "About")}) {
    for (const Way& way : WaysTo(entry)) {
      SCOPED_TRACE(name + (" by " + way.name));
      way.act();
      Closes(Dialog("Tessel Sudoku - " + std::string(name)), "Escape");
    }
  }
  EXPECT_TRUE(SeesGame(game));
}

INSTANTIATE_TEST_SUITE_P(AtTwoSizes, HelpMenuByHand, AtTwoSizes(), SizeName);

}  // namespace
}  // namespace tessel
