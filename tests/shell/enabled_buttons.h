// The enabled generation buttons as a list of words, to be compared with the stage they stand for.
#pragma once

#include <string>
#include <string_view>

#include "core/form.h"
#include "core/texts.h"

namespace tessel {

inline constexpr std::string_view kLayoutNeeded = "Saw Exit";
inline constexpr std::string_view kLayoutMade = "Saw Fill Exit";
inline constexpr std::string_view kGridFilled = "Saw Fill Conceal Exit";
inline constexpr std::string_view kPuzzleConcealed = "Saw Fill Conceal Solve Exit";
inline constexpr std::string_view kSawing = "";
inline constexpr std::string_view kFilling = "Fill=Stop";
inline constexpr std::string_view kConcealing = "Conceal=Stop";

// In the order of the stages.
inline constexpr std::array kEnabledButtons{
    kLayoutNeeded, kLayoutMade, kGridFilled, kPuzzleConcealed, kSawing, kFilling, kConcealing};

inline std::string EnabledButtons(const Form& form) {
  constexpr std::array<std::string_view, 5> names{"Saw", "Fill", "Conceal", "Solve", "Exit"};
  std::string list;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const DisplayedButton& look = form.Of(static_cast<Button>(i));
    if (!look.enabled) continue;
    if (!list.empty()) list += ' ';
    list += names[i];
    if (look.caption == texts::kStop) list += "=Stop";
  }
  return list;
}

}  // namespace tessel
