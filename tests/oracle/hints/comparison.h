// What the comparisons share: how many boards, and how a board that differs is shown.
#pragma once

#include <ostream>

#include "core/game_state.h"
#include "tests/hints/hint_fields.h"
#include "tests/oracle/hints/literal_hints.h"
#include "tests/oracle/hints/random_scene.h"

namespace tessel::literal {

#ifdef __SANITIZE_ADDRESS__
inline constexpr int kShareOfBoards = 10;  // a tenth of the boards: sanitized code is slow
#else
inline constexpr int kShareOfBoards = 1;
#endif

HintFields FieldsOf(const LiteralHints& hints);
HintFields RandomFields(RandomSource& random);
std::ostream& operator<<(std::ostream& out, const Scene& scene);

MaskBoard MasksOf(const Board81& marks);

// Layouts without end, regular or random ones, a new solved grid every so many calls; and the
// chance that goes with them.
class SceneSource {
 public:
  SceneSource(bool regular, std::uint64_t seed) : random(seed), regular_(regular) {}

  const SolvedLayout& Layout();

  SeededRandom random;

 private:
  bool regular_;
  int taken_ = 0;
  SolvedLayout solved_;
};

}  // namespace tessel::literal
