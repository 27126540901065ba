// What the View menu makes of the window.
#include <gtest/gtest.h>

#include <QAction>

#include "shell/qt/digit_bar.h"
#include "shell/qt/softer_colours.h"
#include "tests/qt/contrast.h"
#include "tests/qt/painted_board.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

constexpr QSize kWide(900, 662);
constexpr QSize kNarrow(480, 700);

class ViewMenu : public testing::Test {
 protected:
  QAction& Of(WindowProgram& program, Entry entry) {
    QCoreApplication::processEvents();
    program.Find<MenuBar>("MenuBar")->Update();  // as when the menu opens
    return *program.Find<MenuBar>("MenuBar")->Of(entry);
  }
  QString PreferencesFile() const {
    return QString::fromStdString((folder_.Path() / "window.ini").string());
  }

 private:
  TemporaryFolder folder_;
};

QImage Seen(WindowProgram& program) {
  QCoreApplication::processEvents();
  return program.Board()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The board as the painter paints it with these highlights and colours.
QImage Painted(WindowProgram& program, const BoardHighlights& highlights,
               const CageColours& colours = kCageColours) {
  BoardWidget& board = *program.Board();
  QImage image = Seen(program);
  QPainter painter(&image);
  painter.scale(1 / board.devicePixelRatioF(), 1 / board.devicePixelRatioF());
  const BoardGeometry geometry = board.Geometry();
  BoardPainter painted(program.Display(), program.State(), geometry, board.font());
  painted.SetCageColours(colours);
  painted.Paint(painter, geometry.BoardRect(), highlights);
  return image;
}

TEST_F(ViewMenu, ChoicesAreKeptAndNothingIsWrittenBefore) {
  const Entry choices[] = {Entry::kSameDigits, Entry::kDigitBar, Entry::kSofterColours,
                           Entry::kSounds};
  {
    WindowProgram program(kWide, 1, PreferencesFile());
    program.OpenPuzzle();
    for (const Entry entry : choices)
      EXPECT_EQ(Of(program, entry).isChecked(), entry == Entry::kSounds);
    EXPECT_FALSE(QFile::exists(PreferencesFile()));
    for (const Entry entry : choices) Of(program, entry).trigger();
  }
  EXPECT_TRUE(QFile::exists(PreferencesFile()));
  WindowProgram program(kWide, 1, PreferencesFile());
  program.OpenPuzzle();
  for (const Entry entry : choices)
    EXPECT_EQ(Of(program, entry).isChecked(), entry != Entry::kSounds);
  EXPECT_TRUE(program.Find<DigitBar>("DigitBar")->isVisible());
  EXPECT_TRUE(program.player.played.empty());
  program.Push("CommandSaw")->setFocus();
  EXPECT_EQ(Seen(program), Painted(program, {}, kSofterCages));
}

TEST_F(ViewMenu, SofterColoursAreCalmAndReadable) {
  for (const Rgb colour : kSofterCages) {
    EXPECT_GE(Contrast(ColourOf(colour), Qt::black), 7.0);
    EXPECT_LE(ColourOf(colour).hslSaturationF(), 0.85);
    EXPECT_NE(colour, kBoardColour);
  }
}

TEST_F(ViewMenu, SofterColoursComeAndGo) {
  WindowProgram program(kWide);
  program.OpenPuzzle();
  program.Push("CommandSaw")->setFocus();
  const QImage before = Seen(program);
  Of(program, Entry::kSofterColours).trigger();
  EXPECT_NE(Seen(program), before);
  EXPECT_EQ(Seen(program), Painted(program, {}, kSofterCages));
  Of(program, Entry::kSofterColours).trigger();
  EXPECT_EQ(Seen(program), before);
}

TEST_F(ViewMenu, SoundsCanBeMutedAtAnyTime) {
  WindowProgram program(kWide);
  program.OpenPuzzle();
  const auto playedByAMove = [&] {
    const std::size_t before = program.player.played.size();
    const int cell = program.FirstEmptyCell();
    program.ClickMark(cell, program.SolutionAt(cell));
    EXPECT_NE(program.Display().Cell(cell).text, 0);
    return program.player.played.size() - before;
  };
  EXPECT_EQ(playedByAMove(), 1u);
  Of(program, Entry::kSounds).trigger();
  EXPECT_EQ(playedByAMove(), 0u);
  Of(program, Entry::kSounds).trigger();
  EXPECT_EQ(playedByAMove(), 1u);
}

TEST_F(ViewMenu, SameDigitsAreRingedInsteadOfRowAndColumn) {
  WindowProgram program(kWide);
  program.OpenPuzzle();
  program.Board()->setFocusPolicy(Qt::NoFocus);
  program.Push("CommandSaw")->setFocus();
  int given = 0;
  while (program.Display().Cell(given).text == 0) ++given;
  const int digit = program.Display().Cell(given).text;
  const int empty = program.FirstEmptyCell();
  int mark = 1;
  while (!program.Display().Mark(empty, mark).visible) ++mark;
  const auto pointAt = [&](int cell, int place) {
    QTest::mouseMove(program.Board(), program.MarkPoint(cell, place));
    return Seen(program);
  };
  EXPECT_EQ(pointAt(given, 5), Painted(program, {.active = given})) << "off at first";
  Of(program, Entry::kSameDigits).trigger();
  EXPECT_EQ(pointAt(given, 5), Painted(program, {.active = given, .digit = digit}));
  EXPECT_EQ(pointAt(empty, mark),
            Painted(program, {.active = empty, .target = TargetMark{empty, mark}, .digit = mark}));
  Of(program, Entry::kSameDigits).trigger();
  EXPECT_EQ(pointAt(given, 5), Painted(program, {.active = given}));
}

// The places of everything in the window but the bar.
std::vector<QRect> Places(WindowProgram& program) {
  QCoreApplication::processEvents();
  std::vector<QRect> places;
  for (QWidget* widget : program.window.findChildren<QWidget*>()) {
    const bool ofBar = widget->objectName().startsWith("Digit");
    if (!ofBar && !widget->isWindow() && widget->isVisible()) {
      places.push_back({widget->mapTo(&program.window, QPoint()), widget->size()});
    }
  }
  return places;
}

TEST_F(ViewMenu, DigitBarTellsWhatIsLeftAndMovesNothing) {
  WindowProgram program(kWide);
  program.OpenPuzzle();
  const auto before = Places(program);
  Of(program, Entry::kDigitBar).trigger();
  EXPECT_EQ(Places(program), before);
  DigitBar& bar = *program.Find<DigitBar>("DigitBar");
  ASSERT_TRUE(bar.isVisible());
  for (int digit = 1; digit <= kSide; ++digit) {
    int left = kSide;
    for (int cell = 0; cell < kCellCount; ++cell)
      left -= program.Display().Cell(cell).text == digit;
    EXPECT_EQ(bar.Of(digit)->accessibleName(), QString("Digit %1, %2 left").arg(digit).arg(left));
  }
  program.Click("CommandSolution");
  EXPECT_EQ(bar.Of(7)->accessibleName(), "Digit 7, none left");
}

TEST_F(ViewMenu, DigitBarRingsItsDigitUntilItIsPressedAgain) {
  WindowProgram program(kWide);
  program.OpenPuzzle();
  Of(program, Entry::kDigitBar).trigger();
  DigitBar& bar = *program.Find<DigitBar>("DigitBar");
  QTest::mouseClick(bar.Of(4), Qt::LeftButton);
  bar.Of(4)->setFocus();
  EXPECT_EQ(Seen(program), Painted(program, {.digit = 4}));
  QTest::mouseClick(bar.Of(6), Qt::LeftButton);
  EXPECT_EQ(Seen(program), Painted(program, {.digit = 6}));
  EXPECT_FALSE(bar.Of(4)->isChecked());
  QTest::keyClick(bar.Of(6), Qt::Key_Space);
  EXPECT_EQ(Seen(program), Painted(program, {}));
  QTest::mouseClick(bar.Of(6), Qt::LeftButton);
  Of(program, Entry::kDigitBar).trigger();
  EXPECT_FALSE(bar.isVisible());
  program.Push("CommandSaw")->setFocus();
  EXPECT_EQ(Seen(program), Painted(program, {})) << "hidden, it rings nothing";
}

TEST_F(ViewMenu, DigitBarIsHiddenWithoutAGameAndWithoutRoom) {
  WindowProgram program(kWide);
  Of(program, Entry::kDigitBar).trigger();
  DigitBar& bar = *program.Find<DigitBar>("DigitBar");
  EXPECT_FALSE(bar.isVisible());
  program.OpenPuzzle();
  EXPECT_TRUE(bar.isVisible());
  program.window.resize(kNarrow);
  QCoreApplication::processEvents();
  EXPECT_FALSE(bar.isVisible());
  EXPECT_FALSE(Of(program, Entry::kDigitBar).isEnabled());
  program.window.resize(kWide);
  QCoreApplication::processEvents();
  EXPECT_TRUE(bar.isVisible());
}

TEST_F(ViewMenu, FullScreenComesAndGoes) {
  WindowProgram program(kWide);
  Of(program, Entry::kFullScreen).trigger();
  EXPECT_TRUE(program.window.isFullScreen());
  EXPECT_TRUE(Of(program, Entry::kFullScreen).isChecked());
  Of(program, Entry::kFullScreen).trigger();
  EXPECT_FALSE(program.window.isFullScreen());
}

}  // namespace
}  // namespace tessel
