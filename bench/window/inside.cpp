#include "bench/window/inside.h"

#include <QApplication>
#include <QCheckBox>
#include <QMouseEvent>
#include <QPushButton>
#include <atomic>
#include <thread>

#include "bench/wall_time.h"
#include "shell/qt/work_show.h"

namespace tessel::bench {

bool PaintCount::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::Paint) ++paints_;
  return false;
}

InsideWindow::InsideWindow() : logic_(window_, player_, clock_, random_, folder_.Path().string()) {
  window_.Attach(logic_);
  logic_.Form_Load();
  board_ = &Find<BoardWidget>("Board");
  paints_.emplace(board_);
  while (paints_->Paints() == 0) QCoreApplication::processEvents();
}

template <typename Widget>
Widget& InsideWindow::Find(const char* control) const {
  return *window_.findChild<Widget*>(control);
}

void InsideWindow::Press(const char* button) const {
  Find<QPushButton>(button).click();
}

void InsideWindow::MakePuzzle() const {
  for (const char* button : {"CommandSaw", "CommandGo", "CommandConceal"}) Press(button);
}

// May be called from another thread.
void InsideWindow::PostClick(QWidget& widget, QPoint place, Qt::MouseButton button) const {
  const QPointF global = widget.mapToGlobal(place);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QCoreApplication::postEvent(&widget,
                                new QMouseEvent(type, place, global, button, held, Qt::NoModifier));
  }
}

double InsideWindow::SecondsUntilPainted(int cell, int digit, Qt::MouseButton button) {
  QCoreApplication::processEvents();
  const QPoint place = board_->Geometry().MarkRect(cell, digit).center();
  const long before = paints_->Paints();
  return WallSecondsOf([&] {
    PostClick(*board_, place, button);
    while (paints_->Paints() == before) QCoreApplication::processEvents();
    QGuiApplication::sync();
  });
}

// Places the solution's digit in every empty cell in turn and takes it out again.
Distribution InsideWindow::ClicksToPainted(int clicks) {
  MakePuzzle();
  Press("CommandSolve");
  const PuzzleRecord puzzle = logic_.State().SavedPuzzle;
  std::vector<double> seconds;
  for (int cell = 0; std::ssize(seconds) < clicks; cell = (cell + 1) % kCellCount) {
    if (puzzle.Board[cell] != 0) continue;
    seconds.push_back(SecondsUntilPainted(cell, puzzle.Solution[cell], Qt::LeftButton));
    seconds.push_back(SecondsUntilPainted(cell, puzzle.Solution[cell], Qt::RightButton));
  }
  return Distribution(std::move(seconds));
}

double InsideWindow::ShownSeconds(const char* button) {
  WaitUntilButtonsListen();
  Find<QCheckBox>("CheckVisualize").click();
  const double seconds = WallSecondsOf([&] { Press(button); });
  Find<QCheckBox>("CheckVisualize").click();
  return seconds;
}

void InsideWindow::WaitUntilButtonsListen() {
  std::this_thread::sleep_for(2 * LateStops::kLate);
  QCoreApplication::processEvents();
}

std::optional<double> InsideWindow::StopSeconds() {
  WaitUntilButtonsListen();
  Press("CommandSaw");
  Find<QCheckBox>("CheckVisualize").click();
  auto& button = Find<QPushButton>("CommandGo");
  const QPoint middle = button.rect().center();
  std::atomic<bool> running = true;
  std::optional<double> clicked;
  std::thread user([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    if (!running) return;
    clicked = WallSeconds();
    PostClick(button, middle, Qt::LeftButton);
  });
  button.click();
  const double ended = WallSeconds();
  running = false;
  user.join();
  QCoreApplication::processEvents();
  Find<QCheckBox>("CheckVisualize").click();
  if (!clicked || logic_.Display().Of(Button::CommandConceal).enabled) return std::nullopt;
  return ended - *clicked;
}

}  // namespace tessel::bench
