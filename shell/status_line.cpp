#include "shell/status_line.h"

#include <algorithm>

namespace tessel {

namespace {

constexpr char kFullBoard[] = "The board is full";

std::string Counted(std::ptrdiff_t count, const char* one, const char* several) {
  return std::to_string(count) + " " + (count == 1 ? one : several);
}

// The generation may have replaced the puzzle from which the open game was played.
bool PlaysSavedPuzzle(const GameState& state) {
  return state.PlayBoard.Solution == state.SavedPuzzle.Solution &&
         state.PlayBoard.CageMap == state.SavedPuzzle.CageMap;
}

std::string Said(const Form& form, const GameState& state) {
  if (!ShowsFullBoard(form, state)) return form.News();
  return form.News().empty() ? kFullBoard : kFullBoard + ("; " + form.News());
}

std::string CellsLeft(const PuzzleRecord& puzzle) {
  return Counted(std::ranges::count(puzzle.Board, 0), "cell left", "cells left");
}

std::string GivensOf(const PuzzleRecord& puzzle) {
  return Counted(kCellCount - std::ranges::count(puzzle.Board, 0), "given", "givens");
}

std::string Standing(const Form& form, const GameState& state, std::optional<grade::Level> level) {
  if (!HasPuzzle(form)) return "";
  const bool playing = form.SolveButtonsVisible();
  if (playing && !PlaysSavedPuzzle(state)) return CellsLeft(state.PlayBoard);
  std::string text =
      GivensOf(state.SavedPuzzle) + ", " + CellsLeft(playing ? state.PlayBoard : state.SavedPuzzle);
  if (level) text += "; Tessel grade: " + std::string(NameOf(*level));
  return text;
}

}  // namespace

bool HasPuzzle(const Form& form) {
  return form.SolveButtonsVisible() || form.Of(Button::CommandSolve).enabled;
}

bool ShowsFullBoard(const Form& form, const GameState& state) {
  if (!form.SolveButtonsVisible() || !state.Finished) return false;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (form.Cell(cell).text == 0) return false;
  }
  return true;
}

StatusLine StatusLineOf(const Form& form, const GameState& state,
                        std::optional<grade::Level> level) {
  if (!form.Notice().empty()) return {form.Notice(), ""};
  return {Said(form, state), Standing(form, state, level)};
}

}  // namespace tessel
