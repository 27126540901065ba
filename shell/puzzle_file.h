// The puzzle file "Tessel_Sudoku.sds": records of 243 bytes, one after another, only ever appended.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <tl/expected.hpp>

#include "core/puzzle_record.h"
#include "shell/system_calls.h"

namespace tessel {

inline constexpr char kPuzzleFileName[] = "Tessel_Sudoku.sds";

// The right to decide what becomes of a record. A save takes it before it writes; whoever waits for
// the save takes it to give up, and can then be sure that the record will never be written.
class WriteClaim {
 public:
  // True for the first to ask.
  bool Take() { return !taken_.exchange(true); }

 private:
  std::atomic<bool> taken_ = false;
};

// Appends the record to the file, which is created when missing, and has it on disk on return.
// Programs that append to the same file wait for each other, up to 2.9 seconds; a file that is
// moved or deleted meanwhile is begun anew at its path. Returns the record's number in the file,
// from 1, once the record is safe; else what went wrong, in the system's words, with the file as
// long as it was.
using AppendedPuzzle = tl::expected<std::int64_t, std::string>;
[[nodiscard]] AppendedPuzzle AppendPuzzle(const std::string& path, const PuzzleRecord& record,
                                          SystemCalls& system, WriteClaim& claim);
[[nodiscard]] AppendedPuzzle AppendPuzzle(const std::string& path, const PuzzleRecord& record,
                                          SystemCalls& system);

}  // namespace tessel
