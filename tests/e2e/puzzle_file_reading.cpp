#include "tests/e2e/puzzle_file_reading.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "tests/oracle/search/independent_solver.h"

namespace tessel {
namespace {

using Bytes = std::array<std::uint8_t, kCellCount>;

bool Touch(int cell, int other) {
  return (cell / 9 == other / 9 && std::abs(cell - other) == 1) || std::abs(cell - other) == 9;
}

// The number of cells of the first cell's cage that can be reached from it.
int ConnectedSize(const Bytes& cages, int first) {
  std::vector<int> reached{first};
  for (std::size_t next = 0; next < reached.size(); ++next) {
    for (int cell = 0; cell < kCellCount; ++cell) {
      const bool known = std::find(reached.begin(), reached.end(), cell) != reached.end();
      if (!known && cages[cell] == cages[first] && Touch(cell, reached[next])) {
        reached.push_back(cell);
      }
    }
  }
  return static_cast<int>(reached.size());
}

oracle::Grid GridOf(const Bytes& bytes) {
  oracle::Grid grid{};
  std::copy(bytes.begin(), bytes.end(), grid.begin());
  return grid;
}

}  // namespace

std::string BytesOf(const std::filesystem::path& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

PuzzleRecord RecordAt(const std::string& bytes, std::size_t offset) {
  PuzzleRecord record;
  if (bytes.size() < offset + sizeof record) throw std::runtime_error("no whole record there");
  std::memcpy(&record, bytes.data() + offset, sizeof record);
  return record;
}

PuzzleRecord OnlyRecord(const std::filesystem::path& file) {
  const std::string bytes = BytesOf(file);
  if (bytes.size() != sizeof(PuzzleRecord)) throw std::runtime_error("not one record");
  return RecordAt(bytes, 0);
}

testing::AssertionResult IsSoundPuzzle(const PuzzleRecord& record) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int cage = record.CageMap[cell];
    if (cage < 1 || cage > 9 || ConnectedSize(record.CageMap, cell) != 9) {
      return testing::AssertionFailure() << "the cage of cell " << cell << " is not sound";
    }
    if (record.Board[cell] != 0 && record.Board[cell] != record.Solution[cell]) {
      return testing::AssertionFailure() << "cell " << cell << " is given another digit";
    }
  }
  oracle::IndependentSolver solver(oracle::LayoutOf(GridOf(record.CageMap)));
  if (solver.CountSolutions(GridOf(record.Board), 2) != 1) {
    return testing::AssertionFailure() << "the givens have not one solution";
  }
  if (solver.Solution() != GridOf(record.Solution)) {
    return testing::AssertionFailure() << "the solution is another one";
  }
  return testing::AssertionSuccess();
}

bool CagesAreHalfTurnSymmetric(const PuzzleRecord& record) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (record.CageMap[cell] + record.CageMap[80 - cell] != 10) return false;
  }
  return true;
}

bool CagesAreBoxes(const PuzzleRecord& record) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (record.CageMap[cell] != 1 + cell / 27 * 3 + cell % 9 / 3) return false;
  }
  return true;
}

bool GivensAreHalfTurnSymmetric(const PuzzleRecord& record) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if ((record.Board[cell] == 0) != (record.Board[80 - cell] == 0)) return false;
  }
  return true;
}

}  // namespace tessel
