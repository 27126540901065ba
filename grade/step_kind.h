// The kinds of step that a grade counts, from the easiest to the hardest, and the six levels.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tessel::grade {

enum class Level : std::uint8_t { kEasy = 1, kModerate, kTricky, kHard, kVeryHard, kBeyond };

inline constexpr int kLevelCount = 6;

// "Easy", "Moderate", "Tricky", "Hard", "Very hard" or "Beyond".
std::string_view NameOf(Level level);

// In the order in which a solver who always starts again with the easiest kind tries them.
enum class StepKind : std::uint8_t {
  kNakedSingle,
  kHiddenSingle,
  kPointing,  // a cage's places for a digit are all seen from a cell outside it
  kClaiming,  // a line's places for a digit all lie in one cage
  kNakedPair,
  kHiddenPair,
  kNakedTriple,
  kHiddenTriple,
  kTwoLineLeftovers,  // the Law of Leftovers, for two adjacent lines and two cages
  kNakedQuad,
  kXWing,
  kThreeLineLeftovers,
  kSwordFish,
  kFourLineLeftovers,
};

struct StepKindFacts {
  StepKind kind;
  std::string_view name;  // in a sentence: "naked single"
  std::string_view key;   // in columns and options: "naked_single"
  Level level;            // of a puzzle whose hardest step it is
  int weight;             // of one step in the score
};

// In the order of StepKind: levels never fall, nor do weights within a level.
inline constexpr std::array kStepKinds{
    StepKindFacts{StepKind::kNakedSingle, "naked single", "naked_single", Level::kEasy, 4},
    StepKindFacts{StepKind::kHiddenSingle, "hidden single", "hidden_single", Level::kEasy, 14},
    StepKindFacts{StepKind::kPointing, "pointing", "pointing", Level::kModerate, 50},
    StepKindFacts{StepKind::kClaiming, "claiming", "claiming", Level::kModerate, 50},
    StepKindFacts{StepKind::kNakedPair, "naked pair", "naked_pair", Level::kTricky, 60},
    StepKindFacts{StepKind::kHiddenPair, "hidden pair", "hidden_pair", Level::kTricky, 70},
    StepKindFacts{StepKind::kNakedTriple, "naked triple", "naked_triple", Level::kTricky, 80},
    StepKindFacts{StepKind::kHiddenTriple, "hidden triple", "hidden_triple", Level::kTricky, 100},
    StepKindFacts{StepKind::kTwoLineLeftovers, "leftovers of two lines", "leftovers_2",
                  Level::kHard, 110},
    StepKindFacts{StepKind::kNakedQuad, "naked quad", "naked_quad", Level::kHard, 120},
    StepKindFacts{StepKind::kXWing, "X-Wing", "x_wing", Level::kVeryHard, 140},
    StepKindFacts{StepKind::kThreeLineLeftovers, "leftovers of three lines", "leftovers_3",
                  Level::kVeryHard, 140},
    StepKindFacts{StepKind::kSwordFish, "SwordFish", "swordfish", Level::kVeryHard, 150},
    StepKindFacts{StepKind::kFourLineLeftovers, "leftovers of four lines", "leftovers_4",
                  Level::kVeryHard, 150},
};

inline constexpr std::size_t kStepKindCount = kStepKinds.size();

// The row of the kind.
constexpr const StepKindFacts& FactsOf(StepKind kind) {
  return kStepKinds[static_cast<std::size_t>(kind)];
}

// The kind of that key or name; capitals count as small letters, blanks and hyphens as underscores.
std::optional<StepKind> StepKindNamed(std::string_view name);

namespace step_kind_detail {

constexpr bool InOrder() {
  for (std::size_t i = 0; i < kStepKindCount; ++i) {
    if (static_cast<std::size_t>(kStepKinds[i].kind) != i) return false;
    if (i == 0) continue;
    const StepKindFacts& before = kStepKinds[i - 1];
    if (kStepKinds[i].level < before.level) return false;
    if (kStepKinds[i].level == before.level && kStepKinds[i].weight < before.weight) return false;
  }
  return true;
}
static_assert(InOrder());

}  // namespace step_kind_detail

}  // namespace tessel::grade
