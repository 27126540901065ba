// The View menu in the real window, by mouse and by keys, and what is kept of its choices.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <fstream>

#include "shell/qt/softer_colours.h"
#include "tests/e2e/desktop.h"
#include "tests/e2e/eventually.h"
#include "tests/e2e/menu_by_hand.h"
#include "tests/e2e/puzzle_file_reading.h"
#include "tests/sounds/sound_server.h"

namespace tessel {
namespace {

namespace fs = std::filesystem;

class ViewMenuByHand : public MenuByHand {
 protected:
  // The example's game at its start, looked at in these colours, pointing at a given.
  testing::AssertionResult SeesGiven(bool ringsSameDigits, const CageColours& colours);
  // The entry makes the game look so, and chosen again, as it did before.
  void ComesAndGoes(Entry entry, bool ringsSameDigits, const CageColours& colours);
  // The preferences come to hold this line.
  bool Keeps(const std::string& line) {
    return Eventually(
        [&] { return BytesOf(PreferencesFile()).find(line + '\n') != std::string::npos; });
  }
  // The digits of the bar ring their like, which takes the focus from the board.
  void RingsADigitOfTheBar();
};

testing::AssertionResult ViewMenuByHand::SeesGiven(bool ringsSameDigits,
                                                   const CageColours& colours) {
  const ExpectedGame game(ExampleRecord());
  const int given = game.FindGiven();
  return user_->SeesPointed(
      ExpectedBoard::Playing(game),
      {.active = given,
       .focused = kCentreCell,
       .digit = ringsSameDigits ? std::optional(game.Given(given)) : std::nullopt},
      colours);
}

void ViewMenuByHand::ComesAndGoes(Entry entry, bool ringsSameDigits, const CageColours& colours) {
  Starts();
  PlaysExample();
  for (const Way& way : WaysTo(entry)) {
    way.act();
    EXPECT_TRUE(SeesGiven(ringsSameDigits, colours)) << way.name;
    way.act();
    EXPECT_TRUE(SeesGiven(false, kCageColours)) << way.name;
  }
}

TEST_P(ViewMenuByHand, SameDigitsAreRinged) {
  ComesAndGoes(Entry::kSameDigits, true, kCageColours);
}

TEST_P(ViewMenuByHand, SofterColoursComeAndGo) {
  ComesAndGoes(Entry::kSofterColours, false, kSofterCages);
}

void ViewMenuByHand::RingsADigitOfTheBar() {
  const ExpectedGame game(ExampleRecord());
  for (const int digit : {4, 7}) {
    user_->Press(("Digit" + std::to_string(digit)).c_str());
    EXPECT_TRUE(user_->SeesHighlights(ExpectedBoard::Playing(game), {.digit = digit}));
  }
}

TEST_P(ViewMenuByHand, DigitBarComesWhereThereIsRoom) {
  Starts();
  PlaysExample();
  for (const Way& way : WaysTo(Entry::kDigitBar)) {
    SCOPED_TRACE(way.name);
    way.act();
    if (IsSmall()) {
      PressKeys("Escape");  // a menu stays open where nothing can be chosen
      EXPECT_TRUE(SeesGame(ExpectedGame(ExampleRecord())));
      continue;
    }
    EXPECT_TRUE(user_->SeesDigitBar(true));
    RingsADigitOfTheBar();
    way.act();
    EXPECT_TRUE(user_->SeesDigitBar(false));
    EXPECT_TRUE(SeesGame(ExpectedGame(ExampleRecord())));
  }
  EXPECT_EQ(fs::exists(PreferencesFile()), !IsSmall());
}

TEST_P(ViewMenuByHand, FillsTheScreenAndGoesBack) {
  Starts();
  const ExpectedGame game = PlaysExample();
  const QRect screen(0, 0, Desktop::kWidth, Desktop::kHeight);
  const auto reaches = [this](QSize size) {
    const bool isReached =
        Eventually([&] { return user_->Program().Window().Area().size() == size; });
    user_->NoticesSize();
    return isReached;
  };
  for (const Way& way : WaysTo(Entry::kFullScreen)) {
    SCOPED_TRACE(way.name);
    way.act();
    EXPECT_TRUE(reaches(screen.size()));
    EXPECT_TRUE(user_->SeesButton("CommandQuit", "Quit", true));
    EXPECT_TRUE(user_->SeesSolveButtons(true));
    way.act();
    EXPECT_TRUE(reaches(GetParam()));
    EXPECT_TRUE(SeesGame(game));
  }
}

// Whether anything is to be heard of a move, which is taken back.
bool IsHeard(User& user, const SoundServer& server, Mark mark) {
  constexpr std::size_t kHalfSecond = 22'050;
  Recording recording(server);
  user.ClickMark(mark.cell, mark.digit, MouseKey::kLeft);
  const auto heard = recording.Next(kHalfSecond);
  user.Program().Window().PressKeys({"ctrl+z"});
  return std::ranges::any_of(heard, [](std::int16_t sample) { return sample != 0; });
}

// Until the program has reached the server it is silent anyway.
TEST_P(ViewMenuByHand, SoundsAreMutedAndStaySo) {
  const SoundServer server;
  ASSERT_TRUE(server.Answers());
  launch_.environment.insert("PULSE_SERVER", server.Address());
  Starts();
  const ExpectedGame game = PlaysExample();
  const Mark mark = game.FindMark(true, true);
  const auto isHeard = [&] { return IsHeard(*user_, server, mark); };
  for (const Way& way : WaysTo(Entry::kSounds)) {
    SCOPED_TRACE(way.name);
    EXPECT_TRUE(Eventually(isHeard));
    way.act();
    EXPECT_TRUE(Keeps("sounds=no"));
    EXPECT_FALSE(isHeard());
    way.act();
    EXPECT_TRUE(Keeps("sounds=yes"));
  }
  EXPECT_TRUE(Eventually(isHeard));
}

TEST_P(ViewMenuByHand, ChoicesAreKeptOverARestart) {
  Starts();
  PlaysExample();
  EXPECT_FALSE(fs::exists(PreferencesFile())) << "nothing was chosen yet";
  PressKeys("ctrl+d");
  user_->Choose(Entry::kSofterColours);
  if (!IsSmall()) user_->ChooseByKeys(Entry::kDigitBar);
  EXPECT_TRUE(SeesGiven(true, kSofterCages));
  Starts();
  PlaysExample();
  EXPECT_TRUE(SeesGiven(true, kSofterCages));
  EXPECT_TRUE(IsSmall() || user_->SeesDigitBar(true));
}

TEST_P(ViewMenuByHand, StartsWhateverThePreferencesAre) {
  const fs::path folder = PreferencesFile().parent_path();
  const std::function<void()> spoils[] = {
      [&] {
        std::ofstream(PreferencesFile(), std::ios::binary)
            << std::string("[view\n\0=@Variant(\xff\xfe\n%%%", 24) << std::string(100'000, '\x91');
      },
      [&] { std::ofstream(PreferencesFile()) << "[view]\nsame-digits=@Invalid()\nsounds=7\n"; },
      [&] { fs::create_directory(PreferencesFile()); },
      [&] { ASSERT_EQ(mkfifo(PreferencesFile().c_str(), 0600), 0); },
      [&] {
        fs::remove(folder);
        std::ofstream(folder) << "taken";
      },
  };
  for (const auto& spoil : spoils) {
    fs::remove_all(folder);
    fs::create_directories(folder);
    spoil();
    Starts();
    PlaysExample();
    EXPECT_TRUE(SeesGiven(false, kCageColours));
    PressKeys("ctrl+d");
    EXPECT_TRUE(SeesGiven(true, kCageColours)) << "chosen for as long as it runs";
  }
}

INSTANTIATE_TEST_SUITE_P(AtTwoSizes, ViewMenuByHand, AtTwoSizes(), SizeName);

}  // namespace
}  // namespace tessel
