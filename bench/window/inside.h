// The window in this process, shown on the display, with the real logic behind it and no sound.
#pragma once

#include <optional>

#include "bench/distribution.h"
#include "shell/qt/tessel_window.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_sound_player.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel::bench {

// Counts how often a widget is painted.
class PaintCount final : public QObject {
 public:
  explicit PaintCount(QObject* widget) { widget->installEventFilter(this); }
  long Paints() const { return paints_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  long paints_ = 0;
};

class InsideWindow {
 public:
  InsideWindow();

  // Seconds from a click on a mark in solving mode until the board's new picture is with the
  // display.
  Distribution ClicksToPainted(int clicks);
  // Seconds that the command under the button takes when it is watched.
  double ShownSeconds(const char* button);
  // Seconds from a click on "Stop" in the midst of a visualised Fill until the Fill has ended; none
  // when it was through before.
  std::optional<double> StopSeconds();

 private:
  template <typename Widget>
  Widget& Find(const char* control) const;
  void Press(const char* button) const;
  // A button that has just read "Stop" is deaf for a while.
  static void WaitUntilButtonsListen();
  void MakePuzzle() const;
  void PostClick(QWidget& widget, QPoint place, Qt::MouseButton button) const;
  double SecondsUntilPainted(int cell, int digit, Qt::MouseButton button);

  TemporaryFolder folder_;
  FakeClock clock_;
  FakeSoundPlayer player_;
  SeededRandom random_;
  TesselWindow window_;
  Tessel_Main logic_;
  BoardWidget* board_ = nullptr;
  std::optional<PaintCount> paints_;
};

}  // namespace tessel::bench
