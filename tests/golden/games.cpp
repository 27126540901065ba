#include "tests/golden/games.h"

#include <optional>

#include "tests/golden/storyteller.h"

namespace tessel {

namespace {

void MakePuzzle(Storyteller& teller) {
  teller.Click(Button::CommandSaw);
  teller.Click(Button::CommandGo);
  teller.Click(Button::CommandConceal);
  teller.Click(Button::CommandSolve);
}

int ShownMarks(Storyteller& teller, int cell) {
  int count = 0;
  for (int digit = 1; digit <= kSide; ++digit) count += teller.Display().Mark(cell, digit).visible;
  return count;
}

// An empty cell with as few marks as any.
int EasiestCell(Storyteller& teller) {
  int easiest = -1;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (teller.Display().Cell(cell).text != 0) continue;
    if (easiest == -1 || ShownMarks(teller, cell) < ShownMarks(teller, easiest)) easiest = cell;
  }
  return easiest;
}

// The first cell that shows more than one mark.
int CellWithAChoice(Storyteller& teller) {
  int cell = 0;
  while (ShownMarks(teller, cell) < 2) ++cell;
  return cell;
}

void PlaceRight(Storyteller& teller, int cell) {
  teller.Left(cell, teller.Solution(cell));
}

void PlayToTheEnd(Storyteller& teller) {
  while (teller.Playing()) PlaceRight(teller, EasiestCell(teller));
  teller.Say("The board is full.");
  teller.DrawBoard();
}

// The cell that the hint's last word names.
std::optional<int> CellInHint(Storyteller& teller) {
  const std::string& text = teller.Display().TextHint();
  if (text.size() < 8 || text.compare(text.size() - 8, 6, " cell ") != 0) return std::nullopt;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (text.ends_with(NameOfCell(cell))) return cell;
  }
  return std::nullopt;
}

// The first number in the hint.
int DigitInHint(Storyteller& teller) {
  const std::string& text = teller.Display().TextHint();
  return std::stoi(text.substr(text.find_first_of("0123456789")));
}

// A fill that is watched and stopped, then a conceal that is stopped.
void StopCommands(Storyteller& teller) {
  teller.Say("A fill that is watched and stopped.");
  teller.Tick(CheckBox::CheckVisualize);
  teller.InPump(90, [&] {
    teller.Close();
    teller.Click(Button::CommandSaw);
    teller.Click(Button::CommandGo);
  });
  teller.Click(Button::CommandGo);
  teller.Tick(CheckBox::CheckVisualize);
  teller.Click(Button::CommandGo);
  teller.Say("A conceal that is stopped, and another.");
  teller.InPump(60, [&] { teller.Click(Button::CommandConceal); });
  teller.Click(Button::CommandConceal);
  teller.Click(Button::CommandConceal);
}

void MakeMistakes(Storyteller& teller, int cell) {
  teller.Say("A digit placed and taken out again.");
  const int first = EasiestCell(teller);
  PlaceRight(teller, first);
  teller.Right(first, 1);
  teller.Say("A wrong digit, told by the hint and taken out with the middle button.");
  int wrong = 1;
  while (!teller.Display().Mark(cell, wrong).visible || wrong == teller.Solution(cell)) ++wrong;
  teller.Left(cell, wrong);
  PlaceRight(teller, cell);
  teller.Click(Button::CommandHint);
  teller.Middle(cell);
  teller.Click(Button::CommandHint);
  teller.Say("A right mark taken away, told by the hint.");
  teller.Click(Button::CommandRestart);
  teller.Right(cell, teller.Solution(cell));
  teller.Click(Button::CommandHint);
  teller.Right(cell, teller.Solution(cell));
  teller.Say("A look at the solution, and a fresh start.");
  teller.Click(Button::CommandSolution);
  teller.Left(cell, wrong);
  teller.Click(Button::CommandRestart);
}

void SawUnderTheOpenPuzzle(Storyteller& teller, int cell) {
  teller.Say("A new layout while the old puzzle is open: it goes on under the new cages.");
  teller.Tick(CheckBox::MakeRegular);
  teller.Click(Button::CommandSaw);
  teller.Middle(cell);
  teller.Click(Button::CommandRestart);
  teller.Answer(false);
  teller.Click(Button::CommandQuit);
  teller.Answer(true);
  teller.Click(Button::CommandQuit);
}

void Leave(Storyteller& teller) {
  teller.Answer(false);
  teller.Click(Button::CommandExit);
  teller.Close();
  teller.Answer(true);
  teller.Click(Button::CommandExit);
}

}  // namespace

std::string RandomGame() {
  Storyteller teller(35);
  MakePuzzle(teller);
  PlayToTheEnd(teller);
  teller.Click(Button::CommandQuit);
  return teller.Story();
}

std::string RotationalGame() {
  Storyteller teller(3);
  teller.Tick(CheckBox::Rotational);
  MakePuzzle(teller);
  PlayToTheEnd(teller);
  return teller.Story();
}

std::string RegularGame() {
  Storyteller teller(1);
  teller.Tick(CheckBox::MakeRegular);
  MakePuzzle(teller);
  PlayToTheEnd(teller);
  return teller.Story();
}

std::string PairsGame() {
  Storyteller teller(24);
  teller.Tick(CheckBox::Rotational);
  teller.Tick(CheckBox::ConcealRotational);
  MakePuzzle(teller);
  PlayToTheEnd(teller);
  return teller.Story();
}

// Follows the hints that name a cell to be filled; where a hint tells of marks to be removed, the
// player finds a digit without it.
std::string HintsGame() {
  Storyteller teller(19);
  MakePuzzle(teller);
  while (teller.Playing()) {
    teller.Click(Button::CommandHint);
    PlaceRight(teller, CellInHint(teller).value_or(EasiestCell(teller)));
  }
  return teller.Story();
}

// Deliberate oddity of the hints met on the way: the digit revealed after a naked single is the
// rounded square root of its mask, so the player may be told a wrong one, or one that is none.
std::string MarksByHandGame() {
  Storyteller teller(39);
  MakePuzzle(teller);
  teller.Tick(CheckBox::CheckPencilmarks);
  while (teller.Playing()) {
    teller.Click(Button::CommandHint);
    const std::optional<int> cell = CellInHint(teller);
    if (!cell) {
      PlaceRight(teller, EasiestCell(teller));
      continue;
    }
    teller.Click(Button::CommandHint);  // "Show Me"
    const int told = DigitInHint(teller);
    if (told <= kSide) teller.Left(*cell, told);
    if (told == teller.Solution(*cell)) continue;
    if (told <= kSide && teller.Playing()) {
      teller.Say("The program has named a wrong digit.");
      teller.Click(Button::CommandHint);
      teller.Right(*cell, told);
    }
    if (teller.Playing()) PlaceRight(teller, *cell);
  }
  return teller.Story();
}

std::string MistakesGame() {
  Storyteller teller(7);
  teller.Tick(CheckBox::MakeRegular);
  teller.Click(Button::CommandSaw);
  StopCommands(teller);
  teller.Click(Button::CommandSolve);
  const int cell = CellWithAChoice(teller);
  MakeMistakes(teller, cell);
  SawUnderTheOpenPuzzle(teller, cell);
  teller.Say("Back to a puzzle of its own, and to the applause.");
  teller.Tick(CheckBox::MakeRegular);
  MakePuzzle(teller);
  PlayToTheEnd(teller);
  Leave(teller);
  return teller.Story();
}

}  // namespace tessel
