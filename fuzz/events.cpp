// Bytes to events, also inside pumps and open questions, on the whole program with fakes; after
// each event everything promised is checked.
#include "fuzz/input.h"
#include "tests/fakes/no_disk.h"
#include "tests/shell/checked_program.h"

namespace tessel::fuzz {
namespace {

// Fill and Conceal are stopped there, so that a session takes its time in events.
constexpr long kPatience = 400;

class Session {
 public:
  Session(const std::uint8_t* data, std::size_t size)
      : input_(data, size), program_(1000u * static_cast<unsigned>(input_.Byte()), disk_) {
    program_.insidePump = [this](long pump) { ActInsidePump(pump); };
    program_.insideQuestion = [this] { return AnswerQuestion(); };
    program_.Toggle(CheckBox::MakeRegular);
  }

  void Play() {
    while (!input_.Empty() && !program_.Ended()) MakeEvent();
    Require(program_.Complaint().empty(), program_.Complaint());
  }

 private:
  void MakeEvent() {
    const int kind = input_.Byte();
    if (kind < 100) return program_.Click(static_cast<Button>(kind % kButtonCount));
    if (kind < 130) return ClickNextStage();
    if (kind < 140) return Toggle(static_cast<CheckBox>(kind % kCheckBoxCount));
    if (kind < 142) return program_.RequestClose();
    if (kind < 180) return ClickMark(static_cast<MouseButton>(1 << kind % 3), input_.Byte());
    if (kind < 230) return ClickSolution();
    if (kind < 235) return FillBoard();
    program_.MouseUp(input_.Byte() - 80, static_cast<MouseButton>(1 << kind % 3),
                     4 * input_.Byte() - 300, 4 * input_.Byte() - 300);
  }

  void ClickNextStage() {
    if (!program_.Running()) program_.Click(static_cast<Button>(program_.GenerationStage()));
  }

  // Irregular layouts take long: one of them is enough.
  void Toggle(CheckBox box) {
    if (box != CheckBox::MakeRegular) return program_.Toggle(box);
    if (irregular_ || input_.Byte() < 250) return;
    irregular_ = true;
    program_.Toggle(box);
    program_.Click(Button::CommandSaw);
    program_.Toggle(box);
  }

  void ClickMark(MouseButton button, int cellAndDigit) {
    const CellPosition at = MarkCentre(1 + input_.Draw(kSide));
    program_.MouseUp(cellAndDigit % kCellCount, button, at.x, at.y);
  }
  void ClickSolution() { PlaceRightDigit(input_.Draw(kCellCount)); }
  void FillBoard() {
    const int spared = input_.Byte();
    for (int cell = 0; cell < kCellCount; ++cell) {
      if (cell != spared) PlaceRightDigit(cell);
    }
  }
  void PlaceRightDigit(int cell) {
    const int digit = program_.State().PlayBoard.Solution[cell];  // 0 before the first puzzle
    const CellPosition at = MarkCentre(digit == 0 ? kSide : digit);
    program_.MouseUp(cell, MouseButton::kLeft, at.x, at.y);
  }

  void ActInsidePump(long pump) {
    if (pump == 1) nextAct_ = 1 + input_.Byte();
    if (pump == kPatience && program_.Running() != Button::CommandSaw) {
      return program_.Click(*program_.Running());
    }
    if (pump < nextAct_ || input_.Empty()) return;
    nextAct_ = pump + 1 + input_.Byte();
    MakeEvent();
  }

  bool AnswerQuestion() {
    for (int events = input_.Draw(4); events > 0; --events) MakeEvent();
    return input_.Draw(4) == 0;
  }

  Input input_;
  NoDisk disk_;
  CheckedProgram program_;
  long nextAct_ = 0;  // the pump of the running command in which the next event comes
  bool irregular_ = false;
};

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessel::fuzz::Session(data, size).Play();
  return 0;
}
