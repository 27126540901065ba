#include "shell/qt/page_dialog.h"

#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "shell/qt/screen_fit.h"

namespace tessel {

PageDialog::PageDialog(QWidget* parent, const QString& name, QSize size)
    : QDialog(parent), page_(new QTextBrowser(this)) {
  setObjectName(name + "Dialog");
  setWindowTitle("Tessel Sudoku - " + name);
  page_->setObjectName(name + "Page");
  page_->setAccessibleName(name);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addWidget(page_);
  column->addWidget(buttons);
  setMinimumSize(minimumSizeHint());
  resize(size);
  FitOnScreen(*this);
}

void PageDialog::Present() {
  show();
  raise();
  activateWindow();
}

}  // namespace tessel
