#include "shell/stage.h"

namespace tessel {

namespace {

constexpr const StageTraits& TraitsOf(Stage stage) {
  return kStages[static_cast<std::size_t>(stage)];
}

static_assert([] {
  for (std::size_t i = 0; i < kStages.size(); ++i) {
    if (static_cast<std::size_t>(kStages[i].stage) != i) return false;
  }
  return true;
}());

// The window opens in the first stage.
static_assert([] {
  for (std::size_t i = 0; i < kStageButtons.size(); ++i) {
    const bool enabled = TraitsOf(Stage::kLayoutNeeded).enabled[i];
    if (enabled != TraitsOf(kStageButtons[i]).enabledAtStart) return false;
  }
  return true;
}());

}  // namespace

std::optional<Button> NextStep(const Form& form) {
  if (form.Running() || form.SolveButtonsVisible()) return std::nullopt;
  std::optional<Button> last;
  for (const Button button : kStageButtons) {
    if (button != Button::CommandExit && form.Of(button).enabled) last = button;
  }
  return last;
}

void ShowStage(Form& form, Stage stage) {
  const StageTraits& traits = TraitsOf(stage);
  for (std::size_t i = 0; i < kStageButtons.size(); ++i) {
    form.Enable(kStageButtons[i], traits.enabled[i]);
  }
  form.SetButtonCaption(Button::CommandGo, traits.fillCaption);
  form.SetButtonCaption(Button::CommandConceal, traits.concealCaption);
}

}  // namespace tessel
