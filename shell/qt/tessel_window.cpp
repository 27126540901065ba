#include "shell/qt/tessel_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

#include "shell/board_clicks.h"
#include "shell/qt/app_icon.h"
#include "shell/qt/screen_fit.h"
#include "shell/qt/view_actions.h"

namespace tessel {

namespace {

constexpr QSize kMinWindow(480, 542);
constexpr QSize kDefaultWindow(900, 662);

bool CanBeStopped(Button button) {
  return button == Button::CommandGo || button == Button::CommandConceal;
}

}  // namespace

TesselWindow::TesselWindow(const QString& preferencesFile, FrameClock& clock)
    : preferences_(preferencesFile),
      menu_(new MenuBar(this)),
      board_(new BoardWidget(this)),
      panel_(new ControlPanel(this)),
      foot_(new FootLine(this)),
      grade_(new PuzzleGrade(this)),
      layout_(*this, *menu_, *board_, *panel_, *foot_),
      show_(clock),
      lateStops_(clock) {
  setWindowIcon(AppIcon());
  setMinimumSize(kMinWindow);
  // Styles that show the focus only after a Tab key shall always show it.
  connect(qApp, &QApplication::focusChanged, this,
          [this] { setAttribute(Qt::WA_KeyboardFocusChange); });
  SetTabOrder();
  resize(kDefaultWindow);
  connect(panel_, &ControlPanel::ButtonClicked, this, &TesselWindow::Press);
  connect(panel_, &ControlPanel::BoxClicked, this, [this](CheckBox box) {
    logic_->Toggle(box);
    changedControls_ = true;  // the box toggled itself, whatever the logic made of it
    Sync();
  });
  connect(panel_, &ControlPanel::HelpClicked, this, [this] { helpActions_->OpenHelp(); });
  connect(panel_, &ControlPanel::RoomChanged, this, [this] { layout_.Arrange(); });
  connect(panel_, &ControlPanel::DigitChosen, board_, &BoardWidget::RingDigit);
  connect(board_, &BoardWidget::CellReleased, this,
          [this](int cell, MouseButton button, double x, double y) {
            const bool acted = logic_->Grid_MouseUp(cell, button, 0, x, y);
            if (!acted && button == MouseButton::kLeft && IsBoardOpen(logic_->Display()))
              board_->Refuse();
            Sync();
          });
  connect(grade_, &PuzzleGrade::Known, this, &TesselWindow::ShowFootLine);
}

void TesselWindow::SetTabOrder() {
  const QList<QWidget*> order = panel_->GenerationControls() << board_ << panel_->SolveControls();
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void TesselWindow::Attach(Tessel_Main& logic) {
  logic_ = &logic;
  BuildMenus();
  board_->SetSource(logic.Display(), logic.State());
  changedControls_ = true;
  Sync();
  panel_->Of(Button::CommandSaw)->setFocus(Qt::TabFocusReason);
}

void TesselWindow::BuildMenus() {
  menu_->SetOpen([this] { return logic_->IsIdle(); });
  menu_->Connect(
      Entry::kExit, [this] { panel_->Of(Button::CommandExit)->click(); },
      [this] { return logic_->AcceptsInput(Button::CommandExit); });
  ConnectViewMenu(*menu_, {*this, *board_, *panel_, logic_->Display(), preferences_, sounds_});
  gameActions_.emplace(*menu_, *panel_, *board_, *logic_, [this] { Sync(); });
  puzzleActions_.emplace(
      *menu_, *this, *logic_, preferences_, [this] { Sync(); },
      [this] { panel_->Of(Button::CommandSolve)->click(); });
  helpActions_.emplace(*menu_, *this, *logic_);
}

void TesselWindow::Show() {
  FitOnScreen(*this);
  show();
}

std::int32_t TesselWindow::WindowHandle() {
  return static_cast<std::int32_t>(winId());
}

void TesselWindow::PumpEvents() {
  if (changedCells_.any() && Visualises()) return ShowStep();
  if (pump_.Due()) PumpEventsNow();
}

bool TesselWindow::Visualises() const {
  return logic_->Display().Running() && logic_->Display().Checked(CheckBox::CheckVisualize);
}

// Goes on answering, so that Stop ends the show at once.
void TesselWindow::ShowStep() {
  const auto goesOn = [this] {
    QCoreApplication::processEvents();
    return Visualises() && !logic_->State().StopRequested;
  };
  show_.Step(
      PaceOf(*logic_->Display().Running()), [this] { PumpEventsNow(); }, goesOn);
}

void TesselWindow::PumpEventsNow() {
  Sync();
  QCoreApplication::processEvents();
  pump_.Done();
}

bool TesselWindow::AskYesNo(const std::string& question, const std::string& title) {
  Sync();
  QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(question), QMessageBox::Yes | QMessageBox::No, this);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void TesselWindow::Beep() {
  if (WantsSounds(preferences_)) QApplication::beep();
}

// Not quit(): that would ask the window to close, and the window would ask the player again.
void TesselWindow::EndProgram() {
  QCoreApplication::exit(0);
}

void TesselWindow::FormChanged(FormPart part, int index) {
  switch (part) {
    case FormPart::kCell:
      changedCells_.set(static_cast<std::size_t>(index));
      return;
    case FormPart::kRowCaption:
    case FormPart::kColumnCaption:
      changedCaptions_ = true;
      return;
    case FormPart::kButton:
    case FormPart::kCheckBox:
    case FormPart::kWindowCaption:
    case FormPart::kSolveButtons:
    case FormPart::kHintText:
    case FormPart::kText1:
    case FormPart::kNotice:
    case FormPart::kNews:
      changedControls_ = true;
      return;
  }
}

void TesselWindow::Sync() {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (changedCells_.test(static_cast<std::size_t>(cell))) board_->UpdateCell(cell);
  }
  changedCells_.reset();
  if (std::exchange(changedCaptions_, false)) board_->UpdateCaptions();
  if (std::exchange(changedControls_, false)) SyncControls();
  board_->UpdateTarget();
  panel_->CountDigits(logic_->Display());
  menu_->Update();
  ShowFootLine();
}

void TesselWindow::ShowFootLine() {
  const Form& form = logic_->Display();
  const bool settled = HasPuzzle(form) && !form.Running();
  if (settled) grade_->Follow(logic_->State().SavedPuzzle);
  foot_->Show(StatusLineOf(form, logic_->State(), grade_->Level()));
  board_->ShowFinished(ShowsFullBoard(form, logic_->State()));
}

// A disabled or hidden control hands the focus on: to the running command's "Stop", or to the
// board. Qt would give it to a neighbour that the player did not choose, and where a question has
// just been answered only later, when the window becomes active again.
void TesselWindow::SyncControls() {
  const Form& form = logic_->Display();
  QWidget* const focused = focusWidget();
  panel_->Show(form);
  const bool lost = focused != nullptr && !(focused->isVisible() && focused->isEnabled());
  if (lost || (focused != nullptr && focused != focusWidget())) {
    QWidget* const stop = form.Running() ? panel_->Of(*form.Running()) : nullptr;
    (stop != nullptr && stop->isEnabled() ? stop : board_)->setFocus(Qt::TabFocusReason);
  }
  board_->update();  // its outlines tell whether clicks act
  setWindowTitle(QString::fromStdString(form.Caption()));
}

void TesselWindow::Press(Button button) {
  if (lateStops_.Ignores(button)) return;
  QPushButton* const pressed = panel_->Of(button);
  const bool hadFocus = pressed->hasFocus();
  const bool starts = TraitsOf(button).isLongWork && !logic_->Display().Running();
  if (starts) pump_.Done();  // the press itself was delivered just now
  if (starts) show_.Begin();
  const bool wasSolving = logic_->Display().SolveButtonsVisible();
  logic_->Click(button);
  if (starts && CanBeStopped(button)) lateStops_.ReadStop(button);
  changedControls_ = true;
  Sync();
  if (hadFocus && board_->hasFocus() && pressed->isEnabled() && pressed->isVisible()) {
    pressed->setFocus(Qt::TabFocusReason);
  }
  if (!wasSolving && logic_->Display().SolveButtonsVisible()) board_->setFocus(Qt::TabFocusReason);
}

void TesselWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(logic_ == nullptr || logic_->Form_QueryUnload());
  menu_->Update();
}

// Enter presses the focused button, as Space does by itself. A held key presses it once: the second
// press would stop what the first one started.
void TesselWindow::keyPressEvent(QKeyEvent* event) {
  auto* const button = qobject_cast<QPushButton*>(focusWidget());
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter || button == nullptr || event->isAutoRepeat()) {
    QWidget::keyPressEvent(event);
    return;
  }
  button->click();
}

void TesselWindow::resizeEvent(QResizeEvent* event) {
  layout_.Arrange();
  QWidget::resizeEvent(event);
}

}  // namespace tessel
