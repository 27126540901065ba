// Clicks of the hint button against the literal click: sentence, captions, sounds, button caption,
// hint fields and marks, over several clicks of one window.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "core/texts.h"
#include "shell/hint_button.h"
#include "tests/fakes/fake_sound_player.h"
#include "tests/fakes/recording_view.h"
#include "tests/oracle/hints/comparison.h"
#include "tests/oracle/hints/literal_click.h"

namespace tessel::literal {
namespace {

constexpr int kShards = 8;
constexpr int kBoardsOfPart = 6'000 / kShareOfBoards;
constexpr int kClicksOfBoard = 3;

class ClickComparison : public testing::TestWithParam<int> {
 protected:
  ClickComparison() {
    FillTables(state_);
    state_.ProgramPath = "sounds/";
    sounds_.Init_Sound();
  }

  // Spoils a board now and then: a wrong digit, a lost candidate, a stale one.
  static void Spoil(Scene& scene, RandomSource& random) {
    const int cell = DrawIndex(random, 81);
    const int digit = 1 + DrawIndex(random, 9);
    switch (DrawIndex(random, 10)) {
      case 0:
        scene.board[cell] = digit;
        break;
      case 1:
        scene.marks[cell] &= ~Bit(scene.solution[cell]);
        break;
      case 2:
        scene.marks[cell] |= Bit(digit);
        break;
    }
  }

  void Start(const Scene& scene, RandomSource& random) {
    Load(scene, state_);
    state_.SpecialMarks.fill(kAllCandidates);
    SetFields(RandomFields(random), state_);
    state_.PencilmarkMode =
        DrawIndex(random, 4) == 0 ? MarkMode::kNotUpdated : MarkMode::kAutomatic;
    if (DrawIndex(random, 10) == 0) state_.AssignmentPending = Bool16::kTrue;
    literal_.hints = CopyOf(state_);
    literal_.PencilmarkMode = static_cast<int>(state_.PencilmarkMode);
    literal_.AssignmentPending = state_.AssignmentPending == Bool16::kTrue;
  }

  void ExpectSameWindow(const Scene& scene) {
    ASSERT_EQ(form_.TextHint(), literal_.textHint) << scene;
    ASSERT_EQ(form_.Of(Button::CommandHint).caption, literal_.buttonCaption) << scene;
    for (int i = 0; i < 9; ++i) {
      ASSERT_EQ(form_.LabelRow(i), literal_.redRows[i] ? kHighlightRed : kBlack) << scene << i;
      ASSERT_EQ(form_.LabelColumn(i), literal_.redColumns[i] ? kHighlightRed : kBlack)
          << scene << i;
    }
    ASSERT_EQ(std::vector<int>(player_.played.begin(), player_.played.end()), literal_.sounds)
        << scene;
    player_.played.clear();
    literal_.sounds.clear();
  }

  void ExpectSameState(const Scene& scene) {
    ASSERT_EQ(FieldsOf(state_), FieldsOf(literal_.hints)) << scene;
    ASSERT_EQ(state_.AssignmentPending == Bool16::kTrue, literal_.AssignmentPending) << scene;
    ASSERT_EQ(state_.Candidates, MasksOf(scene.marks)) << scene;
    ASSERT_EQ(state_.SpecialMarks, MasksOf(literal_.hints.SpecialMarks)) << scene;
    ASSERT_EQ(state_.PlayBoard, state_.SavedPuzzle) << scene;
  }

  void Click(const Scene& scene) {
    literal_.CommandHint_Click();
    button_.CommandHint_Click();
    ASSERT_NO_FATAL_FAILURE(ExpectSameWindow(scene));
    ASSERT_NO_FATAL_FAILURE(ExpectSameState(scene));
    said_.insert(literal_.textHint.substr(0, literal_.textHint.find(" in ")));
  }

  GameState state_;
  RecordingView view_;
  FakeSoundPlayer player_;
  Form form_{view_};
  Sounds sounds_{state_, player_};
  HintButton button_{state_, form_, sounds_};
  LiteralClick literal_;
  std::set<std::string> said_;
};

TEST_P(ClickComparison, SayAndShowTheSameOnRandomBoards) {
  SceneSource source(GetParam() % 2 == 0, 2000u + static_cast<unsigned>(GetParam()));
  for (int board = 0; board < kBoardsOfPart; ++board) {
    const SolvedLayout& layout = source.Layout();
    const bool consistent = DrawIndex(source.random, 5) > 0;
    Scene scene =
        consistent ? ConsistentScene(layout, source.random) : WildScene(layout, source.random);
    Spoil(scene, source.random);
    Start(scene, source.random);
    for (int click = 0; click < kClicksOfBoard; ++click) {
      ASSERT_NO_FATAL_FAILURE(Click(scene)) << "board " << board << ", click " << click;
    }
  }
  if (kShareOfBoards > 1) return;  // too few boards for the rarer sentences
  for (const std::string name :
       {"A naked pair is present", "A naked triple is present", "A hidden pair is present",
        "A naked quad is present", "No more logical hints"}) {
    EXPECT_TRUE(said_.contains(name)) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Shards, ClickComparison, testing::Range(0, kShards));

}  // namespace
}  // namespace tessel::literal
