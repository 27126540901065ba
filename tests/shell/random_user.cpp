#include "tests/shell/random_user.h"

#include "tests/shell/form_picture.h"

namespace tessel {

namespace {

// Fill and Conceal are stopped there, so that a session takes its time in events.
constexpr long kPatience = 3'000;
constexpr std::size_t kTrail = 30;

}  // namespace

RandomUser::RandomUser(std::uint64_t seed) : random_(seed), nextProgram_(1000 * seed) {}

std::string RandomUser::Play(long events) {
  const long end = made_.events + events;
  while (made_.events < end) {
    if (!program_ || program_->Ended()) StartProgram();
    const Stage stage = program_->GenerationStage();
    const bool open = program_->BoardIsOpen();
    MakeEvent();
    if (stage < program_->GenerationStage() && stage == Stage::kGridFilled) ++made_.puzzles;
    if (open && !program_->BoardIsOpen()) ++made_.gamesFinished;
    if (program_->Complaint().empty()) continue;
    std::string story = "broken: " + program_->Complaint() + "\nafter:\n";
    for (const std::string& event : trail_) story += event + '\n';
    return story;
  }
  return "";
}

// Most layouts are regular, which are soon sawed and filled.
void RandomUser::StartProgram() {
  Remember("start the program");
  ++made_.programs;
  program_ = std::make_unique<CheckedProgram>(nextProgram_++);
  program_->insidePump = [this](long pump) { ActInsidePump(pump); };
  program_->insideQuestion = [this] { return AnswerQuestion(); };
  program_->Toggle(CheckBox::MakeRegular);
}

void RandomUser::MakeEvent() {
  const int kind = Draw(1000);
  if (kind < 15) return Click(static_cast<Button>(Draw(IndexOf(Button::Command1) + 1)));
  if (kind < 60) return ClickSolving();
  if (kind < 80) return ToggleSomething();
  if (kind < 82) return FinishBoard();
  if (kind < 250) return PlaceRightDigit();
  if (kind < 253) return RequestClose();
  if (kind < 500 && !program_->Solving()) return ClickNextStage();
  ClickSomewhere();
}

void RandomUser::Click(Button button) {
  Note("click button " + std::to_string(IndexOf(button)));
  program_->Click(button);
}

void RandomUser::RequestClose() {
  Note("ask to close");
  program_->RequestClose();
}

// The way of a user who wants to play.
void RandomUser::ClickNextStage() {
  if (program_->Running()) return;
  Click(static_cast<Button>(program_->GenerationStage()));
}

void RandomUser::ClickSolving() {
  constexpr std::array buttons{Button::CommandHint,    Button::CommandHint, Button::CommandHint,
                               Button::CommandHint,    Button::CommandQuit, Button::CommandRestart,
                               Button::CommandSolution};
  Click(buttons[static_cast<std::size_t>(Draw(buttons.size()))]);
}

// An irregular layout only now and then.
void RandomUser::ToggleSomething() {
  const CheckBox box = kCheckBoxes[static_cast<std::size_t>(Draw(kCheckBoxes.size()))];
  Note("toggle box " + std::to_string(IndexOf(box)));
  program_->Toggle(box);
  if (box != CheckBox::MakeRegular || Chance(8)) return;
  Note("and back");
  program_->Toggle(box);
}

void RandomUser::ClickSomewhere() {
  const bool wild = Chance(10);
  const int cell = wild ? Draw(kCellCount + 4) - 2 : Draw(kCellCount);
  const int x = wild ? Draw(2000) - 800 : Draw(kCellUnits);
  const int y = wild ? Draw(2000) - 800 : Draw(kCellUnits);
  const auto button = static_cast<MouseButton>(1 << Draw(3));
  Note("button " + std::to_string(static_cast<int>(button)) + " on cell " + std::to_string(cell) +
       " at " + std::to_string(x) + ", " + std::to_string(y));
  program_->MouseUp(cell, button, x, y);
}

void RandomUser::PlaceRightDigit() {
  const int cell = Draw(kCellCount);
  ClickMark(cell, program_->State().PlayBoard.Solution[cell], MouseButton::kLeft);
}

// Resets what is wrong and places the right digits; where marks are not updated that takes another
// button, and a wrong digit may stay.
void RandomUser::FinishBoard() {
  if (!program_->Solving()) return;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int right = program_->State().PlayBoard.Solution[cell];
    if (program_->State().PlayBoard.Board[cell] == right) continue;
    ClickMark(cell, right, MouseButton::kMiddle);
    ClickMark(cell, right, MouseButton::kLeft);
  }
}

void RandomUser::ClickMark(int cell, int digit, MouseButton button) {
  Note("button " + std::to_string(static_cast<int>(button)) + " on mark " + std::to_string(digit) +
       " of cell " + std::to_string(cell));
  const CellPosition at = MarkCentre(digit == 0 ? kSide : digit);
  program_->MouseUp(cell, button, at.x, at.y);
}

void RandomUser::ActInsidePump(long pump) {
  if (pump == kPatience && program_->Running() != Button::CommandSaw) {
    Remember("lose patience");
    return Click(*program_->Running());
  }
  if (pump > 3 && !Chance(100)) return;
  Remember("inside a pump:");
  ++made_.insidePumps;
  MakeEvent();
}

bool RandomUser::AnswerQuestion() {
  for (int event = Draw(4); event > 0; --event) {
    Remember("inside a question:");
    ++made_.insideQuestions;
    MakeEvent();
  }
  const bool yes = Chance(4);
  Remember(yes ? "answer yes" : "answer no");
  return yes;
}

void RandomUser::Note(const std::string& event) {
  ++made_.events;
  if (program_->Solving()) ++made_.whileSolving;
  Remember(event);
}

void RandomUser::Remember(const std::string& line) {
  trail_.push_back(line);
  if (trail_.size() > kTrail) trail_.pop_front();
}

}  // namespace tessel
