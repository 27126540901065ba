// The page of help.
#pragma once

#include <QDialog>

namespace tessel {

class HelpDialog final : public QDialog {
 public:
  explicit HelpDialog(QWidget* parent);
};

}  // namespace tessel
