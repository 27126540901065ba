#include "tests/signature/signature.h"

#include <cstdio>
#include <utility>
#include <vector>

#include "tests/fakes/test_program.h"

namespace tessel {

namespace {

struct Fingerprints {
  Fingerprint layouts;
  Fingerprint fills;
  Fingerprint puzzles;
  Fingerprint hints;
};

void ChooseKinds(TestProgram& program, int seed) {
  program.Tick(CheckBox::MakeRegular, seed % 5 == 0);
  program.Tick(CheckBox::Rotational, seed % 2 == 0);
  program.Tick(CheckBox::ConcealRotational, seed % 3 == 0);
}

// The empty cells in a random order.
std::vector<int> CellsToPlay(const GameState& state, std::uint64_t seed) {
  std::vector<int> cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (state.PlayBoard.Board[cell] == 0) cells.push_back(cell);
  }
  SeededRandom random(seed);
  for (int left = static_cast<int>(cells.size()); left > 1; --left) {
    std::swap(cells[left - 1], cells[DrawIndex(random, left)]);
  }
  return cells;
}

// A hint that only names the cell is pressed for once more.
void AskForHint(TestProgram& program, Fingerprint& hints) {
  do {
    program.main.Click(Button::CommandHint);
    hints.Add(program.Display().TextHint());
    for (int line = 0; line < kSide; ++line) {
      hints.Add(program.Display().LabelRow(line).red);
      hints.Add(program.Display().LabelColumn(line).red);
    }
  } while (program.State().AssignmentPending == Bool16::kTrue);
}

void Play(TestProgram& program, int seed, Fingerprint& hints) {
  program.main.Click(Button::CommandSolve);
  program.Tick(CheckBox::CheckPencilmarks, seed % 4 != 1);
  for (const int cell : CellsToPlay(program.State(), static_cast<std::uint64_t>(seed))) {
    AskForHint(program, hints);
    program.ClickMark(cell, program.State().PlayBoard.Solution[cell], MouseButton::kLeft);
  }
  hints.AddEach(program.State().PlayBoard.Board);
}

void AddGame(Fingerprints& all, int seed) {
  TestProgram program(static_cast<std::uint64_t>(seed) << 8);
  ChooseKinds(program, seed);
  program.main.Click(Button::CommandSaw);
  all.layouts.AddEach(program.State().CageOfCell);
  program.main.Click(Button::CommandGo);
  all.fills.AddEach(program.State().WorkGrid);
  program.main.Click(Button::CommandConceal);
  all.puzzles.AddEach(program.State().Puzzle);
  Play(program, seed, all.hints);
}

}  // namespace

std::string HexOf(std::uint64_t number) {
  std::string text(18, ' ');
  std::snprintf(text.data(), text.size() + 1, "0x%016llX", static_cast<unsigned long long>(number));
  return text;
}

Signature SignatureOf(int seeds) {
  Fingerprints all;
  for (int seed = 0; seed < seeds; ++seed) AddGame(all, seed);
  return {all.layouts.Value(), all.fills.Value(), all.puzzles.Value(), all.hints.Value()};
}

}  // namespace tessel
