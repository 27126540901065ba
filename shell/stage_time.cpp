#include "shell/stage_time.h"

#include <array>
#include <charconv>

#include "core/texts.h"

namespace tessel {

namespace {

// Two decimals after a point, whatever the locale.
std::string Milliseconds(double seconds) {
  std::array<char, 64> text;
  const auto end =
      std::to_chars(text.begin(), text.end(), seconds * 1000, std::chars_format::fixed, 2).ptr;
  return std::string(text.begin(), end) + " ms";
}

}  // namespace

void StartStopwatch(GameState& state, Clock& clock) {
  state.Stopwatch = std::make_unique<sTime>(clock);
  state.Stopwatch->Init();
  state.Stopwatch->StartTime();
}

void ShowStageTime(GameState& state, Form& form, const std::string& stage) {
  state.Stopwatch->StopTime();
  form.SetCaption(std::string(texts::kProgram) + " - " + stage + " in " +
                  Milliseconds(state.Stopwatch->RetTime()));
  state.Stopwatch.reset();
}

}  // namespace tessel
