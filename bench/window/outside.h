// The program itself, installed and started, watched and clicked from outside.
#pragma once

#include <QProcess>
#include <filesystem>
#include <optional>
#include <string>

#include "tests/e2e/desktop.h"
#include "tests/e2e/window_twin.h"

namespace tessel::bench {

class OutsideWindow {
 public:
  // Starts the program in `folder` and waits until the display shows its board.
  OutsideWindow(Desktop& desktop, const std::filesystem::path& folder);
  OutsideWindow(const OutsideWindow&) = delete;
  OutsideWindow& operator=(const OutsideWindow&) = delete;
  ~OutsideWindow();

  double SecondsToPainted() const { return secondsToPainted_; }
  // Resident, in MB.
  double Memory() const;
  // Clicks a button and waits until the caption tells a time; that time, in seconds.
  double Run(const char* button, const std::string& told);
  void Click(const char* button);

 private:
  bool ShowsBoard() const;
  void FindWindow();

  Desktop& desktop_;
  QProcess process_;
  QString id_;
  QPoint corner_;
  std::optional<WindowTwin> twin_;
  double secondsToPainted_ = 0;
};

}  // namespace tessel::bench
