// The hint pass for marks that the player keeps by hand: it solves silently on a copy of the marks
// until it meets a single, and announces that cell.
#pragma once

#include <optional>
#include <string>

#include "core/form.h"
#include "core/game_state.h"
#include "core/sounds.h"
#include "hints/technique.h"
#include "shell/subset_arguments.h"

namespace tessel {

// The pass's two sentences: the cell that it announces, and on the next click the digit.
std::string AnnouncedCell(int cell);
std::string RevealedDigit(int cell, int digit);

class SpecialPass {
 public:
  SpecialPass(GameState& state, Form& form, Sounds& sounds)
      : state_(state), form_(form), sounds_(sounds) {}

  // Needs a complete layout, as all of them do.
  void SpecialHint();

  // The techniques, on SpecialMarks alone. The singles only report; the others eliminate and return
  // true only when a mask has changed.
  bool SpHiddenSingle();
  bool SpNakedSingle();
  bool SpPointingPair();
  bool SpBoxLine();
  bool SpNakedHidden(CountSubset count, Subset Naked);

 private:
  // How much of a hint the pass takes at a time.
  enum class Share : std::uint8_t { kFirstCell, kAll };

  std::optional<Hint> Find(const Technique& technique);
  bool Eliminate(const Technique& technique, Share share);
  bool MakeElimination();
  void Announce();

  GameState& state_;
  Layout layout_ = Layout::Regular();  // of the state, as of the last search
  Form& form_;
  Sounds& sounds_;
};

}  // namespace tessel
