#include "tests/soak/game_at_hand.h"

#include "shell/kept_game.h"

namespace tessel {

namespace {

using Step = void (Tessel_Main::*)();
using Question = bool (Tessel_Main::*)() const;

// The positions one way, from which it returns by as many steps the other way.
std::vector<Position> Walked(Tessel_Main& main, Question canStep, Step step, Step stepBack) {
  std::vector<Position> positions;
  while (positions.size() < kKeptSteps && (main.*canStep)()) {
    (main.*step)();
    positions.push_back(main.State());
  }
  for (std::size_t i = 0; i < positions.size(); ++i) (main.*stepBack)();
  return positions;
}

}  // namespace

GameAtHand WalkedThrough(Tessel_Main& main) {
  GameAtHand game;
  game.puzzle = main.State().SavedPuzzle;
  game.position = main.State();
  game.updatesMarks = main.Display().Checked(CheckBox::CheckPencilmarks);
  for (int cell = 0; cell < kCellCount; ++cell) {
    const DisplayedCell& shown = main.Display().Cell(cell);
    game.digits.push_back(shown.text);
    for (const DisplayedMark& mark : shown.marks) game.marks.push_back(mark.visible);
  }
  game.back = Walked(main, &Tessel_Main::CanUndo, &Tessel_Main::Undo, &Tessel_Main::Redo);
  game.forth = Walked(main, &Tessel_Main::CanRedo, &Tessel_Main::Redo, &Tessel_Main::Undo);
  return game;
}

}  // namespace tessel
