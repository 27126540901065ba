// Windows that open no larger than the screen has room for.
#pragma once

#include <QWidget>

namespace tessel {

// What a window of the wanted size gets of the screen's free area, its frame taken into account.
QSize FitInto(QSize wanted, QSize freeArea);

// Lowers the least size and the size of a window that is not shown yet to what its screen has room
// for.
void FitOnScreen(QWidget& window);

// How large a dialog with a list of files opens, so that their names and dates can be read.
inline constexpr QSize kFileDialogSize(780, 520);

}  // namespace tessel
