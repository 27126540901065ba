// A board of its own, with the pattern of a hint on it, for a page that explains.
#pragma once

#include <QImage>
#include <string>

#include "core/form.h"
#include "core/game_state.h"
#include "hints/technique.h"

namespace tessel {

class QuietView final : public View {
 public:
  void Show() override {}
  std::int32_t WindowHandle() override { return 0; }
  void PumpEvents() override {}
  bool AskYesNo(const std::string&, const std::string&) override { return false; }
  void Beep() override {}
  void EndProgram() override {}
  void FormChanged(FormPart, int) override {}
};

class ExampleBoard {
 public:
  // The first hint of the technique for the board is the one that is shown; there must be one.
  ExampleBoard(const Technique& technique, const MarkedBoard& board);

  // What the hint button says about it.
  const std::string& Sentence() const { return sentence_; }
  // The captions red as the hint colours them, the pattern's marks bold, and those that can go, or
  // the digit that can be placed, red. `side` in logical pixels.
  QImage Picture(int side, double scale, const QFont& font) const;

 private:
  void ShowBoard(const MarkedBoard& board);
  void ShowHint(const Hint& hint, const Captions& captions);
  void ShowMarks(int cell, Mask digits, Rgb colour);

  QuietView view_;
  Form form_{view_};
  GameState state_;
  std::string sentence_;
};

}  // namespace tessel
