// The drawing in text: 19 lines of 37 characters, then an empty line. Only written.
//
//   .---.---------------.        walls of cages '-' and '|', nothing inside a cage
//   | 4 | 8   .   7   3 |        digits, '.' for an empty cell
//   :   '---.       .---:        corners: '.' a wall goes down from here, ''' one comes from above,
//                                ':' both, where a level wall meets them; upright ones go on as '|'
#pragma once

#include "formats/format.h"

namespace tessel::formats {

Writing WriteDrawing(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
