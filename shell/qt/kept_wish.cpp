#include "shell/qt/kept_wish.h"

namespace tessel {

namespace {

constexpr char kLayout[] = "new/layout";
constexpr char kSymmetric[] = "new/symmetric-givens";
constexpr char kLevel[] = "new/level";  // 0 for any

}  // namespace

NewPuzzleWish KeptWish(const Preferences& preferences) {
  NewPuzzleWish wish;
  wish.layout =
      static_cast<maker::LayoutKind>(preferences.Choice(kLayout, maker::kLayoutKindCount, 0));
  wish.symmetricGivens = preferences.Flag(kSymmetric, false);
  const int level = preferences.Choice(kLevel, grade::kLevelCount + 1, 0);
  if (level > 0) wish.level = static_cast<grade::Level>(level);
  return wish;
}

void KeepWish(Preferences& preferences, const NewPuzzleWish& wish) {
  if (wish == KeptWish(preferences)) return;
  preferences.SetChoice(kLayout, static_cast<int>(wish.layout));
  preferences.SetFlag(kSymmetric, wish.symmetricGivens);
  preferences.SetChoice(kLevel, wish.level ? static_cast<int>(*wish.level) : 0);
}

}  // namespace tessel
