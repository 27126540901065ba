#include "shell/qt/accent.h"

namespace tessel {

namespace {

constexpr double kNextShare = 0.35;  // of the highlight in the button's ground

int Mixed(int ground, int colour) {
  return qRound(ground + kNextShare * (colour - ground));
}

QColor Tinted(const QColor& ground, const QColor& colour) {
  return {Mixed(ground.red(), colour.red()), Mixed(ground.green(), colour.green()),
          Mixed(ground.blue(), colour.blue())};
}

}  // namespace

QPalette AccentPalette(Accent accent, const QPalette& window) {
  QPalette colours;
  const QColor highlight = window.color(QPalette::Highlight);
  switch (accent) {
    case Accent::kNone:
      break;
    case Accent::kNext:
      colours.setColor(QPalette::Button, Tinted(window.color(QPalette::Button), highlight));
      break;
    case Accent::kRunning:
      colours.setColor(QPalette::Button, highlight);
      colours.setColor(QPalette::ButtonText, window.color(QPalette::HighlightedText));
      break;
  }
  return colours;
}

}  // namespace tessel
