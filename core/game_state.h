// The one record of state that the main window owns and every procedure reads and writes.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "core/board.h"
#include "core/colour.h"
#include "core/hint_code.h"
#include "core/layout.h"
#include "core/position.h"
#include "core/puzzle_record.h"
#include "core/stopwatch.h"
#include "core/vestiges.h"

namespace tessel {

// A boolean held in a 16-bit field.
enum class Bool16 : std::int16_t { kFalse = 0, kTrue = -1 };

// The solving game's fields are those of its Position.
struct GameState : Position, StateVestiges {
  // The program's folder; from start-up on it ends in the platform's separator.
  std::string ProgramPath;

  // Tables, filled at start-up.
  std::array<std::int16_t, 512> BitCount{};       // number of set bits of the index
  std::array<std::int16_t, kSide> AxisLetters{};  // character codes of the row names, "A".."H", "J"
  std::array<Rgb, kSide> CageColour{};            // index cage - 1

  // The layout, set by SetLayout. While one is being sawn, CageOfCell alone shows how far it is.
  PerCell<std::int16_t> CageOfCell{};  // cage 1..9, or 0 before the first Saw and while sawing
  std::array<HouseCells, kSide> CageCells{};  // [cage - 1][k]

  CellDigits WorkGrid{};  // the working board of generation
  CellDigits Puzzle{};    // the finished puzzle's givens
  PuzzleRecord SavedPuzzle;

  bool StopRequested = false;
  std::unique_ptr<sTime> Stopwatch;  // of the running stage

  std::array<std::int32_t, 12> SoundIds{};
  bool SoundOn = false;

  // The hint result: a technique sets the fields that its kind needs, the others keep their values.
  HintCode HintKind = HintCode::kNone;
  std::int16_t HintCell = 0;
  std::int16_t HintDigit = 0;
  std::int16_t HintUnit1 = 0;
  std::int16_t HintUnit2 = 0;
  std::int16_t HintUnit3 = 0;
  Bool16 AssignmentPending = Bool16::kFalse;
  MaskBoard SpecialMarks{};  // the special pass's copy of Candidates
};

// Fills BitCount, AxisLetters and CageColour.
void FillTables(GameState& state);

// Writes CageOfCell and CageCells.
void SetLayout(GameState& state, const Layout& layout);
// The layout that CageOfCell holds; it must be complete.
Layout LayoutOf(const GameState& state);

// The cells of the cage that `cell` lies in; none while the cell is in no cage.
std::span<const std::int16_t> CageAround(const GameState& state, int cell);

// The background of the cell's cage; the board's own colour while the cell is in no cage.
Rgb CageColourOf(const GameState& state, int cell);

// Removes `digit` from the candidates of every cell of the cell's row, column and cage.
void RemoveFromHouses(const GameState& state, int cell, int digit, MaskBoard& candidates);

}  // namespace tessel
