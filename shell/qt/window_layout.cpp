#include "shell/qt/window_layout.h"

#include <QBoxLayout>
#include <algorithm>

#include "shell/qt/board_widget.h"
#include "shell/qt/foot_line.h"
#include "shell/qt/menu_bar.h"

namespace tessel {

namespace {

constexpr int kWidthForFootLine = 860;  // what it tells fits into one line
constexpr int kWideMargin = 8;
constexpr int kTightMargin = 4;        // where the panel takes height from the board
constexpr double kCellsPerSide = 9.8;  // of the board with its captions

int SideOf(QSize area) {
  return std::min(area.width(), area.height());
}

}  // namespace

WindowLayout::WindowLayout(QWidget& window, MenuBar& menu, BoardWidget& board, ControlPanel& panel,
                           FootLine& foot)
    : window_(window),
      menu_(menu),
      panel_(panel),
      foot_(foot),
      boardAndPanel_(new QBoxLayout(QBoxLayout::LeftToRight)) {
  auto* column = new QVBoxLayout(&window);
  column->setMenuBar(&menu);
  boardAndPanel_->addWidget(&board, 1);
  boardAndPanel_->addWidget(&panel);
  column->addLayout(boardAndPanel_, 1);
  column->addWidget(&foot);
}

void WindowLayout::Arrange() {
  foot_.SetLines(window_.width() < kWidthForFootLine ? 2 : 1);
  const QSize room = Room();
  const Arrangement best = BestFor(room);
  panel_.Arrange(best);
  const bool isBelow = best == Arrangement::kBelow;
  boardAndPanel_->setDirection(isBelow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  const int margin = isBelow ? kTightMargin : kWideMargin;
  window_.layout()->setContentsMargins(margin, margin, margin, margin);
  window_.layout()->setSpacing(margin);
  boardAndPanel_->setSpacing(margin);
  const int spare = UseSpareRoom(room, best);
  boardAndPanel_->setContentsMargins(spare / 2, 0, spare - spare / 2, 0);
}

QSize WindowLayout::Room() const {
  const int lines = menu_.sizeHint().height() + foot_.height();
  return window_.size() - QSize(2 * kWideMargin, 3 * kWideMargin + lines);
}

WindowLayout::Arrangement WindowLayout::BestFor(QSize room) const {
  const int below = SideOf(room - QSize(0, panel_.SizeFor(Arrangement::kBelow).height()));
  for (const Arrangement arrangement : {Arrangement::kBeside, Arrangement::kTight}) {
    const QSize panel = panel_.SizeFor(arrangement);
    const int beside = SideOf(room - QSize(panel.width() + kWideMargin, 0));
    if (panel.height() <= room.height() && beside >= below) return arrangement;
  }
  return Arrangement::kBelow;
}

// In a wide window the hint grows with the board, and the width that is left keeps board and panel
// together in the middle. Returns that width.
int WindowLayout::UseSpareRoom(QSize room, Arrangement arrangement) {
  if (arrangement == Arrangement::kBelow) return 0;
  const QSize panel = panel_.SizeFor(arrangement);
  const int boardWidth = room.width() - panel.width() - kWideMargin;
  const int side = std::min(boardWidth, room.height());
  if (arrangement == Arrangement::kBeside) {
    panel_.GrowHint(side / kCellsPerSide, {boardWidth - side, room.height() - panel.height()});
  }
  const int grown = panel_.layout()->totalSizeHint().width() - panel.width();
  return std::max(0, boardWidth - side - grown);
}

}  // namespace tessel
