// The arguments of the subset searches by name. The normal and the special search take them in
// opposite orders; as types of their own a swapped call does not compile.
#pragma once

#include "hints/subset.h"

namespace tessel {

struct CountSubset {
  int size;
};

}  // namespace tessel
