#include "tests/hints/hint_player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

namespace tessel {

namespace {

constexpr char kNoMore[] = "No more logical hints";
constexpr int kMaxHints = 2000;

std::vector<int> RowCells(int row) {
  std::vector<int> cells;
  for (int k = 0; k < kSide; ++k) cells.push_back(CellAt(row, k));
  return cells;
}
std::vector<int> ColumnCells(int column) {
  std::vector<int> cells;
  for (int k = 0; k < kSide; ++k) cells.push_back(CellAt(k, column));
  return cells;
}
std::vector<int> CageCellsOf(const GameState& state, int cage) {
  std::vector<int> cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (state.CageOfCell[cell] == cage) cells.push_back(cell);
  }
  return cells;
}
bool SeeByLine(int a, int b) {
  return RowOf(a) == RowOf(b) || ColumnOf(a) == ColumnOf(b);
}

int SizeNamedIn(const std::string& sentence) {
  if (sentence.find(" pair ") != std::string::npos) return 2;
  if (sentence.find(" triple ") != std::string::npos) return 3;
  if (sentence.find(" quad ") != std::string::npos) return 4;
  return 5;
}

std::string NameOf(HintCode kind, const std::string& sentence) {
  const std::string subset = sentence.substr(2, sentence.find(" is present") - 2);
  switch (kind) {
    case HintCode::kNone:
      return "nothing";
    case HintCode::kNakedSingle:
      return "naked single";
    case HintCode::kHiddenSingleRow:
      return "hidden single in a row";
    case HintCode::kHiddenSingleColumn:
      return "hidden single in a column";
    case HintCode::kHiddenSingleCage:
      return "hidden single in a cage";
    case HintCode::kPointingPair:
      return "pointing";
    case HintCode::kBoxLineRow:
      return "box-line in a row";
    case HintCode::kBoxLineColumn:
      return "box-line in a column";
    case HintCode::kNakedSubsetRow:
    case HintCode::kHiddenSubsetRow:
      return subset + " in a row";
    case HintCode::kNakedSubsetColumn:
    case HintCode::kHiddenSubsetColumn:
      return subset + " in a column";
    case HintCode::kNakedSubsetCage:
    case HintCode::kHiddenSubsetCage:
      return subset + " in a cage";
    case HintCode::kXWingRows:
      return "X-Wing on rows";
    case HintCode::kXWingColumns:
      return "X-Wing on columns";
    case HintCode::kSwordFishRows:
      return "SwordFish on rows";
    case HintCode::kSwordFishColumns:
      return "SwordFish on columns";
  }
  return "unknown";
}

}  // namespace

bool HintPlayer::Play() {
  for (int hints = 0; hints < kMaxHints; ++hints) {
    if (!program_.Display().Of(Button::CommandHint).enabled) return true;
    if (asksSpecialPass) AskSpecialPass();
    program_.main.Click(Button::CommandHint);
    const std::string sentence = program_.Display().TextHint();
    if (sentence == kNoMore) return false;
    Follow(sentence);
    if (testing::Test::HasFailure()) return false;
  }
  ADD_FAILURE() << "the hints do not end";
  return false;
}

void HintPlayer::AskSpecialPass() {
  const MaskBoard before = state_.Candidates;
  program_.Tick(CheckBox::CheckPencilmarks, false);
  program_.main.Click(Button::CommandHint);
  if (state_.AssignmentPending == Bool16::kTrue) {
    ++specialAnnouncements;
    const int cell = state_.HintCell;
    if (state_.HintKind == HintCode::kNakedSingle) {
      EXPECT_EQ(state_.SpecialMarks[cell], BitOf(SolutionOf(cell))) << "cell " << cell;
    } else {
      EXPECT_EQ(state_.HintDigit, SolutionOf(cell)) << "cell " << cell;
    }
  }
  EXPECT_EQ(state_.Candidates, before);
  program_.Tick(CheckBox::CheckPencilmarks, true);
}

void HintPlayer::Follow(const std::string& sentence) {
  ++counts[NameOf(state_.HintKind, sentence)];
  removals_.clear();
  if (sentence.starts_with("Naked single") || sentence.starts_with("Hidden single")) {
    return PlaceSingle();
  }
  if (sentence.starts_with("A candidate from cell")) {
    FindPointing();
  } else if (sentence.starts_with("The cells in")) {
    FindBoxLine();
  } else if (sentence.find("X-Wing") != std::string::npos) {
    FindFish(2);
  } else if (sentence.find("SwordFish") != std::string::npos) {
    FindFish(3);
  } else if (sentence.starts_with("A naked ")) {
    FindNaked(NamedHouse(), SizeNamedIn(sentence));
  } else if (sentence.starts_with("A hidden ")) {
    FindHidden(NamedHouse(), SizeNamedIn(sentence));
  } else {
    ADD_FAILURE() << "no hint to follow: " << sentence;
    return;
  }
  EXPECT_FALSE(removals_.empty()) << "nothing to remove: " << sentence;
  RemoveMarks();
}

