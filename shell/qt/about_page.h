// The page about the program itself.
#pragma once

#include <QString>
#include <string>

namespace tessel {

// As HTML. `puzzleFile` is the path of the file that puzzles are saved to.
QString AboutPage(const std::string& puzzleFile);

}  // namespace tessel
