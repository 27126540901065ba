#include "shell/qt/app_icon.h"

#include <QPainter>
#include <array>

#include "core/colour.h"

namespace tessel {

namespace {

constexpr int kIconSide = 3;
// The cage of each square; cages are kCageColours by index.
constexpr std::array<std::array<std::size_t, kIconSide>, kIconSide> kCages{
    {{7, 7, 2}, {7, 5, 2}, {5, 5, 2}}};
constexpr int kPixels[] = {16, 24, 32, 48, 64, 128, 256};

QPixmap Draw(int pixels) {
  QPixmap pixmap(pixels, pixels);
  pixmap.fill(Qt::black);
  QPainter painter(&pixmap);
  const int border = std::max(1, pixels / 16);
  const auto edge = [&](int index) { return border + (pixels - border) * index / kIconSide; };
  for (int row = 0; row < kIconSide; ++row) {
    for (int column = 0; column < kIconSide; ++column) {
      const auto cageAt = [](int r, int c) {
        return r < kIconSide && c < kIconSide
                   ? kCages[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)]
                   : kSide;
      };
      const std::size_t cage = cageAt(row, column);
      const int right = edge(column + 1) - (cageAt(row, column + 1) == cage ? 0 : border);
      const int bottom = edge(row + 1) - (cageAt(row + 1, column) == cage ? 0 : border);
      const Rgb colour = kCageColours[cage];
      painter.fillRect(QRect(QPoint(edge(column), edge(row)), QPoint(right - 1, bottom - 1)),
                       QColor(colour.red, colour.green, colour.blue));
    }
  }
  return pixmap;
}

}  // namespace

QIcon AppIcon() {
  QIcon icon;
  for (const int pixels : kPixels) icon.addPixmap(Draw(pixels));
  return icon;
}

}  // namespace tessel
