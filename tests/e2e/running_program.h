// The real program, installed into a folder and started on the desktop, in the hands of a user.
#pragma once

#include <sys/resource.h>

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QString>
#include <filesystem>
#include <optional>
#include <string>

namespace tessel {

// Installs the program with its sounds into `folder`, as a user gets it.
void InstallProgram(const std::filesystem::path& folder);

enum class MouseKey { kLeft = 1, kMiddle = 2, kRight = 3 };

// A window as the display shows it. Places are relative to its contents.
class DesktopWindow {
 public:
  explicit DesktopWindow(QString id) : id_(std::move(id)) {}

  const QString& Id() const { return id_; }
  // What the title bar says.
  std::string Caption() const;
  // Where the contents lie on the display.
  QRect Area() const;
  QImage Screenshot() const;
  // Makes the contents as large as this; tells how large they got.
  QSize Resize(QSize size) const;
  // Has the window manager put the window elsewhere; whatever it was told before is done then.
  bool MovesAside() const;
  // A mouse button pressed and released.
  void Click(QPoint place, MouseKey button = MouseKey::kLeft) const;
  // The mouse moved there, and its left button pressed there if so. The button comes up again.
  void PointAt(QPoint place, bool press = false) const;
  void LetGo() const;
  // Whether the keyboard's input goes to this window.
  bool IsActive() const;
  // Presses the keys, as xdotool names them, one after another; waits until the window is active.
  void PressKeys(const QStringList& keys) const;

 private:
  QString id_;
};

// How a program is started.
struct Launch {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  bool asNobody = false;                               // who may write nowhere; needs root
  std::optional<rlim_t> fileSizeLimit = std::nullopt;  // in bytes, as of `ulimit -f`
};

class RunningProgram {
 public:
  // Starts the program that lies in `folder` and waits for its window.
  explicit RunningProgram(const std::filesystem::path& folder, const Launch& launch = {});
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  // Kills it if it still runs.
  ~RunningProgram();

  const DesktopWindow& Window() const { return window_; }
  // The question that the program asks in a window of its own; waits for it.
  DesktopWindow Question() const;
  bool Asks() const;

  pid_t Id() const { return static_cast<pid_t>(process_.processId()); }
  void SendSignal(int number) const;
  bool Running();
  // Waits for the end; false when it does not come.
  bool Ended();
  int ExitStatus() const { return process_.exitCode(); }
  // It has ended, and neither by a crash nor with a complaint.
  bool EndedInOrder() {
    return Ended() && process_.exitStatus() == QProcess::NormalExit && ExitStatus() == 0;
  }

 private:
  QStringList Windows() const;

  QProcess process_;
  DesktopWindow window_{QString()};
};

}  // namespace tessel
