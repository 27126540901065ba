// Saving a puzzle while the window goes on answering.
#pragma once

#include <functional>
#include <string>

#include "shell/puzzle_file.h"

namespace tessel {

// Appends the record as AppendPuzzle does, on a thread of its own, because a busy lock or a slow
// disk may hold it up for seconds. Calls `meanwhile` on this thread every hundredth of a second
// until the save is done, or 3 seconds are over. Returns the record's number in the file, from 1,
// or what went wrong. Once time is up, that is one of two things: the record is given up and will
// never be written; or its writing has begun, and nobody can tell how that will end.
[[nodiscard]] AppendedPuzzle SavePuzzle(const std::string& path, const PuzzleRecord& record,
                                        SystemCalls& system,
                                        const std::function<void()>& meanwhile);

}  // namespace tessel
