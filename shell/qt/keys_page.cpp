#include "shell/qt/keys_page.h"

#include <QAction>
#include <QKeySequence>
#include <QStringList>
#include <array>
#include <utility>

#include "core/controls.h"
#include "shell/qt/menu_bar.h"

namespace tessel {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 9> kBoardKeys{{
    {"Arrows, Home, End, Page Up, Page Down", "Go to another cell"},
    {"1 to 9", "Place the digit, if its mark is shown"},
    {"Ctrl+1 to Ctrl+9", "Remove or add the mark; take the digit out"},
    {"Delete, Backspace, point of the number pad", "Take the digit out"},
    {"Insert, 0 of the number pad", "Empty the cell and show all nine marks"},
    {"Tab, Shift+Tab", "Go to the next control, or back"},
    {"Space, Enter", "Press the button"},
    {"Shift+F1", "Tell what the control is for, and its key"},
    {"Alt with a menu's underlined letter, F10", "Open a menu"},
}};

QString Row(const QString& keys, const QString& what) {
  return QString("<tr><td>%1</td><td>%2</td></tr>").arg(keys.toHtmlEscaped(), what.toHtmlEscaped());
}

QString Table(const QString& title, const QString& rows) {
  return QString("<h3>%1</h3><table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">%2</table>")
      .arg(title, rows);
}

QString ShownKeys(const char* keys) {
  QStringList shown;
  for (const QKeySequence& sequence : QKeySequence::listFromString(keys)) {
    shown << sequence.toString(QKeySequence::NativeText);
  }
  return shown.join(", ");
}

QString BoardRows() {
  QString rows;
  for (const auto& [keys, what] : kBoardKeys) rows += Row(keys, what);
  return rows;
}

QString ControlRows() {
  QString rows;
  const auto add = [&rows](const auto& traits) {
    if (*traits.keys == '\0') return;
    const QString caption = QString::fromUtf8(traits.caption);
    rows += Row(ShownKeys(traits.keys), caption + ": " + QString::fromUtf8(traits.tip));
  };
  for (const ButtonTraits& traits : kButtonTable) add(traits);
  for (const CheckBoxTraits& traits : kCheckBoxTable) add(traits);
  return rows;
}

QString MenuRows(const MenuBar& menu) {
  QString rows;
  for (const EntryTraits& traits : kEntryTable) {
    const bool told = *traits.keys != '\0' && menu.Of(traits.entry)->isVisible();
    if (!told) continue;
    const auto plain = [](const char* text) { return QString::fromUtf8(text).remove('&'); };
    rows += Row(ShownKeys(traits.keys), plain(kMenuTitles[IndexOf(traits.menu)]) + " > " +
                                            plain(traits.text).remove(QString::fromUtf8("…")));
  }
  return rows;
}

}  // namespace

QString KeysPage(const MenuBar& menu) {
  return Table("Board and window", BoardRows()) + Table("Controls", ControlRows()) +
         Table("Menus", MenuRows(menu));
}

}  // namespace tessel
