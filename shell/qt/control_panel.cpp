#include "shell/qt/control_panel.h"

#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QShortcut>
#include <algorithm>
#include <vector>

namespace tessel {

namespace {

// About as long as a hint can become.
constexpr char kLongHint[] =
    "The cells in column 8 containing candidate 8 all belong to the same cage, therefore that "
    "candidate can be removed from the other cells of that cage";
constexpr int kHintPadding = 5;
constexpr double kHintFontShare = 1.15;  // of the other controls' font, where there is room
// The narrowest hint box of each arrangement.
constexpr int kHintWidthBeside = 230;
constexpr int kHintWidthBelow = 270;
constexpr int kWideSpacing = 8;
constexpr int kTightSpacing = 5;

QString WithKeys(const char* tip, const char* keys) {
  return QString::fromUtf8(tip) + "\n" + QKeySequence(keys).toString(QKeySequence::NativeText);
}

// A shortcut object and not the button's own: that one is lost with every change of caption.
void ClickOn(QAbstractButton* control, const char* keys) {
  auto* shortcut = new QShortcut(QKeySequence(keys), control->window());
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, control, &QAbstractButton::click);
}

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

// Gives the hint that font, and the height that a long hint takes in it.
void ResizeHintLabel(QLabel& label, const QFont& font, int width) {
  label.setFont(font);
  const QRect room(0, 0, width - 2 * kHintPadding, QWIDGETSIZE_MAX);
  const QRect text = QFontMetrics(font).boundingRect(room, Qt::TextWordWrap, kLongHint);
  label.setFixedHeight(text.height() + 3 * kHintPadding);
  // A label would ask for a width that depends on its text, and the board beside it would move.
  label.setMinimumWidth(width);
  label.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QFont Enlarged(QFont font) {
  if (font.pointSizeF() > 0) font.setPointSizeF(kHintFontShare * font.pointSizeF());
  return font;
}

}  // namespace

ControlPanel::ControlPanel(QWidget* parent) : QWidget(parent) {
  generation_ = new QFrame(this);
  generation_->setAccessibleName("Generation");
  solveButtons_ = new QFrame(this);
  solveButtons_->setObjectName("SolveButtons");
  solveButtons_->setAccessibleName("Solving");
  solveButtons_->setFrameShape(QFrame::StyledPanel);
  QSizePolicy keepsPlace = solveButtons_->sizePolicy();
  keepsPlace.setRetainSizeWhenHidden(true);
  solveButtons_->setSizePolicy(keepsPlace);
  textHint_ = new QLabel(solveButtons_);
  textHint_->setObjectName("TextHint");
  textHint_->setTextFormat(Qt::PlainText);
  textHint_->setWordWrap(true);
  textHint_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  textHint_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  textHint_->setBackgroundRole(QPalette::Base);
  textHint_->setForegroundRole(QPalette::Text);
  textHint_->setAutoFillBackground(true);
  textHint_->setMargin(kHintPadding);
  MakeButtons();
  MakeBoxes();
  MakeHelp();
  undo_ = MakeStepButton("Undo", "Take the last move back", "Ctrl+Z");
  redo_ = MakeStepButton("Redo", "Make the move again", "Ctrl+Shift+Z");
  Measure();
}

void ControlPanel::MakeButtons() {
  for (const ButtonTraits& traits : kButtonTable) {
    if (traits.group == ControlGroup::kNotShown) continue;
    auto* button = new QPushButton(FrameOf(traits.group));
    button->setObjectName(traits.name);
    button->setToolTip(WithKeys(traits.tip, traits.keys));
    connect(button, &QPushButton::clicked, this,
            [this, which = traits.button] { emit ButtonClicked(which); });
    ClickOn(button, traits.keys);
    buttons_[tessel::IndexOf(traits.button)] = button;
  }
}

void ControlPanel::MakeBoxes() {
  for (const CheckBoxTraits& traits : kCheckBoxTable) {
    auto* box = new QCheckBox(QString::fromUtf8(traits.caption), FrameOf(traits.group));
    box->setObjectName(traits.name);
    box->setToolTip(WithKeys(traits.tip, traits.keys));
    connect(box, &QCheckBox::clicked, this, [this, which = traits.box] { emit BoxClicked(which); });
    ClickOn(box, traits.keys);
    boxes_[tessel::IndexOf(traits.box)] = box;
  }
}

QFrame* ControlPanel::FrameOf(ControlGroup group) const {
  return group == ControlGroup::kSolving ? solveButtons_ : generation_;
}

void ControlPanel::MakeHelp() {
  help_ = new QPushButton("Help", this);
  help_->setObjectName("Help");
  help_->setToolTip(WithKeys("How to make and play a puzzle", "F1"));
  connect(help_, &QPushButton::clicked, this, &ControlPanel::HelpClicked);
  ClickOn(help_, "F1");
}

// The mouse leaves the focus on the board.
QPushButton* ControlPanel::MakeStepButton(const char* name, const char* tip, const char* keys) {
  auto* button = new QPushButton(name, solveButtons_);
  button->setObjectName(name);
  button->setToolTip(WithKeys(tip, keys));
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

QList<QWidget*> ControlPanel::GenerationControls() const {
  return {Of(Button::CommandSaw),          Of(CheckBox::Rotational),     Of(CheckBox::MakeRegular),
          Of(Button::CommandGo),           Of(CheckBox::CheckVisualize), Of(Button::CommandConceal),
          Of(CheckBox::ConcealRotational), Of(Button::CommandSolve)};
}

QList<QWidget*> ControlPanel::SolveControls() const {
  return {Of(Button::CommandHint),
          Of(CheckBox::CheckPencilmarks),
          undo_,
          redo_,
          Of(Button::CommandRestart),
          Of(Button::CommandSolution),
          Of(Button::CommandQuit),
          help_,
          Of(Button::CommandExit)};
}

void ControlPanel::Show(const Form& form) {
  for (const ButtonTraits& traits : kButtonTable) {
    if (traits.group != ControlGroup::kNotShown) ShowButton(form, traits.button);
  }
  for (const CheckBoxTraits& traits : kCheckBoxTable) {
    Of(traits.box)->setChecked(form.Checked(traits.box));
  }
  textHint_->setText(QString::fromStdString(form.TextHint()));
  textHint_->setAccessibleName("Hint text: " + textHint_->text());
  solveButtons_->setVisible(form.SolveButtonsVisible());
  solveButtons_->setEnabled(form.SolveButtonsEnabled());
}

void ControlPanel::ShowButton(const Form& form, Button button) {
  Of(button)->setText(QString::fromStdString(form.Of(button).caption));
  Of(button)->setEnabled(form.Of(button).enabled);
  MarkRunning(button, button == form.Running());
}

void ControlPanel::MarkRunning(Button button, bool running) {
  if (running == (running_ == button)) return;
  running_ = running ? std::optional(button) : std::nullopt;
  QPalette colours;
  if (running) {
    colours.setColor(QPalette::Button, palette().color(QPalette::Highlight));
    colours.setColor(QPalette::ButtonText, palette().color(QPalette::HighlightedText));
  }
  Of(button)->setPalette(colours);
}

void ControlPanel::Measure() {
  HideDigitBar();
  for (const Arrangement arrangement : {Arrangement::kBelow, Arrangement::kBeside}) {
    arrangement_ = arrangement == Arrangement::kBelow ? Arrangement::kBeside : Arrangement::kBelow;
    Arrange(arrangement);
    sizes_[IndexOf(arrangement)] = layout()->totalSizeHint();
  }
}

void ControlPanel::Arrange(Arrangement arrangement) {
  if (arrangement == arrangement_ && layout() != nullptr) return;
  arrangement_ = arrangement;
  for (QPushButton* step : {undo_, redo_}) step->setVisible(arrangement == Arrangement::kBeside);
  if (arrangement == Arrangement::kBeside) {
    ArrangeBeside();
  } else {
    ArrangeBelow();
  }
}

void ControlPanel::ArrangeBeside() {
  generation_->setFrameShape(QFrame::StyledPanel);
  LayOut(generation_, kWideSpacing, kWideSpacing,
         {{Of(Button::CommandSaw), 0, 0},
          {Of(CheckBox::Rotational), 0, 1},
          {Of(CheckBox::MakeRegular), 1, 1},
          {Of(Button::CommandGo), 2, 0},
          {Of(CheckBox::CheckVisualize), 2, 1},
          {Of(Button::CommandConceal), 3, 0},
          {Of(CheckBox::ConcealRotational), 3, 1},
          {Of(Button::CommandSolve), 4, 0}})
      ->setColumnStretch(1, 1);
  LayOut(solveButtons_, kWideSpacing, kWideSpacing,
         {{Of(Button::CommandHint), 0, 0, 2},
          {textHint_, 1, 0, 2},
          {Of(CheckBox::CheckPencilmarks), 2, 0, 2},
          {undo_, 3, 0},
          {redo_, 3, 1},
          {Of(Button::CommandRestart), 4, 0},
          {Of(Button::CommandSolution), 4, 1},
          {Of(Button::CommandQuit), 5, 0, 2}});
  LayOut(this, 0, kWideSpacing,
         {{generation_, 0, 0, 2},
          {solveButtons_, 1, 0, 2},
          {help_, 3, 0},
          {Of(Button::CommandExit), 3, 1}})
      ->setRowStretch(2, 1);
  PlaceDigitBar();
  ResizeHintLabel(*textHint_, Enlarged(font()), kHintWidthBeside);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
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
  ResizeHintLabel(*textHint_, font(), kHintWidthBelow);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ControlPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  // Later: the controls in the panel have not yet heard of it.
  QMetaObject::invokeMethod(
      this,
      [this] {
        Measure();
        emit RoomChanged();
      },
      Qt::QueuedConnection);
}

}  // namespace tessel
