#include "tests/golden/storyteller.h"

#include <utility>

namespace tessel {

Storyteller::Storyteller(std::uint64_t firstSeed) : program_(firstSeed), seen_(program_.Display()) {
  Write("The program starts.");
  indent_ = "  ";
  Write("The caption reads \"" + seen_.caption + "\".");
  Write(ButtonsLine(seen_));
  indent_.clear();
}

void Storyteller::Say(const std::string& sentence) {
  Write("");
  Write("-- " + sentence);
}

void Storyteller::Click(Button button) {
  Act("The player clicks " + Display().Of(button).caption, [&] { program_.main.Click(button); });
}

void Storyteller::Tick(CheckBox box) {
  Act(std::string(Display().Checked(box) ? "The player unticks \"" : "The player ticks \"") +
          CaptionOf(box) + '"',
      [&] { program_.main.Toggle(box); });
}

void Storyteller::Close() {
  bool closes = false;
  Act("The player tries to close the window", [&] { closes = program_.main.Form_QueryUnload(); });
  Write(closes ? "  The window closes." : "  The window stays.");
}

void Storyteller::InPump(long pump, std::function<void()> act) {
  const long target = program_.view.pumps + pump;
  program_.view.onPump = [this, target, act = std::move(act)](long n) {
    if (n != target) return;
    const std::string outer = std::exchange(indent_, indent_ + "  ");
    TellWhatFollowed();
    act();
    indent_ = outer;
  };
}

void Storyteller::DrawBoard() {
  Write("The board:");
  for (const std::string& line : BoardLines(Sight(Display()))) Write("  " + line);
}

bool Storyteller::Playing() const {
  return Display().SolveButtonsVisible() && Display().Of(Button::CommandSolution).enabled;
}

void Storyteller::ClickMark(int cell, int digit, MouseButton button, const std::string& which) {
  std::string action = "The player clicks ";
  if (button != MouseButton::kMiddle) action += "mark " + std::to_string(digit) + " of ";
  Act(action + NameOfCell(cell) + " with the " + which + " button",
      [&] { program_.ClickMark(cell, digit, button); });
}

void Storyteller::Act(const std::string& action, const std::function<void()>& act) {
  if (indent_.empty()) Write("");
  Write(action + '.');
  const std::string outer = std::exchange(indent_, indent_ + "  ");
  const std::size_t before = story_.size();
  act();
  TellWhatFollowed();
  if (story_.size() == before) Write("Nothing happens.");
  indent_ = outer;
}

void Storyteller::TellWhatFollowed() {
  const auto& sounds = program_.player.played;
  for (; toldSounds_ < sounds.size(); ++toldSounds_) {
    Write("Sound: " + std::string(kSoundFiles[static_cast<std::size_t>(sounds[toldSounds_])]) +
          '.');
  }
  const auto& questions = program_.view.questions;
  for (; toldQuestions_ < questions.size(); ++toldQuestions_) {
    Write("Question: " + questions[toldQuestions_]);
    Write(program_.view.answer ? "The player answers Yes." : "The player answers No.");
  }
  for (; toldBeeps_ < program_.view.beeps; ++toldBeeps_) Write("The system beeps.");
  Sight now(Display());
  for (const std::string& line : ChangesBetween(seen_, now)) Write(line);
  seen_ = std::move(now);
  for (; toldEnds_ < program_.view.ends; ++toldEnds_) Write("The program ends.");
}

void Storyteller::Write(const std::string& line) {
  story_ += (line.empty() ? "" : indent_) + line + '\n';
}

}  // namespace tessel
