#include "shell/qt/board_accessible.h"

#include <algorithm>

#include "core/names.h"
#include "shell/qt/board_widget.h"

namespace tessel {

namespace {

class CellAccessible final : public QAccessibleInterface {
 public:
  CellAccessible(BoardWidget& board, int cell) : board_(board), cell_(cell) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return board_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&board_);
  }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QAccessible::Role role() const override { return QAccessible::Cell; }
  QRect rect() const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QAccessible::State state() const override;

  int Cell() const { return cell_; }

 private:
  QString Contents() const;

  BoardWidget& board_;
  int cell_;
};

QRect CellAccessible::rect() const {
  const QRect place = board_.CellRect(cell_).toRect();
  return {board_.mapToGlobal(place.topLeft()), place.size()};
}

QString CellAccessible::text(QAccessible::Text kind) const {
  if (board_.State() == nullptr) return {};
  if (kind == QAccessible::Name) return QString::fromStdString(CellName(cell_));
  if (kind == QAccessible::Value || kind == QAccessible::Description) return Contents();
  return {};
}

QAccessible::State CellAccessible::state() const {
  QAccessible::State state;
  state.focusable = true;
  state.focused = board_.hasFocus() && board_.FocusedCell() == cell_;
  state.readOnly = board_.Source() != nullptr && board_.Source()->Cell(cell_).text != 0 &&
                   !IsEntry(*board_.Source(), *board_.State(), cell_);
  return state;
}

QString CellAccessible::Contents() const {
  const Form& form = *board_.Source();
  const DisplayedCell& look = form.Cell(cell_);
  if (look.text != 0) {
    const bool entry = IsEntry(form, *board_.State(), cell_);
    return QString(entry ? "entry %1" : "given %1").arg(look.text);
  }
  QString marks;
  for (int digit = 1; digit <= kSide; ++digit) {
    if (IsMarkShown(form, cell_, digit)) marks += QString(" %1").arg(digit);
  }
  return marks.isEmpty() ? QString("empty") : "empty with marks" + marks;
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* board = qobject_cast<BoardWidget*>(object);
  return board == nullptr ? nullptr : new BoardAccessible(*board);
}

}  // namespace

void BoardAccessible::Install() {
  static const bool installed = (QAccessible::installFactory(MakeInterface), true);
  Q_UNUSED(installed);
}

void BoardAccessible::NotifyCell(BoardWidget& board, int cell) {
  if (!QAccessible::isActive()) return;
  // The description and not the value: bridges take a changed value only from sliders and the like.
  QAccessibleEvent event(QAccessible::queryAccessibleInterface(&board)->child(cell),
                         QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

void BoardAccessible::NotifyFocus(BoardWidget& board) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(QAccessible::queryAccessibleInterface(&board)->focusChild(),
                         QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

BoardAccessible::BoardAccessible(BoardWidget& board)
    : QAccessibleWidget(&board, QAccessible::Grouping), board_(board) {}

BoardAccessible::~BoardAccessible() {
  for (const QAccessible::Id id : cells_) {
    if (id != 0) QAccessible::deleteAccessibleInterface(id);
  }
}

QAccessibleInterface* BoardAccessible::child(int index) const {
  if (index < 0 || index >= kCellCount) return nullptr;
  QAccessible::Id& id = cells_[static_cast<std::size_t>(index)];
  if (id == 0) id = QAccessible::registerAccessibleInterface(new CellAccessible(board_, index));
  return QAccessible::accessibleInterface(id);
}

int BoardAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* cell = dynamic_cast<const CellAccessible*>(child);
  return cell == nullptr ? -1 : cell->Cell();
}

QAccessibleInterface* BoardAccessible::childAt(int x, int y) const {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (child(cell)->rect().contains(x, y)) return child(cell);
  }
  return nullptr;
}

QAccessibleInterface* BoardAccessible::focusChild() const {
  return board_.hasFocus() ? child(board_.FocusedCell()) : nullptr;
}

}  // namespace tessel
