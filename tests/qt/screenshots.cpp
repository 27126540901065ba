// Writes a picture of every stage of the program. docs/screenshots runs it for every scale.
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "core/random_source.h"
#include "shell/qt/tessel_window.h"
#include "shell/qt/work_show.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_sound_player.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel {
namespace {

// Like the dark themes that desktops bring along.
QPalette DarkPalette() {
  const QColor ground(50, 50, 53);
  const QColor text(235, 235, 235);
  QPalette palette(QColor(66, 66, 70), ground);
  palette.setColor(QPalette::Base, QColor(36, 36, 39));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, QColor(130, 130, 133));
  }
  palette.setColor(QPalette::Highlight, QColor(53, 132, 228));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

class Photographer {
 public:
  Photographer(QDir folder, QString theme, QSize size)
      : folder_(std::move(folder)), theme_(std::move(theme)) {
    window_.Attach(main_);
    main_.Form_Load();
    window_.resize(size);  // the offscreen display may be smaller
  }

  void TakeAll() {
    Take("1-start");
    Click(Button::CommandSaw);
    Take("2-sawn");
    TakeVisualisedFill();
    Click(Button::CommandGo);
    Take("4-filled");
    Click(Button::CommandConceal);
    Take("5-concealed");
    Click(Button::CommandSolve);
    Board().FocusCell(EmptyCell(30));
    Take("6-solving");
    PointAt(EmptyCell(40));
    Take("6-pointing");
    PointAt(EmptyCell(60), Qt::LeftButton);
    Take("6-pressing");
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&Board(), &leave);
    Place(kCellCount, 0);
    Take("7-full-board");
    Click(Button::CommandRestart);
    Place(4, 0);
    Click(Button::CommandHint);
    Take("8-hint");
    Place(1, 1);
    Click(Button::CommandHint);
    Take("9-wrong-digit");
    for (const Entry entry : {Entry::kSameDigits, Entry::kDigitBar, Entry::kSofterColours}) {
      window_.findChild<MenuBar*>()->Of(entry)->trigger();
    }
    PointAt(EmptyCell(60));
    Take("10-view");
  }

 private:
  void Take(const QString& stage) {
    QCoreApplication::processEvents();
    const QString name = QString("%1-%2x%3-at-%4-%5.png")
                             .arg(stage)
                             .arg(window_.width())
                             .arg(window_.height())
                             .arg(window_.devicePixelRatioF())
                             .arg(theme_);
    if (!window_.grab().save(folder_.filePath(name))) {
      std::fprintf(stderr, "cannot write %s\n", qPrintable(folder_.filePath(name)));
      std::exit(EXIT_FAILURE);
    }
  }

  BoardWidget& Board() { return *window_.findChild<BoardWidget*>(); }

  // In the real window, so that focus and running command look as they do there.
  void Click(Button button) { window_.findChild<ControlPanel*>()->Of(button)->click(); }

  // The mouse moves to the first mark that can be placed there, with that button down.
  void PointAt(int cell, Qt::MouseButtons buttons = Qt::NoButton) {
    int digit = 1;
    while (!main_.Display().Mark(cell, digit).visible) ++digit;
    const QRectF place = Board().CellRect(cell);
    const CellPosition at = MarkCentre(digit);
    const QPointF point =
        place.topLeft() + QPointF(at.x * place.width(), at.y * place.height()) / kCellUnits;
    QMouseEvent move(QEvent::MouseMove, point, Board().mapToGlobal(point), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&Board(), &move);
  }

  void TakeVisualisedFill() {
    main_.Toggle(CheckBox::CheckVisualize);
    int rounds = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      if (++rounds != 60) return;
      Take("3-visualised-fill");
      timer.stop();
      Click(Button::CommandGo);
    });
    timer.start(0);
    Click(Button::CommandGo);
    main_.Toggle(CheckBox::CheckVisualize);
    WaitUntilButtonsListen();
  }

  // A button that has just read "Stop" is deaf for a while.
  void WaitUntilButtonsListen() {
    QEventLoop loop;
    QTimer::singleShot(2 * LateStops::kLate, &loop, &QEventLoop::quit);
    loop.exec();
  }

  int EmptyCell(int from) const {
    while (main_.State().PlayBoard.Board[static_cast<std::size_t>(from)] != 0) ++from;
    return from;
  }

  // Fills so many empty cells with their solution, turned `wrong` digits further.
  void Place(int count, int wrong) {
    for (int cell = 0; cell < kCellCount && count > 0; ++cell) {
      const auto i = static_cast<std::size_t>(cell);
      if (main_.State().PlayBoard.Board[i] != 0) continue;
      for (int step = wrong; step < kSide; ++step) {
        const int digit = (main_.State().PlayBoard.Solution[i] - 1 + step) % kSide + 1;
        if (!main_.Display().Mark(cell, digit).visible) continue;
        const CellPosition at = MarkCentre(digit);
        emit Board().CellReleased(cell, MouseButton::kLeft, at.x, at.y);
        break;
      }
      --count;
    }
  }

  QDir folder_;
  QString theme_;
  TemporaryFolder records_;
  FakeClock clock_{3};
  FakeSoundPlayer player_;
  SeededRandom random_;
  TesselWindow window_;
  Tessel_Main main_{window_, player_, clock_, random_, records_.Path().string()};
};

}  // namespace
}  // namespace tessel

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QDir folder(argc > 1 ? argv[1] : "build/screenshots");
  if (!folder.mkpath(".")) return EXIT_FAILURE;
  const QPalette light = QApplication::palette();
  const QPalette dark = tessel::DarkPalette();
  for (const QSize size : {QSize(900, 662), QSize(480, 542)}) {
    QApplication::setPalette(light);
    tessel::Photographer(folder, "light", size).TakeAll();
    QApplication::setPalette(dark);
    tessel::Photographer(folder, "dark", size).TakeAll();
  }
}
