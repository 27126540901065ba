// The techniques against the literal ones: 200,000 boards in 20 parts, half of them regular. Every
// hint field holds a stale value before a call, so that a field wrongly touched shows.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "shell/hint_techniques.h"
#include "shell/special_pass.h"
#include "tests/fakes/fake_sound_player.h"
#include "tests/fakes/recording_view.h"
#include "tests/oracle/hints/comparison.h"

namespace tessel::literal {
namespace {

constexpr int kShards = 20;
constexpr int kBoardsOfPart = 10'000 / kShareOfBoards;

struct Technique {
  std::string name;
  bool special = false;
  std::function<bool()> ours;
  std::function<bool(LiteralHints&)> literal;
};

class TechniquesComparison : public testing::TestWithParam<int> {
 protected:
  TechniquesComparison() {
    FillTables(state_);
    AddNormal();
    AddSpecial();
    for (int size = 0; size <= 7; ++size) AddSubset(size);
  }

  void AddNormal() {
    using L = LiteralHints;
    Add(
        "NakedSingle", [this] { return normal_.NakedSingle(); }, &L::NakedSingle);
    Add(
        "HiddenSingle", [this] { return normal_.HiddenSingle(); }, &L::HiddenSingle);
    Add(
        "PointingPair", [this] { return normal_.PointingPair(); }, &L::PointingPair);
    Add(
        "BoxLine", [this] { return normal_.BoxLine(); }, &L::BoxLine);
    Add(
        "XWing", [this] { return normal_.XWing(); }, &L::XWing);
    Add(
        "SwordFish", [this] { return normal_.SwordFish(); }, &L::SwordFish);
  }
  void AddSpecial() {
    using L = LiteralHints;
    Add(
        "SpHiddenSingle", [this] { return special_.SpHiddenSingle(); }, &L::SpHiddenSingle);
    Add(
        "SpNakedSingle", [this] { return special_.SpNakedSingle(); }, &L::SpNakedSingle);
    Add(
        "SpPointingPair", [this] { return special_.SpPointingPair(); }, &L::SpPointingPair);
    Add(
        "SpBoxLine", [this] { return special_.SpBoxLine(); }, &L::SpBoxLine);
  }
  void AddSubset(int size) {
    for (const bool naked : {true, false}) {
      const std::string name = (naked ? "Naked " : "Hidden ") + std::to_string(size);
      const Subset subset = naked ? Subset::kNaked : Subset::kHidden;
      Add(
          name, [=, this] { return normal_.NakedHidden(subset, CountSubset{size}); },
          [=](LiteralHints& hints) { return hints.NakedHidden(naked, size); });
      Add(
          "Sp" + name, [=, this] { return special_.SpNakedHidden(CountSubset{size}, subset); },
          [=](LiteralHints& hints) { return hints.SpNakedHidden(size, naked); });
    }
  }
  void Add(const std::string& name, std::function<bool()> ours,
           std::function<bool(LiteralHints&)> literal) {
    techniques_.push_back({name, name.starts_with("Sp"), std::move(ours), std::move(literal)});
  }

  // The marks lie in the array that the technique is about; the other holds all candidates.
  void Compare(const Technique& technique, const Scene& scene, RandomSource& random) {
    state_.Candidates.fill(kAllCandidates);
    state_.SpecialMarks.fill(kAllCandidates);
    (technique.special ? state_.SpecialMarks : state_.Candidates) = MasksOf(scene.marks);
    SetFields(RandomFields(random), state_);
    LiteralHints expected = CopyOf(state_);
    const PuzzleRecord board = state_.PlayBoard;

    const bool found = technique.literal(expected);
    ASSERT_EQ(technique.ours(), found) << technique.name << scene;
    ASSERT_EQ(FieldsOf(state_), FieldsOf(expected)) << technique.name << scene;
    ASSERT_EQ(state_.SpecialMarks, MasksOf(expected.SpecialMarks)) << technique.name << scene;
    ASSERT_EQ(state_.Candidates, MasksOf(expected.Candidates)) << technique.name << scene;
    ASSERT_EQ(state_.PlayBoard, board) << technique.name << scene;
    if (found && !technique.special)
      ++finds_[state_.HintKind == HintCode::kNone ? 0 : expected.HintKind];
    if (found) ++findsOf_[technique.name];
  }

  GameState state_;
  RecordingView view_;
  FakeSoundPlayer player_;
  Form form_{view_};
  Sounds sounds_{state_, player_};
  HintTechniques normal_{state_};
  SpecialPass special_{state_, form_, sounds_};
  std::vector<Technique> techniques_;
  std::array<int, 18> finds_{};
  std::map<std::string, int> findsOf_;
};

TEST_P(TechniquesComparison, FindTheSameOnRandomBoards) {
  SceneSource source(GetParam() % 2 == 0, 1000u + static_cast<unsigned>(GetParam()));
  for (int board = 0; board < kBoardsOfPart; ++board) {
    const SolvedLayout& layout = source.Layout();
    const Scene scene = AnyScene(layout, source.random);
    Load(scene, state_);
    for (const Technique& technique : techniques_) {
      Compare(technique, scene, source.random);
      if (HasFatalFailure()) return;
    }
  }
  EXPECT_EQ(view_.changes, 0) << "the techniques show nothing";
  EXPECT_TRUE(player_.played.empty());
  for (int kind = 1; kind <= 17; ++kind) EXPECT_GT(finds_[kind], 0) << "no find of kind " << kind;
  for (const std::string name : {"Naked 5", "SpNaked 5", "Hidden 3", "SpHidden 3"}) {
    EXPECT_GT(findsOf_[name], 0) << "no find by " << name;
  }
  for (const std::string name : {"Naked 1", "Naked 6", "Hidden 1", "Hidden 4", "SpHidden 4"}) {
    EXPECT_EQ(findsOf_[name], 0) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Shards, TechniquesComparison, testing::Range(0, kShards));

}  // namespace
}  // namespace tessel::literal
