#include "shell/qt/tessel_window.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <thread>

#include "shell/qt/app_icon.h"
#include "shell/qt/help_dialog.h"
#include "shell/qt/view_actions.h"

namespace tessel {

namespace {

constexpr QSize kMinWindow(480, 542);
constexpr QSize kDefaultWindow(900, 662);
constexpr int kWidthForNotice = 860;  // a path and the system's words fit into one line
constexpr int kWideMargin = 8;
constexpr int kTightMargin = 4;  // where the panel takes height from the board

// The least time that a step of visualised work stays on the screen; 300 steps a second are fast
// and can still be followed.
constexpr std::chrono::milliseconds kFrameTime{3};

}  // namespace

TesselWindow::TesselWindow(const QString& preferencesFile)
    : preferences_(preferencesFile),
      menu_(new MenuBar(this)),
      board_(new BoardWidget(this)),
      panel_(new ControlPanel(this)),
      notice_(new QLabel(this)) {
  setWindowIcon(AppIcon());
  setMinimumSize(kMinWindow);
  // Styles that show the focus only after a Tab key shall always show it.
  connect(qApp, &QApplication::focusChanged, this,
          [this] { setAttribute(Qt::WA_KeyboardFocusChange); });
  notice_->setObjectName("Notice");
  notice_->setTextFormat(Qt::PlainText);
  notice_->setWordWrap(true);
  notice_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  BuildLayout();
  connect(panel_, &ControlPanel::ButtonClicked, this, &TesselWindow::Press);
  connect(panel_, &ControlPanel::BoxClicked, this, [this](CheckBox box) {
    logic_->Toggle(box);
    changedControls_ = true;  // the box toggled itself, whatever the logic made of it
    Sync();
  });
  connect(panel_, &ControlPanel::HelpClicked, this, &TesselWindow::OpenHelp);
  connect(panel_, &ControlPanel::RoomChanged, this, &TesselWindow::ArrangePanel);
  connect(panel_, &ControlPanel::DigitChosen, board_, &BoardWidget::RingDigit);
  connect(board_, &BoardWidget::CellReleased, this,
          [this](int cell, MouseButton button, double x, double y) {
            logic_->Grid_MouseUp(cell, button, 0, x, y);
            Sync();
          });
}

void TesselWindow::BuildLayout() {
  auto* column = new QVBoxLayout(this);
  column->setMenuBar(menu_);
  boardAndPanel_ = new QBoxLayout(QBoxLayout::LeftToRight);
  boardAndPanel_->addWidget(board_, 1);
  boardAndPanel_->addWidget(panel_);
  column->addLayout(boardAndPanel_, 1);
  column->addWidget(notice_);
  const QList<QWidget*> order = panel_->GenerationControls() << board_ << panel_->SolveControls();
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
  resize(kDefaultWindow);
}

void TesselWindow::Attach(Tessel_Main& logic) {
  logic_ = &logic;
  BuildMenus();
  board_->SetSource(logic.form(), logic.state());
  changedControls_ = true;
  Sync();
  panel_->Of(Button::CommandSaw)->setFocus(Qt::TabFocusReason);
}

void TesselWindow::BuildMenus() {
  menu_->SetOpen([this] { return logic_->IsIdle(); });
  menu_->Connect(
      Entry::kExit, [this] { panel_->Of(Button::CommandExit)->click(); },
      [this] { return logic_->AcceptsInput(Button::CommandExit); });
  menu_->Connect(Entry::kHelp, [this] { OpenHelp(); });
  ConnectViewMenu(*menu_, {*this, *board_, *panel_, logic_->form(), preferences_, sounds_});
  gameActions_.emplace(*menu_, *panel_, *logic_, [this] { Sync(); });
  puzzleActions_.emplace(
      *menu_, *this, *logic_, [this] { Sync(); },
      [this] { panel_->Of(Button::CommandSolve)->click(); });
}

void TesselWindow::Show() {
  show();
}

std::int32_t TesselWindow::WindowHandle() {
  return static_cast<std::int32_t>(winId());
}

void TesselWindow::PumpEvents() {
  const bool drawn = changedCells_.any() && logic_->form().Checked(CheckBox::CheckVisualize);
  if (drawn) pump_.WantFrame();
  if (!pump_.Due()) return;
  const auto frameEnd = EventPump::Clock::now() + kFrameTime;
  Sync();
  QCoreApplication::processEvents();
  if (drawn) std::this_thread::sleep_until(frameEnd);
  pump_.Done();
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
  panel_->CountDigits(logic_->form());
  menu_->Update();
}

// A disabled control hands the focus on: to the running command's "Stop", or to the board. Qt would
// give it to a neighbour that the player did not choose.
void TesselWindow::SyncControls() {
  const Form& form = logic_->form();
  QWidget* const focused = focusWidget();
  panel_->Show(form);
  if (focused != nullptr && focused != focusWidget()) {
    QWidget* const stop = form.Running() ? panel_->Of(*form.Running()) : nullptr;
    (stop != nullptr && stop->isEnabled() ? stop : board_)->setFocus(Qt::TabFocusReason);
  }
  board_->update();  // its outlines tell whether clicks act
  setWindowTitle(QString::fromStdString(form.Caption()));
  notice_->setText(QString::fromStdString(form.Notice()));
  notice_->setToolTip(notice_->text());
}

void TesselWindow::Press(Button button) {
  QPushButton* const pressed = panel_->Of(button);
  const bool hadFocus = pressed->hasFocus();
  const bool starts = TraitsOf(button).isLongWork && !logic_->form().Running();
  if (starts) pump_.Done();  // the press itself was delivered just now
  const bool wasSolving = logic_->form().SolveButtonsVisible();
  logic_->Click(button);
  changedControls_ = true;
  Sync();
  if (hadFocus && board_->hasFocus() && pressed->isEnabled() && pressed->isVisible()) {
    pressed->setFocus(Qt::TabFocusReason);
  }
  if (!wasSolving && logic_->form().SolveButtonsVisible()) board_->setFocus(Qt::TabFocusReason);
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
  ArrangePanel();
  QWidget::resizeEvent(event);
}

// Whichever arrangement leaves the larger board.
void TesselWindow::ArrangePanel() {
  using Arrangement = ControlPanel::Arrangement;
  const QSize room = size() - QSize(0, menu_->sizeHint().height());
  const QSize beside = room - QSize(panel_->SizeFor(Arrangement::kBeside).width(), 0);
  const QSize below = room - QSize(0, panel_->SizeFor(Arrangement::kBelow).height());
  const bool isBeside =
      std::min(beside.width(), beside.height()) >= std::min(below.width(), below.height());
  panel_->Arrange(isBeside ? Arrangement::kBeside : Arrangement::kBelow);
  boardAndPanel_->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  const int margin = isBeside ? kWideMargin : kTightMargin;
  layout()->setContentsMargins(margin, margin, margin, margin);
  layout()->setSpacing(margin);
  boardAndPanel_->setSpacing(margin);
  const int lines = width() < kWidthForNotice ? 2 : 1;
  notice_->setFixedHeight(lines * notice_->fontMetrics().lineSpacing());
}

void TesselWindow::OpenHelp() {
  if (help_ == nullptr) help_ = new HelpDialog(this);
  help_->show();
  help_->raise();
  help_->activateWindow();
}

}  // namespace tessel
