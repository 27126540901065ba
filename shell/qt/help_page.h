// The page that tells how to make and play a puzzle.
#pragma once

#include <QString>

namespace tessel {

// As HTML.
QString HelpPage();

}  // namespace tessel
