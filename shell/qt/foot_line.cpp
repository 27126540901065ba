#include "shell/qt/foot_line.h"

#include <QBoxLayout>

namespace tessel {

namespace {

constexpr char kLongStanding[] = "80 givens, 80 cells left; Tessel grade: Very hard";

}  // namespace

FootLine::FootLine(QWidget* parent)
    : QWidget(parent),
      places_(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      notice_(new QLabel(this)),
      standing_(new QLabel(this)) {
  places_->setContentsMargins(0, 0, 0, 0);
  places_->setSpacing(0);
  places_->addWidget(notice_, 1);
  places_->addWidget(standing_);
  notice_->setObjectName("Notice");
  notice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  standing_->setObjectName("Standing");
  standing_->setMinimumWidth(fontMetrics().horizontalAdvance(kLongStanding));
  for (QLabel* const label : {notice_, standing_}) {
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  }
  notice_->setWordWrap(true);
  standing_->hide();
  SetLines(1);
}

void FootLine::Show(const StatusLine& line) {
  if (line == line_) return;
  line_ = line;
  standing_->setText(QString::fromStdString(line.standing));
  standing_->setVisible(!line.standing.empty());
  places_->activate();
  ShowSaid();
}

void FootLine::SetLines(int lines) {
  standing_->setAlignment((lines == 1 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop);
  places_->setDirection(lines == 1 ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  setFixedHeight(lines * fontMetrics().lineSpacing());
}

void FootLine::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  places_->activate();
  ShowSaid();
}

// A path that is too long loses its middle: both ends say more. What went wrong has all the room.
void FootLine::ShowSaid() {
  const QString said = QString::fromStdString(line_.said);
  const int room = notice_->width() - fontMetrics().horizontalAdvance(' ');
  const bool alone = line_.standing.empty();
  notice_->setText(alone ? said : fontMetrics().elidedText(said, Qt::ElideMiddle, room));
  notice_->setAccessibleName(said);
  notice_->setToolTip(said);
}

}  // namespace tessel
