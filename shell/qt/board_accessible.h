// The board as assistive programs see it: 81 cells with name, contents and place.
#pragma once

#include <QAccessibleWidget>
#include <array>

#include "core/cell.h"

namespace tessel {

class BoardWidget;

class BoardAccessible final : public QAccessibleWidget {
 public:
  // Lets Qt make this interface for every BoardWidget.
  static void Install();
  // Tell assistive programs, if there are any, that the cell or the focus changed.
  static void NotifyCell(BoardWidget& board, int cell);
  static void NotifyFocus(BoardWidget& board);

  explicit BoardAccessible(BoardWidget& board);
  ~BoardAccessible() override;

  int childCount() const override { return kCellCount; }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

 private:
  BoardWidget& board_;
  mutable std::array<QAccessible::Id, kCellCount> cells_{};  // 0: not asked for yet
};

}  // namespace tessel
