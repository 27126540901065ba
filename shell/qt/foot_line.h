// The line at the foot of the window: what happened at the left, how the puzzle stands at the
// right.
#pragma once

#include <QLabel>
#include <QWidget>

#include "shell/status_line.h"

class QBoxLayout;

namespace tessel {

// Where the window is narrow there are two lines instead. The height never depends on the text.
class FootLine final : public QWidget {
 public:
  explicit FootLine(QWidget* parent = nullptr);

  void Show(const StatusLine& line);
  void SetLines(int lines);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowSaid();

  QBoxLayout* places_;
  QLabel* notice_;
  QLabel* standing_;
  StatusLine line_;
};

}  // namespace tessel
