// Where the panel puts its controls in each arrangement.
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QtMath>
#include <algorithm>
#include <vector>

#include "shell/qt/control_panel.h"
#include "shell/qt/hint_label.h"

namespace tessel {

namespace {

constexpr double kHintFontShare = 1.15;  // of the other controls' font, where there is room
constexpr double kHintShareOfCell = 0.28;
constexpr double kMostHintPoints = 18.0;
// The narrowest hint box of each arrangement.
constexpr int kHintWidthBeside = 230;
constexpr int kHintWidthBelow = 270;
constexpr int kWideSpacing = 8;
constexpr int kTightSpacing = 4;

// A control's place in a grid, from (row, column) over so many columns.
struct Place {
  QWidget* widget;
  int row;
  int column;
  int columns = 1;
  int rows = 1;
};

QGridLayout* LayOut(QWidget* parent, int margin, int spacing, const std::vector<Place>& places) {
  delete parent->layout();
  auto* grid = new QGridLayout(parent);
  grid->setContentsMargins(margin, margin, margin, margin);
  grid->setSpacing(spacing);
  for (const Place& place : places) {
    grid->addWidget(place.widget, place.row, place.column, place.rows, place.columns);
  }
  return grid;
}

QFont Enlarged(QFont font) {
  if (font.pointSizeF() > 0) font.setPointSizeF(kHintFontShare * font.pointSizeF());
  return font;
}

}  // namespace

void ControlPanel::Measure() {
  HideDigitBar();
  for (const Arrangement arrangement :
       {Arrangement::kBelow, Arrangement::kTight, Arrangement::kBeside}) {
    LayOutFor(arrangement);
    sizes_[IndexOf(arrangement)] = layout()->totalSizeHint();
  }
}

void ControlPanel::Arrange(Arrangement arrangement) {
  if (arrangement != arrangement_) LayOutFor(arrangement);
}

void ControlPanel::LayOutFor(Arrangement arrangement) {
  arrangement_ = arrangement;
  for (QPushButton* step : {undo_, redo_}) step->setVisible(arrangement != Arrangement::kBelow);
  switch (arrangement) {
    case Arrangement::kBeside:
      return ArrangeBeside(kWideSpacing, Enlarged(font()));
    case Arrangement::kTight:
      return ArrangeBeside(kTightSpacing, font());
    case Arrangement::kBelow:
      return ArrangeBelow();
  }
}

void ControlPanel::ArrangeBeside(int spacing, const QFont& hintFont) {
  generation_->setFrameShape(QFrame::StyledPanel);
  LayOut(generation_, spacing, spacing,
         {{Of(Button::CommandSaw), 0, 0},
          {Of(CheckBox::Rotational), 0, 1},
          {Of(CheckBox::MakeRegular), 1, 1},
          {Of(Button::CommandGo), 2, 0},
          {Of(CheckBox::CheckVisualize), 2, 1},
          {Of(Button::CommandConceal), 3, 0},
          {Of(CheckBox::ConcealRotational), 3, 1},
          {Of(Button::CommandSolve), 4, 0}})
      ->setColumnStretch(1, 1);
  LayOut(solveButtons_, spacing, spacing,
         {{Of(Button::CommandHint), 0, 0, 2},
          {textHint_, 1, 0, 2},
          {Of(CheckBox::CheckPencilmarks), 2, 0, 2},
          {undo_, 3, 0},
          {redo_, 3, 1},
          {Of(Button::CommandRestart), 4, 0},
          {Of(Button::CommandSolution), 4, 1},
          {Of(Button::CommandQuit), 5, 0, 2}});
  LayOut(this, 0, spacing,
         {{generation_, 0, 0, 2},
          {solveButtons_, 1, 0, 2},
          {help_, 3, 0},
          {Of(Button::CommandExit), 3, 1}})
      ->setRowStretch(2, 1);
  PlaceDigitBar();
  textHint_->Fit(hintFont, kHintWidthBeside);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void ControlPanel::GrowHint(double cellSide, QSize spare) {
  QFont hintFont = Enlarged(font());
  const double usual = hintFont.pointSizeF();
  if (usual <= 0) return;
  textHint_->Fit(hintFont, kHintWidthBeside);
  const double points = kHintShareOfCell * cellSide * 72 / logicalDpiY();
  const double wanted = std::clamp(points, usual, std::max(usual, kMostHintPoints)) / usual;
  const double growth =
      std::min({wanted, 1.0 + spare.width() / static_cast<double>(kHintWidthBeside),
                1.0 + spare.height() / static_cast<double>(textHint_->minimumHeight())});
  if (growth > 1) {
    hintFont.setPointSizeF(growth * usual);
    textHint_->Fit(hintFont, qFloor(growth * kHintWidthBeside));
  }
  // A frame that is hidden does not tell it by itself, nor a panel whose window is being resized.
  solveButtons_->updateGeometry();
  updateGeometry();
}

void ControlPanel::ArrangeBelow() {
  generation_->setFrameShape(QFrame::NoFrame);
  LayOut(generation_, 0, kTightSpacing,
         {{Of(Button::CommandSaw), 0, 0},
          {Of(Button::CommandGo), 0, 1},
          {Of(Button::CommandConceal), 0, 2},
          {Of(Button::CommandSolve), 0, 3},
          {help_, 0, 4},
          {Of(Button::CommandExit), 0, 5},
          {Of(CheckBox::Rotational), 1, 0, 3},
          {Of(CheckBox::CheckVisualize), 1, 3, 3},
          {Of(CheckBox::MakeRegular), 2, 0, 3},
          {Of(CheckBox::ConcealRotational), 2, 3, 3}});
  LayOut(solveButtons_, kTightSpacing, kTightSpacing,
         {{Of(Button::CommandHint), 0, 0},
          {Of(Button::CommandRestart), 0, 1},
          {Of(Button::CommandSolution), 1, 0},
          {Of(Button::CommandQuit), 1, 1},
          {Of(CheckBox::CheckPencilmarks), 2, 0, 2},
          {textHint_, 0, 2, 1, 3}})
      ->setColumnStretch(2, 1);
  LayOut(this, 0, kTightSpacing, {{generation_, 0, 0}, {solveButtons_, 1, 0}});
  textHint_->Fit(font(), kHintWidthBelow);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

}  // namespace tessel
