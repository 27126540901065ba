#include "shell/qt/screen_fit.h"

#include <QScreen>

namespace tessel {

namespace {

// The window manager's frame is not known before it is there; title bars are some 20 to 40 high.
constexpr QSize kFrame(8, 40);

}  // namespace

QSize FitInto(QSize wanted, QSize freeArea) {
  return wanted.boundedTo(freeArea - kFrame);
}

void FitOnScreen(QWidget& window) {
  const QSize free = window.screen()->availableSize();
  window.setMinimumSize(FitInto(window.minimumSize(), free));
  window.resize(FitInto(window.size(), free));
}

}  // namespace tessel
