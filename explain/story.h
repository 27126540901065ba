// An explanation as pictures with words beside them.
#pragma once

#include "explain/explanation.h"
#include "paper/story.h"

namespace tessel::explain {

// A panel for the start, one for each step, and one for the end. `title` names the puzzle.
paper::Story StoryOf(const Explanation& explanation, const std::string& title);

// What every account of a way says first and last, a sentence each.
std::vector<std::string> OpeningOf(const Explanation& explanation);
std::vector<std::string> EndingOf(const Explanation& explanation);
// What is said of a step, a sentence each with its full stop.
std::vector<std::string> ParagraphsOf(const Explanation& explanation, std::size_t k);
// "12. Naked pair": steps are counted from 0, and told from 1.
std::string NumberedHeading(const Explanation& explanation, std::size_t k);

}  // namespace tessel::explain
