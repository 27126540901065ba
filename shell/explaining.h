// The whole way to a puzzle's solution, as a file.
#pragma once

#include "shell/puzzle_export.h"

namespace tessel {

// "html", "pdf" and "txt", the first the usual one.
const std::vector<ExportKind>& ExplanationKinds();

// The puzzle must have exactly one solution.
Export WriteExplanation(const Puzzle& puzzle, const ExportKind& kind, const paper::Sink& sink);

}  // namespace tessel
