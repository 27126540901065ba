#include "shell/qt/digit_bar.h"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace tessel {

namespace {

constexpr int kWidth = 28;
constexpr int kRadius = 4;
constexpr double kDigitPoints = 14;
constexpr double kCountPoints = 8;

QFont Sized(QFont font, double points, bool bold) {
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

}  // namespace

DigitButton::DigitButton(int digit, QWidget* parent) : QAbstractButton(parent), digit_(digit) {
  setObjectName(QString("Digit%1").arg(digit));
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setMinimumWidth(kWidth / 2);
}

QSize DigitButton::sizeHint() const {
  return {kWidth, DigitBar::kHeight};
}

void DigitButton::SetLeft(int left) {
  if (left == left_) return;
  left_ = left;
  const QString count = left == 0 ? tr("none left") : tr("%1 left").arg(left);
  setAccessibleName(tr("Digit %1, %2").arg(digit_).arg(count));
  setToolTip(tr("Show every %1 on the board (%2)").arg(digit_).arg(count));
  update();
}

void DigitButton::enterEvent(QEnterEvent*) {
  update();
}

void DigitButton::leaveEvent(QEvent*) {
  update();
}

void DigitButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF frame = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
  painter.setPen(Qt::NoPen);
  if (isChecked()) painter.setBrush(palette().brush(QPalette::Highlight));
  if (!isChecked() && underMouse()) painter.setBrush(palette().brush(QPalette::Midlight));
  painter.drawRoundedRect(frame, kRadius, kRadius);
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRoundedRect(frame, kRadius, kRadius);
  }
  const QPalette::ColorGroup group = left_ == 0 ? QPalette::Disabled : QPalette::Active;
  painter.setPen(isChecked() ? palette().color(QPalette::HighlightedText)
                             : palette().color(group, QPalette::WindowText));
  const QRect digitPlace = rect().adjusted(0, 2, 0, -height() * 3 / 8);
  const QRect countPlace = rect().adjusted(0, height() * 5 / 8 - 2, 0, -2);
  painter.setFont(Sized(font(), kDigitPoints, true));
  painter.drawText(digitPlace, Qt::AlignCenter, QString::number(digit_));
  painter.setFont(Sized(font(), kCountPoints, false));
  painter.drawText(countPlace, Qt::AlignCenter, left_ == 0 ? "–" : QString::number(left_));
}

DigitBar::DigitBar(QWidget* parent) : QWidget(parent) {
  setObjectName("DigitBar");
  setAccessibleName(tr("Digits left"));
  // As wide as there is room, and never the reason for more.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  for (int digit = 1; digit <= kSide; ++digit) {
    auto* button = new DigitButton(digit, this);
    connect(button, &QAbstractButton::clicked, this,
            [this, digit](bool checked) { Choose(checked ? std::optional(digit) : std::nullopt); });
    buttons_[static_cast<std::size_t>(digit - 1)] = button;
    row->addWidget(button);
  }
}

void DigitBar::Show(const Form& form) {
  std::array<int, kSide + 1> placed{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    ++placed[static_cast<std::size_t>(form.Cell(cell).text)];
  }
  for (int digit = 1; digit <= kSide; ++digit) {
    Of(digit)->SetLeft(std::max(0, kSide - placed[static_cast<std::size_t>(digit)]));
  }
}

void DigitBar::Choose(std::optional<int> digit) {
  for (int other = 1; other <= kSide; ++other) Of(other)->setChecked(other == digit);
  if (digit == chosen_) return;
  chosen_ = digit;
  emit ChosenChanged(digit);
}

// What nobody can take back must not stay chosen.
void DigitBar::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) ChooseNone();
}

}  // namespace tessel
