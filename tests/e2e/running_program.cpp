#include "tests/e2e/running_program.h"

#include <signal.h>
#include <unistd.h>

#include <stdexcept>

#include "tests/e2e/desktop.h"
#include "tests/e2e/eventually.h"

namespace tessel {
namespace {

constexpr uid_t kNobody = 65534;
constexpr int kPatienceMs = static_cast<int>(std::chrono::milliseconds(kPatience).count());

void LimitFileSize(rlim_t bytes) {
  const rlimit limit{bytes, bytes};
  setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

void InstallProgram(const std::filesystem::path& folder) {
  QProcess cmake;
  cmake.start(CMAKE_PROGRAM,
              {"--install", TESSEL_BINARY_DIR, "--prefix", QString::fromStdString(folder.string()),
               "--component", "Unspecified"});
  if (!cmake.waitForFinished(kPatienceMs) || cmake.exitCode() != 0) {
    throw std::runtime_error("not installed: " + cmake.readAllStandardError().toStdString());
  }
}

std::string DesktopWindow::Caption() const {
  return TheDesktop().Xdo({"getwindowname", id_}).toStdString();
}

QRect DesktopWindow::Area() const {
  const QString told = TheDesktop().Run("xwininfo", {"-id", id_});
  const auto number = [&told](const char* label) {
    return told.section(label, 1).section('\n', 0, 0).toInt();
  };
  return {number("Absolute upper-left X:"), number("Absolute upper-left Y:"), number("Width:"),
          number("Height:")};
}

QImage DesktopWindow::Screenshot() const {
  return TheDesktop().Screenshot(Area());
}

QSize DesktopWindow::Resize(QSize size) const {
  TheDesktop().Xdo(
      {"windowsize", id_, QString::number(size.width()), QString::number(size.height())});
  Eventually([&] { return Area().size() == size; });
  return Area().size();
}

bool DesktopWindow::MovesAside() const {
  const QPoint place = Area().topLeft();
  const int x = place.x() > 200 ? 100 : 300;
  TheDesktop().Xdo({"windowmove", id_, QString::number(x), "100"});
  return Eventually([&] { return Area().topLeft() != place; });
}

void DesktopWindow::Click(QPoint place, MouseKey button) const {
  TheDesktop().Xdo({"mousemove", "--window", id_, QString::number(place.x()),
                    QString::number(place.y()), "click",
                    QString::number(static_cast<int>(button))});
}

void DesktopWindow::PointAt(QPoint place, bool press) const {
  QStringList orders{"mousemove", "--window", id_, QString::number(place.x()),
                     QString::number(place.y())};
  if (press)
    orders << "mousedown"
           << "1";
  TheDesktop().Xdo(orders);
}

void DesktopWindow::LetGo() const {
  TheDesktop().Xdo({"mouseup", "1"});
}

bool DesktopWindow::IsActive() const {
  return TheDesktop().Xdo({"getactivewindow"}) == id_;
}

void DesktopWindow::PressKeys(const QStringList& keys) const {
  if (!Eventually([this] { return IsActive(); })) throw std::runtime_error("window not active");
  TheDesktop().Xdo(QStringList{"key"} + keys);
}

RunningProgram::RunningProgram(const std::filesystem::path& folder, const Launch& launch) {
  process_.setChildProcessModifier([launch] {
    if (launch.asNobody && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) _exit(EXIT_FAILURE);
    if (launch.fileSizeLimit) LimitFileSize(*launch.fileSizeLimit);
    EndWithParent();
  });
  process_.setProcessEnvironment(launch.environment);
  process_.setProcessChannelMode(QProcess::ForwardedChannels);
  process_.start(QString::fromStdString((folder / "tessel-sudoku").string()), QStringList());
  if (!Eventually([this] { return !Windows().isEmpty(); })) {
    throw std::runtime_error("the program shows no window");
  }
  window_ = DesktopWindow(Windows().first());
}

// The display learns a little later that the program has ended; the next one must not be taken for
// this one.
RunningProgram::~RunningProgram() {
  if (Running()) {
    process_.kill();
    process_.waitForFinished(kPatienceMs);
  }
  Eventually([this] { return !Windows().contains(window_.Id()); });
}

QStringList RunningProgram::Windows() const {
  const QString found = TheDesktop().Xdo({"search", "--onlyvisible", "--name", "^Tessel Sudoku"});
  return found.split('\n', Qt::SkipEmptyParts);
}

bool RunningProgram::Asks() const {
  return Windows().size() > 1;
}

DesktopWindow RunningProgram::Question() const {
  if (!Eventually([this] { return Asks(); })) throw std::runtime_error("no question appears");
  for (const QString& id : Windows()) {
    if (id != window_.Id()) return DesktopWindow(id);
  }
  throw std::runtime_error("the question vanished");
}

void RunningProgram::SendSignal(int number) const {
  kill(static_cast<pid_t>(process_.processId()), number);
}

bool RunningProgram::Running() {
  process_.waitForFinished(0);
  return process_.state() != QProcess::NotRunning;
}

bool RunningProgram::Ended() {
  return !Running() || process_.waitForFinished(kPatienceMs);
}

}  // namespace tessel
