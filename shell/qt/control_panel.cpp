#include "shell/qt/control_panel.h"

#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QShortcut>

#include "shell/qt/hint_label.h"
#include "shell/stage.h"

namespace tessel {

namespace {

// For Shift+F1; the tooltip leaves the keys out.
QString WithKeys(const char* tip, const char* keys) {
  return QString::fromUtf8(tip) + "\n" + QKeySequence(keys).toString(QKeySequence::NativeText);
}

void Describe(QAbstractButton& control, const char* tip, const char* keys) {
  control.setToolTip(QString::fromUtf8(tip));
  control.setWhatsThis(WithKeys(tip, keys));
}

// A disabled button also says what it waits for.
QString TipOf(const Form& form, Button button) {
  const ButtonTraits& traits = TraitsOf(button);
  const QString tip = QString::fromUtf8(traits.tip);
  if (form.Of(button).enabled) return tip;
  const auto running = form.Running();
  const QString wait = !running                         ? traits.needs
                       : *running == Button::CommandSaw ? "Sawing goes on"
                                                        : "Press Stop first";
  return tip + "\n" + wait;
}

// A shortcut object and not the button's own: that one is lost with every change of caption.
void ClickOn(QAbstractButton* control, const char* keys) {
  auto* shortcut = new QShortcut(QKeySequence(keys), control->window());
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, control, &QAbstractButton::click);
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
  textHint_ = new HintLabel(solveButtons_);
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
    Describe(*button, traits.tip, traits.keys);
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
    Describe(*box, traits.tip, traits.keys);
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
  Describe(*help_, "How to make and play a puzzle", "F1");
  connect(help_, &QPushButton::clicked, this, &ControlPanel::HelpClicked);
  ClickOn(help_, "F1");
}

// The mouse leaves the focus on the board.
QPushButton* ControlPanel::MakeStepButton(const char* name, const char* tip, const char* keys) {
  auto* button = new QPushButton(name, solveButtons_);
  button->setObjectName(name);
  Describe(*button, tip, keys);
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
  Of(button)->setToolTip(TipOf(form, button));
  const Accent accent = button == form.Running()   ? Accent::kRunning
                        : button == NextStep(form) ? Accent::kNext
                                                   : Accent::kNone;
  SetAccent(button, accent);
}

void ControlPanel::SetAccent(Button button, Accent accent) {
  Accent& shown = accents_[tessel::IndexOf(button)];
  if (accent == shown) return;
  shown = accent;
  Of(button)->setPalette(AccentPalette(accent, palette()));
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
