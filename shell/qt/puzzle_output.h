// Puzzles leave the window: into files, onto paper.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "core/puzzle.h"

class QPrinter;
class QWidget;

namespace tessel {

// What became of it, in a line for the player; empty when it was called off.
using Outcome = QString;

// Each asks over `window` where to, writes a file that is there whole or not at all, and tells.
// There must be a puzzle.
Outcome ExportWithDialog(QWidget* window, const std::vector<Puzzle>& puzzles);
Outcome ExplainWithDialog(QWidget* window, const Puzzle& puzzle);
// Asks by the platform's dialog.
Outcome PrintWithDialog(QWidget* window, const std::vector<Puzzle>& puzzles);

}  // namespace tessel
