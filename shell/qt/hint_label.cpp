#include "shell/qt/hint_label.h"

#include <QKeyEvent>

namespace tessel {

namespace {

// About as long as a hint can become.
constexpr char kLongHint[] =
    "The cells in column 8 containing candidate 8 all belong to the same cage, therefore that "
    "candidate can be removed from the other cells of that cage";
constexpr int kPadding = 5;

}  // namespace

HintLabel::HintLabel(QWidget* parent) : QLabel(parent) {
  setObjectName("TextHint");
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setBackgroundRole(QPalette::Base);
  setForegroundRole(QPalette::Text);
  setAutoFillBackground(true);
  setMargin(kPadding);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void HintLabel::Fit(const QFont& font, int width) {
  setFont(font);
  const QRect room(0, 0, width - 2 * kPadding, QWIDGETSIZE_MAX);
  const QRect text = QFontMetrics(font).boundingRect(room, Qt::TextWordWrap, kLongHint);
  setFixedHeight(text.height() + 3 * kPadding);
  // A label would ask for a width that depends on its text, and the board beside it would move.
  setMinimumWidth(width);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

// The keys that copy and select all are meant for a selection first, whatever the window does with
// them otherwise.
bool HintLabel::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool copies = key.matches(QKeySequence::Copy) && hasSelectedText();
    if (copies || key.matches(QKeySequence::SelectAll)) event->accept();
  }
  return QLabel::event(event);
}

}  // namespace tessel
