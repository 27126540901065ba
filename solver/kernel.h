// The search, compiled once for each vector width: plain data and functions that work on it.
//
// A kernel is chosen when the program runs. All of them do the same steps in the same order, so
// their results are the same, and so are their counts of nodes.
#pragma once

#include <cstdint>

#include "core/random_stream.h"
#include "solver/tables.h"

namespace tessel::solver {

// A board in a search: 704 bytes, copied once a node.
struct Level {
  Places places[kSide];       // for each digit: the empty cells in which it may stand
  Places open;                // the empty cells
  std::uint32_t done[kSide];  // for each digit, bit h: house h has it
};

struct Choice {
  std::uint8_t cell;
  std::uint8_t digit;  // 0..8
};

// All that a search needs beside the tables: about 58 KB, one for each thread.
struct Workspace {
  // A level has a digit more than the one before it, and one with 81 digits has none after it.
  Level levels[kCellCount];
  Choice choices[kCellCount];
  // For each digit: places that locked candidates have left as they are.
  Places unlocked[kSide];
  std::uint8_t digits[kCellCount];    // 1..9, right for the cells that are filled
  std::uint8_t found[2][kCellCount];  // the solutions
};

struct Request {
  int solutions = 1;                        // how many are wanted, 1 or 2
  std::uint64_t nodes = ~std::uint64_t{0};  // how many may be tried
  // For each cell, choices there that led nowhere, and 1; counted on. Cells with many of them for
  // their candidates are chosen first then.
  std::uint64_t* failures = nullptr;
  RandomStream* random = nullptr;  // draws the choices; without it they are fixed
};

struct Result {
  int solutions = 0;
  bool complete = false;  // there are no others, or as many as were wanted
  std::uint64_t nodes = 0;
};

// The givens of a puzzle with a known solution, while they are taken out one by one.
struct Givens {
  Level level;  // the givens, placed; its places were not met with its open cells
  std::uint8_t digitAt[kCellCount];    // 0..8: the solution
  std::uint8_t cellsOf[kSide][kSide];  // for each digit, the cells in which it is given
  std::uint8_t sizes[kSide];           // and their number
};

enum class Standing : std::uint8_t { kOpen, kSolved, kContradiction };

struct Kernel {
  // Makes the level an empty board.
  void (*clear)(const Tables& tables, Level& level);
  // Places digit 0..8 in a cell. False when it cannot stand there; the level is left as it is.
  bool (*place)(const Tables& tables, Level& level, int cell, int digit);
  // The passes that a search is made of, to be tested one by one: places singles until there are
  // none, and takes out locked candidates, if it finds any.
  Standing (*placeSingles)(const Tables& tables, Workspace& work, Level& level);
  bool (*removeLocked)(const Tables& tables, Workspace& work, Level& level);
  // Searches on from levels[0].
  Result (*search)(const Tables& tables, Workspace& work, const Request& request);
  // Makes the complete solution, digits 1..9, the givens.
  void (*give)(const Tables& tables, const std::uint8_t* solution, Givens& givens);
  // Whether the givens without that of `cell` have a completion with another digit there.
  bool (*hasOther)(const Tables& tables, Workspace& work, const Givens& givens, int cell);
  // Takes the given of `cell` out, or puts it back.
  void (*take)(const Tables& tables, Givens& givens, int cell);
  void (*putBack)(const Tables& tables, Givens& givens, int cell);
};

}  // namespace tessel::solver
