#include "shell/qt/view_actions.h"

#include <functional>

#include "shell/qt/softer_colours.h"

namespace tessel {

namespace {

// A choice between on and off that outlives the program.
struct Choice {
  Entry entry;
  const char* key;
  bool byDefault;
};

constexpr Choice kSameDigits{Entry::kSameDigits, "view/same-digits", false};
constexpr Choice kDigitBar{Entry::kDigitBar, "view/digit-bar", false};
constexpr Choice kSofter{Entry::kSofterColours, "view/softer-colours", false};
constexpr Choice kSounds{Entry::kSounds, "view/sounds", true};

bool IsOn(const Preferences& preferences, const Choice& choice) {
  return preferences.Flag(choice.key, choice.byDefault);
}

void Offer(
    MenuBar& menu, Preferences& preferences, const Choice& choice, const MenuBar::Switch& apply,
    const MenuBar::Condition& canAct = [] { return true; }) {
  apply(IsOn(preferences, choice));
  menu.ConnectSwitch(
      choice.entry, [&preferences, choice] { return IsOn(preferences, choice); },
      [&preferences, choice, apply](bool on) {
        preferences.SetFlag(choice.key, on);
        apply(on);
      },
      canAct);
}

}  // namespace

const CageColours& ChosenColours(const Preferences& preferences) {
  return IsOn(preferences, kSofter) ? kSofterCages : kCageColours;
}

bool WantsSounds(const Preferences& preferences) {
  return IsOn(preferences, kSounds);
}

void ConnectViewMenu(MenuBar& menu, const ViewTargets& targets) {
  const auto& [window, board, panel, form, preferences, sounds] = targets;
  Offer(menu, preferences, kSameDigits, [&board = board](bool on) { board.RingSameDigits(on); });
  Offer(
      menu, preferences, kDigitBar,
      [&panel = panel, &form = form](bool on) { panel.OfferDigitBar(on, form); },
      [&panel = panel] { return panel.HasRoomForDigitBar(); });
  Offer(menu, preferences, kSofter, [&board = board, &preferences = preferences](bool) {
    board.SetCageColours(ChosenColours(preferences));
  });
  Offer(menu, preferences, kSounds, [sounds = sounds](bool on) {
    if (sounds != nullptr) sounds->Turn(on);
  });
  menu.ConnectSwitch(
      Entry::kFullScreen, [&window = window] { return window.isFullScreen(); },
      [&window = window](bool on) {
        window.setWindowState(window.windowState().setFlag(Qt::WindowFullScreen, on));
      });
}

}  // namespace tessel
