#include <QApplication>
#include <QFile>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "core/random_source.h"
#include "core/version.h"
#include "shell/qt/qt_sound_player.h"
#include "shell/qt/system_clock.h"
#include "shell/qt/tessel_window.h"

namespace {

// Without a display Qt explains itself at length and aborts; one line and an exit status do better.
void SayThatThereIsNoDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::fputs("tessel-sudoku: cannot open a window: there is no display, or no access to it\n",
             stderr);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int given, char** argv) {
  if (given == 2 && std::string_view(argv[1]) == "--version") {
    std::printf("tessel-sudoku %s\n", tessel::Version());
    return EXIT_SUCCESS;
  }
  int argumentCount = 1;  // there is no command line beside this, and Qt shall not read one either
  const QtMessageHandler usual = qInstallMessageHandler(SayThatThereIsNoDisplay);
  QApplication application(argumentCount, argv);
  qInstallMessageHandler(usual);
  std::setlocale(LC_NUMERIC, "C");  // Qt took over the user's; times are written with a point
  QApplication::setApplicationName("tessel-sudoku");

  tessel::TesselWindow window;
  tessel::QtSoundPlayer player;
  tessel::SystemClock clock;
  tessel::SeededRandom random;
  const QByteArray folder = QFile::encodeName(QCoreApplication::applicationDirPath());
  tessel::Tessel_Main logic(window, player, clock, random, folder.toStdString());
  window.Attach(logic);
  logic.Form_Load();
  return QApplication::exec();
}
