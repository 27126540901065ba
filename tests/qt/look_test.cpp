// The window as it is seen, compared with what the form says.
#include <gtest/gtest.h>

#include "tests/qt/painted_board.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

QImage Seen(QWidget& widget) {
  QCoreApplication::processEvents();
  return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The board's part of the window, and the form painted anew in the same place.
void ExpectBoardShowsTheForm(WindowProgram& program) {
  program.Push("CommandSaw")->setFocus();
  BoardWidget& board = *program.Board();
  const QImage seen = Seen(board);
  const BoardGeometry geometry = board.Geometry();
  QImage expected = seen;
  QPainter painter(&expected);
  painter.scale(1 / board.devicePixelRatioF(), 1 / board.devicePixelRatioF());
  BoardPainter(program.Display(), program.State(), geometry, board.font())
      .Paint(painter, geometry.BoardRect(), {});
  EXPECT_EQ(seen.copy(geometry.BoardRect()), expected.copy(geometry.BoardRect()));
}

TEST(Look, BoardShowsTheFormInEveryStageAtEverySize) {
  for (const QSize size : {QSize(480, 542), QSize(901, 643), QSize(1600, 1200)}) {
    WindowProgram program(size);
    ExpectBoardShowsTheForm(program);
    for (const char* command : {"CommandSaw", "CommandGo", "CommandConceal", "CommandSolve",
                                "CommandHint", "CommandSolution", "CommandRestart"}) {
      program.Click(command);
      ExpectBoardShowsTheForm(program);
    }
  }
}

TEST(Look, UpdatesLeaveNoTraces) {
  WindowProgram program;
  program.OpenPuzzle();
  program.window.show();
  QImage updated(program.window.size() * program.window.devicePixelRatioF(), QImage::Format_RGB32);
  int events = 0;
  for (int cell = 0; cell < kCellCount && events < 30; ++cell) {
    if (program.Display().Cell(cell).text != 0) continue;
    program.ClickMark(cell, program.SolutionAt(cell));
    ++events;
  }
  ExpectBoardShowsTheForm(program);
}

// In the window, where the board's corner may lie inside a device pixel.
TEST(Look, BordersAreSharpWhereverTheBoardLies) {
  for (const QSize size : {QSize(733, 601), QSize(734, 602), QSize(515, 801)}) {
    WindowProgram program(size);
    program.Click("CommandSaw");
    program.Push("CommandSaw")->setFocus();
    BoardWidget& board = *program.Board();
    const QImage seen = Seen(program.window);
    const QPointF corner =
        QPointF(board.mapTo(&program.window, QPoint(0, 0))) * board.devicePixelRatioF();
    const QPoint offset(qCeil(corner.x()), qCeil(corner.y()));
    const BoardGeometry geometry = board.Geometry();
    const int width = geometry.BorderWidth();
    for (int cell = 0; cell < kCellCount - 1; ++cell) {
      const bool border = program.State().CageOfCell[static_cast<std::size_t>(cell)] !=
                          program.State().CageOfCell[static_cast<std::size_t>(cell + 1)];
      if (ColumnOf(cell) == kSide - 1 || !border) continue;
      const QRect right = geometry.CellRect(cell + 1).translated(offset);
      const int y = right.top() + geometry.CellSide() / 2;
      const QRect line(right.left() - width / 2, y, width, 1);
      EXPECT_EQ(CountIn(seen, line, Qt::black), width) << cell;
      EXPECT_NE(seen.pixelColor(line.left() - 1, y), QColor(Qt::black)) << cell;
      EXPECT_NE(seen.pixelColor(line.right() + 1, y), QColor(Qt::black)) << cell;
    }
  }
}

// Sets the desktop's colours and puts the old ones back.
struct Theme {
  explicit Theme(const QPalette& palette) : previous(QApplication::palette()) {
    QApplication::setPalette(palette);
  }
  ~Theme() { QApplication::setPalette(previous); }
  QPalette previous;
};

TEST(Look, CaptionsKeepTheirLightGroundInADarkTheme) {
  const Theme dark(QPalette(QColor(45, 45, 48), QColor(30, 30, 32)));
  WindowProgram program;
  BoardWidget& board = *program.Board();
  const QImage seen = Seen(board);
  const BoardGeometry geometry = board.Geometry();
  for (int line = 0; line < kSide; ++line) {
    for (const QRect& caption : {geometry.RowCaptionRect(line), geometry.ColumnCaptionRect(line)}) {
      const QRect inside = caption.adjusted(1, 1, -1, -1);
      EXPECT_GT(CountIn(seen, inside, Qt::black), 0);
      EXPECT_GT(CountIn(seen, inside, ColourOf(kBoardColour)),
                inside.width() * inside.height() / 3);
    }
  }
  const QImage window = Seen(program.window);
  EXPECT_LT(qGray(window.pixel(2, 2)), 80) << "the window itself is dark";
}

TEST(Look, RunningButtonCanBeReadInADarkTheme) {
  const Theme dark(QPalette(QColor(45, 45, 48), QColor(30, 30, 32)));
  WindowProgram program;
  program.Click("CommandSaw");
  program.ClickBox("CheckVisualize");
  QTimer::singleShot(0, &program.window, [&] {
    const QPalette colours = program.Push("CommandGo")->palette();
    EXPECT_GT(std::abs(qGray(colours.color(QPalette::Button).rgb()) -
                       qGray(colours.color(QPalette::ButtonText).rgb())),
              80);
    program.Click("CommandGo");
  });
  program.Click("CommandGo");
}

TEST(Look, IconHasEverySize) {
  WindowProgram program;
  const QIcon icon = program.window.windowIcon();
  for (const int size : {16, 32, 48, 128}) {
    const QImage image = icon.pixmap(QSize(size, size), 1.0).toImage();
    ASSERT_EQ(image.size(), QSize(size, size));
    EXPECT_GE(ColoursIn(image, image.rect()).size(), 4u) << "three cages and their borders";
  }
}

}  // namespace
}  // namespace tessel
