// A page to read beside the window.
#pragma once

#include <QDialog>

class QTextBrowser;

namespace tessel {

// Not modal: a running command goes on.
class PageDialog final : public QDialog {
 public:
  // The object is named after the page, "HelpDialog", and so is its text, "HelpPage". Opens no
  // larger than the screen.
  PageDialog(QWidget* parent, const QString& name, QSize size);

  QTextBrowser& Page() { return *page_; }
  // Opens the dialog, or brings it to the front.
  void Present();

 private:
  QTextBrowser* page_;
};

}  // namespace tessel
