// The stages of the generation, as its buttons show them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "core/form.h"

namespace tessel {

enum class Stage : std::uint8_t {
  kLayoutNeeded,
  kLayoutMade,
  kGridFilled,
  kPuzzleConcealed,  // and saved, where that was possible
  kSawing,
  kFilling,
  kConcealing,
};

// The buttons whose looks a stage decides.
inline constexpr std::array kStageButtons{Button::CommandSaw, Button::CommandGo,
                                          Button::CommandConceal, Button::CommandSolve,
                                          Button::CommandExit};

struct StageTraits {
  Stage stage;
  std::array<bool, kStageButtons.size()> enabled;  // Saw, Fill, Conceal, Solve, Exit
  const char* fillCaption = texts::kFill;
  const char* concealCaption = texts::kConceal;
};

inline constexpr bool kOn = true;
inline constexpr bool kOff = false;

// A running command leaves nothing enabled but its own "Stop"; sawing cannot be stopped.
inline constexpr std::array<StageTraits, 7> kStages{{
    {Stage::kLayoutNeeded, {kOn, kOff, kOff, kOff, kOn}},
    {Stage::kLayoutMade, {kOn, kOn, kOff, kOff, kOn}},
    {Stage::kGridFilled, {kOn, kOn, kOn, kOff, kOn}},
    {Stage::kPuzzleConcealed, {kOn, kOn, kOn, kOn, kOn}},
    {Stage::kSawing, {kOff, kOff, kOff, kOff, kOff}},
    {Stage::kFilling, {kOff, kOn, kOff, kOff, kOff}, texts::kStop},
    {Stage::kConcealing, {kOff, kOff, kOn, kOff, kOff}, texts::kFill, texts::kStop},
}};

// The enabled button of the next stage; none while a command runs or a game is open.
std::optional<Button> NextStep(const Form& form);

// Enables and captions the stage's buttons; touches nothing else.
void ShowStage(Form& form, Stage stage);

}  // namespace tessel
