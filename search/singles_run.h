// Naked singles placed one after another, aside: a level is opened for them only when they come to
// no dead end.
#pragma once

#include "search/outlook.h"

namespace tessel {

// What the singles change; kept from one run to the next because it is large. Until WriteSingles
// has taken it over, three things are not as in a level: a single's candidates are its digit's bit
// in a negative number, it keeps a rank, and what stands for the cells filled before has no
// meaning.
struct SinglesRun {
  PerCell<std::int16_t> Order{};
  Lanes Candidates{};
  Lanes Rank{};
  int count = 0;  // of the singles
};

// Places up to `most` singles of `level`, of which `outlook` names the first, and takes each digit
// from the unfilled cells that share a house with it. The cells move to the positions from `ptr`
// down, which is the last of the unfilled ones. The outlook after the last single.
Outlook PlaceSingles(const SearchLevel& level, const HouseLanes& lanes, Outlook outlook, int ptr,
                     int most, SinglesRun& run);

// Writes the run into `level`, which must equal the one it was read from; `ptr` as there.
void WriteSingles(const SinglesRun& run, int ptr, SearchLevel& level);

}  // namespace tessel
