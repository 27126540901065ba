// The choices of New…, kept from one start to the next.
#pragma once

#include "shell/new_puzzle.h"
#include "shell/qt/preferences.h"

namespace tessel {

// Any random layout and level where nothing was kept, or nothing that can be wished.
NewPuzzleWish KeptWish(const Preferences& preferences);
void KeepWish(Preferences& preferences, const NewPuzzleWish& wish);

}  // namespace tessel
