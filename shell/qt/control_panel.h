// The buttons, boxes and the hint text beside or below the board.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <array>

#include "core/form.h"
#include "shell/qt/accent.h"

class QCheckBox;
class QFrame;

namespace tessel {

class DigitBar;
class HintLabel;

class ControlPanel final : public QWidget {
  Q_OBJECT

 public:
  // The panel stands at the board's right, with air or with little of it, or lies below it.
  enum class Arrangement { kBeside, kTight, kBelow };

  explicit ControlPanel(QWidget* parent = nullptr);

  // Shows what the form says.
  void Show(const Form& form);

  void Arrange(Arrangement arrangement);
  // The room that the panel takes in that arrangement, whichever it has now.
  QSize SizeFor(Arrangement arrangement) const { return sizes_[IndexOf(arrangement)]; }

  // Whether the player wants the bar of digits. It is shown in a game, in the arrangement beside
  // the board and where nothing else has to move for it.
  void OfferDigitBar(bool on, const Form& form);
  bool HasRoomForDigitBar() const;
  // Shows what is left of each digit, if the bar is shown.
  void CountDigits(const Form& form);
  // Beside the board: lets the hint's font follow the side of a cell, in logical pixels, as far as
  // so much spare room allows.
  void GrowHint(double cellSide, QSize spare);

  // Null for the spare button, which is not shown.
  QPushButton* Of(Button button) const { return buttons_[tessel::IndexOf(button)]; }
  QCheckBox* Of(CheckBox box) const { return boxes_[tessel::IndexOf(box)]; }
  // They press what the menu's entries of these names do; there is no room for them below the
  // board.
  QPushButton* Undo() const { return undo_; }
  QPushButton* Redo() const { return redo_; }
  // The panel's controls in the order of the workflow; the board stands before the frame's.
  QList<QWidget*> GenerationControls() const;
  QList<QWidget*> SolveControls() const;

 signals:
  void ButtonClicked(tessel::Button button);
  void BoxClicked(tessel::CheckBox box);
  void HelpClicked();
  void DigitChosen(std::optional<int> digit);
  // The desktop changed its font or style: the panel takes other room now.
  void RoomChanged();

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  static std::size_t IndexOf(Arrangement arrangement) {
    return static_cast<std::size_t>(arrangement);
  }
  void MakeButtons();
  void MakeBoxes();
  void MakeHelp();
  QPushButton* MakeStepButton(const char* name, const char* tip, const char* keys);
  void Measure();
  void LayOutFor(Arrangement arrangement);
  void ArrangeBeside(int spacing, const QFont& hintFont);
  void PlaceDigitBar();
  void FitDigitBar();
  void HideDigitBar();
  void ArrangeBelow();
  QFrame* FrameOf(ControlGroup group) const;
  void ShowButton(const Form& form, Button button);
  void SetAccent(Button button, Accent accent);

  std::array<QPushButton*, kButtonCount> buttons_{};
  std::array<QCheckBox*, kCheckBoxCount> boxes_{};
  QPushButton* help_ = nullptr;
  QPushButton* undo_ = nullptr;
  QPushButton* redo_ = nullptr;
  DigitBar* digitBar_ = nullptr;  // not made before it is wanted
  bool wantsDigitBar_ = false;
  QFrame* generation_ = nullptr;
  QFrame* solveButtons_ = nullptr;
  HintLabel* textHint_ = nullptr;
  Arrangement arrangement_ = Arrangement::kBeside;
  std::array<QSize, 3> sizes_;
  std::array<Accent, kButtonCount> accents_{};
};

}  // namespace tessel
