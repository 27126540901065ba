// What assistive programs find behind a widget.
#pragma once

#include <QAccessible>
#include <QString>
#include <vector>

namespace tessel {

inline QAccessibleInterface* AccessibleOf(QObject* object) {
  return QAccessible::queryAccessibleInterface(object);
}

inline QString NameOf(const QAccessibleInterface& node) {
  return node.text(QAccessible::Name);
}

// The node and all below it, from the top down, in their order.
inline std::vector<QAccessibleInterface*> TreeOf(QAccessibleInterface* root) {
  std::vector<QAccessibleInterface*> found{root};
  for (int i = 0; i < root->childCount(); ++i) {
    const auto below = TreeOf(root->child(i));
    found.insert(found.end(), below.begin(), below.end());
  }
  return found;
}

}  // namespace tessel
