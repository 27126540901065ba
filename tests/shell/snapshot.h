// All that an event may change, to show that one changed nothing.
#pragma once

#include <ostream>
#include <string>

#include "tests/fakes/test_program.h"
#include "tests/shell/form_picture.h"

namespace tessel {

struct Snapshot {
  explicit Snapshot(const TestProgram& program)
      : picture(PictureOf(program.Display())),
        cages(program.State().CageOfCell),
        workGrid(program.State().WorkGrid),
        puzzle(program.State().Puzzle),
        savedPuzzle(program.State().SavedPuzzle),
        playBoard(program.State().PlayBoard),
        candidates(program.State().Candidates),
        candidatesBeforeEntry(program.State().CandidatesBeforeEntry),
        pencilmarkMode(program.State().PencilmarkMode),
        finished(program.State().Finished),
        assignmentPending(program.State().AssignmentPending),
        stopRequested(program.State().StopRequested),
        sounds(program.player.played.size()),
        beeps(program.view.beeps),
        questions(program.view.questions.size()),
        ends(program.view.ends) {}

  friend bool operator==(const Snapshot&, const Snapshot&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Snapshot& snapshot) {
    return out << snapshot.picture << snapshot.sounds << " sounds, " << snapshot.beeps << " beeps, "
               << snapshot.questions << " questions, " << snapshot.ends << " ends\n";
  }

  std::string picture;
  PerCell<std::int16_t> cages;
  CellDigits workGrid;
  CellDigits puzzle;
  PuzzleRecord savedPuzzle;
  PuzzleRecord playBoard;
  MaskBoard candidates;
  MaskBoard candidatesBeforeEntry;
  MarkMode pencilmarkMode;
  bool finished;
  Bool16 assignmentPending;
  bool stopRequested;
  std::size_t sounds;
  int beeps;
  std::size_t questions;
  int ends;
};

}  // namespace tessel
