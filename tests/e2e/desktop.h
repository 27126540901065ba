// A virtual display of its own, with a window manager on it, and the hand that moves its mouse and
// presses its keys.
#pragma once

#include <QApplication>
#include <QImage>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

namespace tessel {

class Desktop {
 public:
  static constexpr int kWidth = 1600;
  static constexpr int kHeight = 1200;

  // Starts the display and this process's own QApplication on it. Throws when one does not start.
  Desktop();
  ~Desktop();

  // Runs a program of the desktop and returns what it prints, without the last line break.
  QString Run(const QString& program, const QStringList& arguments) const;
  QString Xdo(const QStringList& arguments) const { return Run("xdotool", arguments); }
  // The pixels that the display shows in this rectangle.
  QImage Screenshot(const QRect& area) const;

 private:
  QString StartDisplay();
  void StartWindowManager();

  QTemporaryDir preferences_;  // of nobody who uses this machine
  QProcess display_;
  QProcess windowManager_;
  std::unique_ptr<QApplication> application_;
};

// In a child process: lets it not outlive the thread that made it, however that ends.
void EndWithParent();

// The desktop of all tests of this program.
Desktop& TheDesktop();

}  // namespace tessel
