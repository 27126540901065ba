// The box with the hint's text, which can be selected and copied.
#pragma once

#include <QLabel>

namespace tessel {

class HintLabel final : public QLabel {
 public:
  explicit HintLabel(QWidget* parent = nullptr);

  // Shows the text in that font, in a box so wide and high enough for the longest hint.
  void Fit(const QFont& font, int width);

 protected:
  bool event(QEvent* event) override;
};

}  // namespace tessel
