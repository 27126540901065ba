// The odd spellings and the differences between like sentences are deliberate: "savely", "an
// SwordFish" in columns but "a SwordFish" in rows, "cannot longer be", and one ending for hidden
// subsets in every house.
#include "hints/hint_messages.h"

#include <vector>

namespace tessel {

namespace {

std::string HintCellName(const GameState& state) {
  return CellName(state, state.HintCell);
}

std::string BoxLineMessage(const GameState& state, const std::string& line) {
  return "The cells in " + line + " containing candidate " + std::to_string(state.HintDigit) +
         " all belong to the same cage, therefore that candidate can be removed from the other "
         "cells of that cage";
}

std::string SubsetMessage(const std::string& subset, const std::string& house,
                          const std::string& tail) {
  return "A " + subset + " is present in " + house + " and leads to elimination" + tail;
}

std::string FishMessage(const GameState& state, const std::string& fish, const std::string& lines,
                        const std::string& crossing) {
  return "Candidate " + std::to_string(state.HintDigit) + " forms " + fish + " pattern in " +
         lines + ". Elimination(s) can be done in the crossing " + crossing;
}

// "A and B" or "A, B and C".
std::string Listed(const std::vector<std::string>& names) {
  std::string list = names.front();
  for (std::size_t i = 1; i < names.size(); ++i) {
    list += (i + 1 == names.size() ? " and " : ", ") + names[i];
  }
  return list;
}

std::string RowHouse(const GameState& state) {
  return "row " + RowName(state, state.HintUnit1);
}

std::string ColumnHouse(const GameState& state) {
  return "column " + ColumnName(state.HintUnit2);
}

std::string CageHouse(const GameState& state) {
  return "the cage that starts at cell " + CellName(state, state.CageCells[state.HintUnit3 - 1][0]);
}

constexpr char kInOtherCells[] = " in other cells of that ";
constexpr char kOfCandidates[] = " of candidates";

}  // namespace

std::string WrongDigitMessage(const GameState& state, int cell) {
  return "Incorrect number " + std::to_string(state.PlayBoard.Board[cell]) + " at cell " +
         CellName(state, cell) + " - Click that cell with the middle button";
}

std::string LostCandidateMessage(const GameState& state, int cell) {
  return "The correct number is no longer shown as a possibility at cell " + CellName(state, cell) +
         " - Click that cell with the middle button";
}

std::string StaleCandidateMessage(const GameState& state, int cell) {
  return "Since number " + std::to_string(state.PlayBoard.Board[cell]) + " is located at cell " +
         CellName(state, cell) +
         ", this number cannot longer be a candidate in that same row, column or cage";
}

std::string AnnouncedCellMessage(const GameState& state) {
  return "A candidate can savely be assigned to cell " + HintCellName(state);
}

std::string PendingAssignmentMessage(const GameState& state) {
  return "Candidate " + std::to_string(state.HintDigit) + " can savely be assigned to cell " +
         HintCellName(state);
}

std::string HintMessage(const GameState& state, const std::string& subset) {
  const auto row = [&](int index) { return RowName(state, index); };
  const auto column = [](int index) { return ColumnName(index); };
  const int unit1 = state.HintUnit1;
  const int unit2 = state.HintUnit2;
  const int unit3 = state.HintUnit3;
  switch (state.HintKind) {
    case HintCode::None:
      break;
    case HintCode::NakedSingle:
      return "Naked single at cell " + HintCellName(state);
    case HintCode::HiddenSingleRow:
      return "Hidden single in row at cell " + HintCellName(state);
    case HintCode::HiddenSingleColumn:
      return "Hidden single in column at cell " + HintCellName(state);
    case HintCode::HiddenSingleCage:
      return "Hidden single in cage at cell " + HintCellName(state);
    case HintCode::PointingPair:
      return "A candidate from cell " + HintCellName(state) +
             " can be removed since it is pointed by some cells from a near cage all holding that "
             "candidate";
    case HintCode::BoxLineRow:
      return BoxLineMessage(state, RowHouse(state));
    case HintCode::BoxLineColumn:
      return BoxLineMessage(state, ColumnHouse(state));
    case HintCode::NakedSubsetRow:
      return SubsetMessage(subset, RowHouse(state), std::string(kInOtherCells) + "row");
    case HintCode::NakedSubsetColumn:
      return SubsetMessage(subset, ColumnHouse(state), std::string(kInOtherCells) + "column");
    case HintCode::NakedSubsetCage:
      return SubsetMessage(subset, CageHouse(state), std::string(kInOtherCells) + "cage");
    case HintCode::HiddenSubsetRow:
      return SubsetMessage(subset, RowHouse(state), kOfCandidates);
    case HintCode::HiddenSubsetColumn:
      return SubsetMessage(subset, ColumnHouse(state), kOfCandidates);
    case HintCode::HiddenSubsetCage:
      return SubsetMessage(subset, CageHouse(state), kOfCandidates);
    case HintCode::XWingRows:
      return FishMessage(state, "an X-Wing", "rows " + Listed({row(unit1), row(unit2)}), "columns");
    case HintCode::XWingColumns:
      return FishMessage(state, "an X-Wing", "columns " + Listed({column(unit1), column(unit2)}),
                         "rows");
    case HintCode::SwordFishRows:
      return FishMessage(state, "a SwordFish",
                         "rows " + Listed({row(unit1), row(unit2), row(unit3)}), "columns");
    case HintCode::SwordFishColumns:
      return FishMessage(state, "an SwordFish",
                         "columns " + Listed({column(unit1), column(unit2), column(unit3)}),
                         "rows");
  }
  return {};
}

}  // namespace tessel
