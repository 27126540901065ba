// The oracles' layouts as the program takes them.
#pragma once

#include "tests/core/layouts.h"
#include "tests/oracle/search/oracle_board.h"

namespace tessel::oracle {

// The cages need not be connected.
inline tessel::Layout ProgramLayout(const Layout& layout) {
  return LayoutOfCages(layout.cageOfCell);
}

}  // namespace tessel::oracle
