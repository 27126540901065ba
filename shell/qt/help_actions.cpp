#include "shell/qt/help_actions.h"

#include <QTextBrowser>

#include "shell/qt/about_page.h"
#include "shell/qt/help_page.h"
#include "shell/qt/keys_page.h"
#include "shell/qt/techniques_page.h"

namespace tessel {

HelpActions::HelpActions(MenuBar& menu, QWidget& window, const Tessel_Main& logic)
    : menu_(menu), window_(window), logic_(logic) {
  menu.Connect(Entry::kHelp, [this] { OpenHelp(); });
  menu.Connect(Entry::kTechniques, [this] { OpenTechniques(); });
  menu.Connect(Entry::kKeys, [this] { OpenKeys(); });
  menu.Connect(Entry::kAbout, [this] { OpenAbout(); });
}

void HelpActions::OpenHelp() {
  help_ = Open(help_, "Help", {700, 720}, [](QTextBrowser& page) { page.setHtml(HelpPage()); });
}

void HelpActions::OpenTechniques() {
  techniques_ = Open(techniques_, "Techniques", {760, 720}, FillTechniquesPage);
}

void HelpActions::OpenKeys() {
  keys_ = Open(keys_, "Keys", {640, 720},
               [this](QTextBrowser& page) { page.setHtml(KeysPage(menu_)); });
}

void HelpActions::OpenAbout() {
  about_ = Open(about_, "About", {540, 490},
                [this](QTextBrowser& page) { page.setHtml(AboutPage(logic_.PuzzleFilePath())); });
}

PageDialog* HelpActions::Open(PageDialog* dialog, const char* name, QSize size, const Fill& fill) {
  if (dialog == nullptr) {
    dialog = new PageDialog(&window_, name, size);
    fill(dialog->Page());
  }
  dialog->Present();
  return dialog;
}

}  // namespace tessel
