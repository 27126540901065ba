// Acting inside a dialog that holds its caller up until it is closed.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>

namespace tessel {

// Acts as soon as a dialog of this kind is open; the test fails when another one is.
template <typename Dialog, typename Act>
void Inside(const Act& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
      ADD_FAILURE() << "no such dialog is open";
      if (auto* const other = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        other->reject();
      }
      return;
    }
    act(*dialog);
  });
}

}  // namespace tessel
