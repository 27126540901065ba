// The arguments of the subset searches. The normal and the special search take them in opposite
// orders; as types of their own a swapped call does not compile.
#pragma once

namespace tessel {

enum class Subset : bool { Hidden, Naked };

struct CountSubset {
  int size;
};

}  // namespace tessel
