// Finds boards for every hint that the ladder can give and writes them to standard output in the
// form of tests/hints/boards.txt. Build the target `find_hint_boards` and run it without arguments.
#include <iostream>
#include <map>
#include <string>

#include "tests/oracle/hints/comparison.h"
#include "tests/oracle/hints/literal_click.h"

namespace tessel::literal {
namespace {

// What a board is found for: the hint's code and, for subsets, the pattern's name.
std::string PurposeOf(const LiteralClick& click) {
  std::string purpose = "kind " + std::to_string(click.hints.HintKind);
  if (click.hints.HintKind < 8 || click.hints.HintKind > 13) return purpose;
  return purpose + click.textHint.substr(1, click.textHint.find(" is present") - 1);
}

int WantedFor(const LiteralClick& click) {
  const bool subset = click.hints.HintKind >= 8 && click.hints.HintKind <= 13;
  return subset ? 2 : 3;
}

std::string LinesOf(const std::array<bool, 9>& red, const std::string& names) {
  std::string lines;
  for (std::size_t i = 0; i < 9; ++i) {
    if (red[i]) lines += names[i];
  }
  return lines.empty() ? "-" : lines;
}

void Write(const Scene& scene, const LiteralClick& click, const std::string& purpose) {
  std::cout << purpose << scene << "red      " << LinesOf(click.redRows, "ABCDEFGHJ") << ' '
            << LinesOf(click.redColumns, "123456789") << "\nsounds   " << click.sounds.at(0)
            << "\ntext     " << click.textHint << "\n\n";
}

LiteralHints HintsOf(const Scene& scene) {
  GameState state;
  Load(scene, state);
  return CopyOf(state);
}

LiteralClick ClickOn(const Scene& scene) {
  LiteralClick click;
  click.hints = HintsOf(scene);
  click.CommandHint_Click();
  return click;
}

// Whether the rung that follows the hint given finds something too. The naked quint is no rung
// here: a board that has one has a quad, which comes first.
bool NextRungFinds(const LiteralClick& click) {
  LiteralHints hints = click.hints;
  const std::string& text = click.textHint;
  if (hints.HintKind == 1) return hints.HiddenSingle();
  if (hints.HintKind <= 4) return hints.PointingPair();
  if (hints.HintKind == 5) return hints.BoxLine();
  if (hints.HintKind <= 7) return hints.NakedHidden(true, 2);
  if (text.starts_with("A naked pair")) return hints.NakedHidden(true, 3);
  if (text.starts_with("A naked triple")) return hints.NakedHidden(false, 2);
  if (text.starts_with("A hidden pair")) return hints.NakedHidden(true, 4);
  if (text.starts_with("A naked quad")) return hints.NakedHidden(false, 3);
  if (text.starts_with("A hidden triple")) return hints.XWing();
  if (hints.HintKind <= 15) return hints.SwordFish();
  return true;
}

// Eleven plain codes, nine naked and six hidden subsets. The last board found for each shows that
// its rung comes before the next.
constexpr std::size_t kPurposes = 26;

void FindAll() {
  std::map<std::string, int> found;
  std::size_t complete = 0;
  SceneSource regular(true, 3);
  SceneSource irregular(false, 4);
  for (int i = 0; complete < kPurposes; ++i) {
    SceneSource& source = i % 2 == 0 ? regular : irregular;
    const Scene scene = ConsistentScene(source.Layout(), source.random);
    const LiteralClick click = ClickOn(scene);
    if (click.sounds.empty()) continue;
    const std::string purpose = PurposeOf(click);
    int& count = found[purpose];
    if (count == WantedFor(click) || (i % 2 == 0 && count == 1))
      continue;  // one regular board each
    if (count == WantedFor(click) - 1 && !NextRungFinds(click)) continue;
    Write(scene, click, purpose);
    if (++count == WantedFor(click)) ++complete;
  }
}

}  // namespace
}  // namespace tessel::literal

int main() {
  tessel::literal::FindAll();
}
