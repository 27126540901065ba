#include "tests/e2e/desktop.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>

#include <QScreen>
#include <stdexcept>

#include "tests/e2e/eventually.h"

namespace tessel {
namespace {

constexpr int kPatienceMs = static_cast<int>(std::chrono::milliseconds(kPatience).count());

std::unique_ptr<Desktop> desktop;

class DesktopEnvironment : public testing::Environment {
 public:
  void SetUp() override { desktop = std::make_unique<Desktop>(); }
  void TearDown() override { desktop.reset(); }
};

[[maybe_unused]] const auto* const kEnvironment =
    testing::AddGlobalTestEnvironment(new DesktopEnvironment);

void Stop(QProcess& process) {
  process.terminate();
  if (!process.waitForFinished(kPatienceMs)) process.kill();
}

}  // namespace

void EndWithParent() {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
}

Desktop& TheDesktop() {
  return *desktop;
}

Desktop::Desktop() {
  display_.setChildProcessModifier(EndWithParent);
  windowManager_.setChildProcessModifier(EndWithParent);
  // Nothing of the machine's own desktop may colour, scale or translate what is compared.
  for (const char* name : {"QT_SCALE_FACTOR", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME",
                           "XDG_CURRENT_DESKTOP", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS"}) {
    qunsetenv(name);
  }
  qputenv("XDG_CONFIG_HOME", preferences_.path().toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "xcb");
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("PULSE_SERVER", "unix:/nonexistent");  // or a sound server would be started
  qputenv("DISPLAY", StartDisplay().toLocal8Bit());

  static int argc = 1;
  static char name[] = "e2e_tests";
  static char* argv[] = {name, nullptr};
  application_ = std::make_unique<QApplication>(argc, argv);

  StartWindowManager();
}

// A window that is shown while openbox starts can get lost, so it tells when it is through.
void Desktop::StartWindowManager() {
  windowManager_.start("openbox", {"--config-file", "/etc/xdg/openbox/rc.xml", "--startup",
                                   "xprop -root -format OPENBOX_RUNS 8s -set OPENBOX_RUNS yes"});
  const auto runs = [this] { return Run("xprop", {"-root", "OPENBOX_RUNS"}).contains("yes"); };
  if (!windowManager_.waitForStarted(kPatienceMs) || !Eventually(runs)) {
    throw std::runtime_error("openbox does not start");
  }
}

Desktop::~Desktop() {
  application_.reset();
  Stop(windowManager_);
  Stop(display_);
}

QString Desktop::StartDisplay() {
  const QString screen = QString("%1x%2x24").arg(kWidth).arg(kHeight);
  display_.start("Xvfb", {"-displayfd", "1", "-screen", "0", screen, "-dpi", "96", "-nolisten",
                          "tcp", "-noreset", "-ac"});
  if (!Eventually([this] { return display_.waitForReadyRead(20) || display_.canReadLine(); })) {
    throw std::runtime_error("Xvfb does not start");
  }
  return ":" + QString::fromLatin1(display_.readLine()).trimmed();
}

QString Desktop::Run(const QString& program, const QStringList& arguments) const {
  QProcess process;
  process.start(program, arguments);
  process.waitForFinished(kPatienceMs);
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QImage Desktop::Screenshot(const QRect& area) const {
  return QGuiApplication::primaryScreen()
      ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
      .toImage()
      .convertToFormat(QImage::Format_RGB32);
}

}  // namespace tessel
