// The digits 1 to 9 with how many of each are left to place.
#pragma once

#include <QAbstractButton>
#include <QWidget>
#include <array>
#include <optional>

#include "core/form.h"

namespace tessel {

// One digit of the bar. Greyed once none is left; it can be pressed all the same.
class DigitButton final : public QAbstractButton {
  Q_OBJECT

 public:
  DigitButton(int digit, QWidget* parent);

  void SetLeft(int left);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  int digit_;
  int left_ = -1;
};

class DigitBar final : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kHeight = 40;

  explicit DigitBar(QWidget* parent = nullptr);

  // Counts the digits that stand on the board.
  void Show(const Form& form);
  std::optional<int> Chosen() const { return chosen_; }
  void ChooseNone() { Choose(std::nullopt); }
  DigitButton* Of(int digit) const { return buttons_[static_cast<std::size_t>(digit - 1)]; }

 signals:
  // The player pressed a digit, or the chosen one once more, which leaves none.
  void ChosenChanged(std::optional<int> digit);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void Choose(std::optional<int> digit);

  std::array<DigitButton*, kSide> buttons_{};
  std::optional<int> chosen_;
};

}  // namespace tessel
