// The place of the bar of digits in the panel.
#include <QFrame>
#include <QGridLayout>

#include "shell/qt/control_panel.h"
#include "shell/qt/digit_bar.h"

namespace tessel {

namespace {

constexpr int kAir = 8;  // between the bar and what lies above it

}  // namespace

void ControlPanel::OfferDigitBar(bool on, const Form& form) {
  wantsDigitBar_ = on;
  if (on && digitBar_ == nullptr) {
    digitBar_ = new DigitBar(this);
    digitBar_->hide();
    connect(digitBar_, &DigitBar::ChosenChanged, this, &ControlPanel::DigitChosen);
    if (arrangement_ == Arrangement::kBeside) PlaceDigitBar();
  }
  CountDigits(form);
}

void ControlPanel::PlaceDigitBar() {
  if (digitBar_ == nullptr) return;
  qobject_cast<QGridLayout*>(layout())->addWidget(digitBar_, 2, 0, 1, 2, Qt::AlignTop);
}

// The bar's place is what the panel leaves empty.
bool ControlPanel::HasRoomForDigitBar() const {
  const int empty = height() - SizeFor(Arrangement::kBeside).height();
  return arrangement_ == Arrangement::kBeside && empty >= DigitBar::kHeight + kAir;
}

void ControlPanel::CountDigits(const Form& form) {
  if (digitBar_ == nullptr) return;
  digitBar_->Show(form);
  FitDigitBar();
}

void ControlPanel::FitDigitBar() {
  if (digitBar_ == nullptr) return;
  digitBar_->setVisible(wantsDigitBar_ && HasRoomForDigitBar() && !solveButtons_->isHidden());
}

void ControlPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitDigitBar();
}

void ControlPanel::HideDigitBar() {
  if (digitBar_ != nullptr) digitBar_->hide();
}

}  // namespace tessel