// The cells of the house that the hint's code and unit name.
std::vector<int> HintPlayer::NamedHouse() const {
  switch (state_.HintKind) {
    case HintCode::kHiddenSingleRow:
    case HintCode::kBoxLineRow:
    case HintCode::kNakedSubsetRow:
    case HintCode::kHiddenSubsetRow:
      return RowCells(state_.HintUnit1);
    case HintCode::kHiddenSingleColumn:
    case HintCode::kBoxLineColumn:
    case HintCode::kNakedSubsetColumn:
    case HintCode::kHiddenSubsetColumn:
      return ColumnCells(state_.HintUnit2);
    case HintCode::kHiddenSingleCage:
      return CageCellsOf(state_, state_.HintUnit3 + 1);
    case HintCode::kNakedSubsetCage:
    case HintCode::kHiddenSubsetCage:
      return CageCellsOf(state_, state_.HintUnit3);
    case HintCode::kNone:
    case HintCode::kNakedSingle:
    case HintCode::kPointingPair:
    case HintCode::kXWingRows:
    case HintCode::kXWingColumns:
    case HintCode::kSwordFishRows:
    case HintCode::kSwordFishColumns:
      break;
  }
  ADD_FAILURE() << "the hint names no house";
  return {};
}

void HintPlayer::PlaceSingle() {
  const int cell = state_.HintCell;
  Mask digits = At(cell);
  if (state_.HintKind != HintCode::kNakedSingle) {
    for (const int other : NamedHouse()) {
      if (other != cell) digits = Without(digits, At(other));
    }
  }
  ASSERT_EQ(digits, BitOf(SolutionOf(cell))) << "cell " << cell;
  program_.ClickMark(cell, SolutionOf(cell), MouseButton::kLeft);
  ASSERT_EQ(state_.PlayBoard.Board[cell], SolutionOf(cell));
}

void HintPlayer::FindPointing() {
  for (const int cell : CageCellsOf(state_, state_.HintUnit3)) {
    EXPECT_NE(cell, state_.HintCell);
    if (Holds(At(cell), state_.HintDigit)) {
      EXPECT_TRUE(SeeByLine(cell, state_.HintCell)) << cell;
    }
  }
  Remove(state_.HintCell, BitOf(state_.HintDigit));
}

void HintPlayer::FindBoxLine() {
  const std::vector<int> line = NamedHouse();
  for (const int cell : line) {
    if (Holds(At(cell), state_.HintDigit)) {
      EXPECT_EQ(state_.CageOfCell[cell], state_.HintUnit3);
    }
  }
  for (const int cell : CageCellsOf(state_, state_.HintUnit3)) {
    if (std::find(line.begin(), line.end(), cell) == line.end()) {
      Remove(cell, BitOf(state_.HintDigit));
    }
  }
}

// Every set of so many empty cells with as many digits keeps these for itself.
void HintPlayer::FindNaked(const std::vector<int>& house, int size) {
  for (Positions chosen = 0; chosen < 512; ++chosen) {
    if (std::popcount(chosen) != size) continue;
    Mask all = 0;
    bool empty = true;
    for (unsigned k = 0; k < kSide; ++k) {
      if ((chosen >> k & 1) == 0) continue;
      all = static_cast<Mask>(all | At(house[k]));
      empty = empty && At(house[k]) != 0;
    }
    if (!empty || state_.BitCount[all] != size) continue;
    for (unsigned k = 0; k < kSide; ++k) {
      if ((chosen >> k & 1) == 0) Remove(house[k], all);
    }
  }
}

// Every set of so many digits with as many cells takes these for itself.
void HintPlayer::FindHidden(const std::vector<int>& house, int size) {
  Mask open = 0;
  for (const int cell : house) open = static_cast<Mask>(open | At(cell));
  for (Mask digits = 0; digits <= kAllCandidates; ++digits) {
    if (state_.BitCount[digits] != size || Without(digits, open) != 0) continue;
    std::vector<int> places;
    for (const int cell : house) {
      if ((At(cell) & digits) != 0) places.push_back(cell);
    }
    if (static_cast<int>(places.size()) != size) continue;
    for (const int cell : places) Remove(cell, Without(kAllCandidates, digits));
  }
}

void HintPlayer::FindFish(int lines) {
  const bool byRows =
      state_.HintKind == HintCode::kXWingRows || state_.HintKind == HintCode::kSwordFishRows;
  const auto cellAt = [&](int line, int place) {
    return byRows ? CellAt(line, place) : CellAt(place, line);
  };
  std::vector<int> named{state_.HintUnit1, state_.HintUnit2, state_.HintUnit3};
  named.resize(static_cast<std::size_t>(lines));
  std::vector<int> places;
  for (int place = 0; place < kSide; ++place) {
    const auto holds = [&](int line) { return Holds(At(cellAt(line, place)), state_.HintDigit); };
    if (std::any_of(named.begin(), named.end(), holds)) places.push_back(place);
  }
  EXPECT_EQ(static_cast<int>(places.size()), lines);
  for (const int place : places) {
    for (int line = 0; line < kSide; ++line) {
      if (std::find(named.begin(), named.end(), line) != named.end()) continue;
      Remove(cellAt(line, place), BitOf(state_.HintDigit));
    }
  }
}

void HintPlayer::Remove(int cell, Mask digits) {
  for (int digit = 1; digit <= kSide; ++digit) {
    if (Holds(digits, digit) && Holds(At(cell), digit)) removals_.emplace_back(cell, digit);
  }
}

void HintPlayer::RemoveMarks() {
  for (const auto& [cell, digit] : removals_) {
    ASSERT_NE(digit, SolutionOf(cell)) << "cell " << cell;
    if (!Holds(At(cell), digit)) continue;  // found twice
    program_.ClickMark(cell, digit, MouseButton::kRight);
    ASSERT_FALSE(Holds(At(cell), digit));
  }
}

}  // namespace tessel
