// A puzzle of a run, ready to be written.
#pragma once

#include <vector>

#include "maker/batch.h"
#include "tools/make_options.h"

namespace tessel::tools {

struct MakeRecord {
  std::uint64_t index = 0;
  std::string bytes;
  std::uint64_t fingerprint = 0;  // of its canonical form, where repeats are left out
  std::optional<grade::Grade> grade;
};

// Throws Failure for a puzzle that the format cannot say.
MakeRecord MakeRecordOf(const maker::Made& made, const MakeOptions& options);

// The fingerprint that tells repeats: equal for puzzles that turning, mirroring, and renaming of
// cages and digits make the same.
std::uint64_t FingerprintOf(const Puzzle& puzzle);

}  // namespace tessel::tools
