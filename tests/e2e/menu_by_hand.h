// The window's menus in the hands of a user, at two sizes, with preferences of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/e2e/expected_game.h"
#include "tests/e2e/user.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel {

inline constexpr QSize kUsualSize(900, 662);
inline constexpr QSize kSmallSize(480, 560);

class MenuByHand : public testing::TestWithParam<QSize> {
 protected:
  // One way to have an entry act.
  struct Way {
    std::string name;
    std::function<void()> act;
  };

  // Installs the program beside a puzzle file that holds the example alone.
  MenuByHand();

  // Starts the program; one that runs is killed before.
  void Starts();
  void PressKeys(const char* keys) { user_->Program().Window().PressKeys({keys}); }
  // By mouse, by the letters of the menu and of the entry, and by each of the entry's own keys.
  std::vector<Way> WaysTo(Entry entry);

  // The dialog of this caption, once it is there.
  DesktopWindow Dialog(const std::string& caption);
  void Closes(const DesktopWindow& dialog, const char* key);
  // The player is asked that, and answers.
  void Answers(const char* title, const char* question, bool yes);

  // The example lies on the board; it is opened there, and then played: its game at the start.
  bool SeesExample();
  void OpensExample();
  ExpectedGame PlaysExample();
  testing::AssertionResult SeesGame(const ExpectedGame& game);
  void Places(ExpectedGame& game, Mark mark);

  bool IsSmall() const { return GetParam() == kSmallSize; }
  std::filesystem::path PreferencesFile() const {
    return folder_.Path() / "config/tessel-sudoku/window.ini";
  }

  TemporaryFolder folder_;
  Launch launch_;
  std::optional<User> user_;
};

inline auto AtTwoSizes() {
  return testing::Values(kUsualSize, kSmallSize);
}
inline std::string SizeName(const testing::TestParamInfo<QSize>& size) {
  return size.param == kSmallSize ? "Small" : "Usual";
}

PuzzleRecord ExampleRecord();

}  // namespace tessel
