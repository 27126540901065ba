// The page that lists every key.
#pragma once

#include <QString>

namespace tessel {

class MenuBar;

// As HTML: the keys of the board, of the controls, and of the entries that the bar shows.
QString KeysPage(const MenuBar& menu);

}  // namespace tessel
