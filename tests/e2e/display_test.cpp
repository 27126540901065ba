// The real program without a display, and with one that goes away.
#include <gtest/gtest.h>

#include <regex>

#include "tests/e2e/desktop.h"
#include "tests/e2e/eventually.h"
#include "tests/e2e/running_program.h"
#include "tests/fakes/temporary_folder.h"
#include "tests/sounds/sound_server.h"
#include "tests/source_folder.h"

namespace tessel {
namespace {

class InstalledProgram : public testing::Test {
 protected:
  InstalledProgram() { InstallProgram(folder_.Path()); }

  TemporaryFolder folder_;
};

struct Outcome {
  int status;
  QString output;
  QString errors;
};

Outcome RunIn(const QProcessEnvironment& environment, const QString& program) {
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(program, QStringList());
  process.waitForFinished();
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

Outcome RunWithoutDisplay(const QString& program, const QString& display) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(name);
  }
  if (!display.isEmpty()) environment.insert("DISPLAY", display);
  return RunIn(environment, program);
}

void ExpectOneClearLine(const Outcome& outcome, const char* pattern = ".*display.*\n") {
  EXPECT_NE(outcome.status, 0);
  EXPECT_EQ(outcome.output, "");
  EXPECT_TRUE(std::regex_match(outcome.errors.toStdString(), std::regex(pattern)))
      << outcome.errors.toStdString();
}

TEST_F(InstalledProgram, NoDisplayIsToldInOneLine) {
  const QString program = QString::fromStdString((folder_.Path() / "tessel-sudoku").string());
  ExpectOneClearLine(RunWithoutDisplay(program, ""));
  ExpectOneClearLine(RunWithoutDisplay(program, ":9999"));
}

TEST_F(InstalledProgram, AnotherReasonNotToStartIsToldInOneLineOfItsOwn) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_QPA_PLATFORM", "nonsense");
  const QString program = QString::fromStdString((folder_.Path() / "tessel-sudoku").string());
  ExpectOneClearLine(RunIn(environment, program),
                     "tessel-sudoku: cannot open a window: .*\"nonsense\".*\n");
}

// A display of its own, which can be lost.
class LosableDisplay {
 public:
  LosableDisplay() {
    display_.setChildProcessModifier(EndWithParent);
    display_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1600x1200x24", "-nolisten", "tcp"});
    Eventually([this] { return display_.canReadLine() || display_.waitForReadyRead(20); });
    name_ = ":" + QString::fromLatin1(display_.readLine()).trimmed();
  }
  LosableDisplay(const LosableDisplay&) = delete;
  LosableDisplay& operator=(const LosableDisplay&) = delete;
  ~LosableDisplay() { Lose(); }

  const QString& Name() const { return name_; }
  void Lose() {
    display_.kill();
    display_.waitForFinished();
  }
  bool ShowsWindow() const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", name_);
    process.setProcessEnvironment(environment);
    process.start("xdotool", {"search", "--onlyvisible", "--name", "^Tessel Sudoku"});
    process.waitForFinished();
    return !process.readAllStandardOutput().isEmpty();
  }

 private:
  QProcess display_;
  QString name_;
};

// The sound server would answer the last of the program's objects after half a minute.
class LostDisplay : public InstalledProgram, public testing::WithParamInterface<bool> {};

TEST_P(LostDisplay, EndsTheProgramAtOnceWhileTheSoundServerHangs) {
  const bool hangsFromTheStart = GetParam();
  SoundServer server;
  ASSERT_TRUE(server.Answers());
  LosableDisplay display;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DISPLAY", display.Name());
  environment.insert("PULSE_SERVER", server.Address());
  QProcess program;
  program.setChildProcessModifier(EndWithParent);
  program.setProcessEnvironment(environment);
  if (hangsFromTheStart) server.Freeze();
  program.start(QString::fromStdString((folder_.Path() / "tessel-sudoku").string()), QStringList());
  ASSERT_TRUE(Eventually([&] { return display.ShowsWindow(); }));
  if (!hangsFromTheStart) server.Freeze();
  display.Lose();
  EXPECT_TRUE(program.waitForFinished(10'000));
  EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(program.readAllStandardOutput(), "");
}

INSTANTIATE_TEST_SUITE_P(SoundServer, LostDisplay, testing::Bool(), [](const auto& hangs) {
  return std::string(hangs.param ? "HangsFromTheStart" : "HangsLater");
});

TEST(Play, TellsBeforeAnyWorkThatThereIsNoDisplay) {
  ExpectOneClearLine(RunWithoutDisplay(QString::fromStdString(SourceFolder() + "/play"), ""));
}

}  // namespace
}  // namespace tessel
