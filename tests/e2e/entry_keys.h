// The keys of the menus' entries, as xdotool names them: "ctrl+shift+z".
#pragma once

#include <QStringList>

#include "shell/qt/menu_table.h"

namespace tessel {

// The entry's own keys, each of which chooses it, and those of the control that it stands for.
QStringList KeysOf(Entry entry);

// What opens its menu and chooses it there, one after the other: the letters that are underlined.
QStringList LettersOf(Entry entry);

}  // namespace tessel
