// The puzzle file as any other program reads it, and what every puzzle in it must be.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/puzzle_record.h"

namespace tessel {

// The bytes of the file; empty when there is none.
std::string BytesOf(const std::filesystem::path& file);
// The record at `offset`. Throws when the bytes end before it does.
PuzzleRecord RecordAt(const std::string& bytes, std::size_t offset);
// The only record of a file of 243 bytes.
PuzzleRecord OnlyRecord(const std::filesystem::path& file);

// Whether the record holds nine connected cages of nine cells, a solution with every digit once in
// every row, column and cage, and givens of which that solution is the only completion.
testing::AssertionResult IsSoundPuzzle(const PuzzleRecord& record);

bool CagesAreHalfTurnSymmetric(const PuzzleRecord& record);
bool CagesAreBoxes(const PuzzleRecord& record);
bool GivensAreHalfTurnSymmetric(const PuzzleRecord& record);

}  // namespace tessel
