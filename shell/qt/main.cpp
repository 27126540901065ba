#include <signal.h>

#include <QApplication>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/random_source.h"
#include "core/version.h"
#include "shell/program_folder.h"
#include "shell/puzzle_folder.h"
#include "shell/qt/qt_sound_player.h"
#include "shell/qt/system_clock.h"
#include "shell/qt/tessel_window.h"

namespace {

[[noreturn]] void Fail(const std::string& why) {
  std::fputs(("tessel-sudoku: " + why + "\n").c_str(), stderr);
  std::_Exit(EXIT_FAILURE);
}

// Where Qt cannot start, it warns of the reason, explains itself at length and aborts. One line and
// an exit status do better; the first warning is the one that knows.
void FailInOneLine(QtMsgType type, const QMessageLogContext&, const QString& message) {
  static QString firstWarning;
  if (firstWarning.isEmpty() && type != QtDebugMsg && type != QtInfoMsg) {
    firstWarning = message.simplified();
  }
  if (type != QtFatalMsg) return;
  if (firstWarning.contains("connect to display") || firstWarning.contains("wl_display")) {
    Fail("cannot open a window: there is no display, or no access to it");
  }
  Fail("cannot open a window: " + firstWarning.toStdString());
}

}  // namespace

int main(int given, char** argv) {
  if (given == 2 && std::string_view(argv[1]) == "--version") {
    std::printf("tessel-sudoku %s\n", tessel::Version());
    return EXIT_SUCCESS;
  }
  signal(SIGXFSZ, SIG_IGN);  // a file that would grow too large is a failed write, told as such
  const auto folder = tessel::ProgramFolder();
  if (!folder) Fail("cannot tell the folder that it lies in");
  tessel::QtSoundPlayer player;

  int argumentCount = 1;  // there is no other command line, and Qt must not read one either
  const QtMessageHandler usual = qInstallMessageHandler(FailInOneLine);
  QApplication application(argumentCount, argv);
  qInstallMessageHandler(usual);
  std::setlocale(LC_NUMERIC, "C");  // Qt took over the user's; times are written with a point
  QApplication::setApplicationName("tessel-sudoku");

  tessel::Preferences::TakeInDialogs();
  tessel::TesselWindow window(tessel::Preferences::UserFile());
  tessel::SoundSwitch sounds(player);
  tessel::SystemClock clock;
  tessel::SeededRandom random;
  tessel::Tessel_Main logic(window, sounds, clock, random, *folder, tessel::RealSystemCalls(),
                            tessel::UserDataFolder());
  window.SwitchSounds(sounds);
  window.Attach(logic);
  logic.Form_Load();
  return QApplication::exec();
}
