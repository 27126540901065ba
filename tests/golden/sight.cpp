#include "tests/golden/sight.h"

#include <algorithm>
#include <bit>

namespace tessel {

namespace {

// Beyond so many changed cells the board is drawn.
constexpr int kManyCells = 12;
// Beyond so many cells with changed marks they are counted, not named.
constexpr std::size_t kManyMarks = 27;

constexpr std::array kAllButtons{
    Button::CommandSaw,     Button::CommandGo,       Button::CommandConceal,
    Button::CommandSolve,   Button::CommandExit,     Button::CommandHint,
    Button::CommandRestart, Button::CommandSolution, Button::CommandQuit};
constexpr std::array kAllBoxes{CheckBox::Rotational, CheckBox::MakeRegular,
                               CheckBox::ConcealRotational, CheckBox::CheckVisualize,
                               CheckBox::CheckPencilmarks};

using Lines = std::vector<std::string>;

std::string Joined(const Lines& words, const char* separator = ", ") {
  std::string all;
  for (const std::string& word : words) all += (all.empty() ? "" : separator) + word;
  return all;
}

std::string Quoted(const std::string& text) {
  return '"' + text + '"';
}

SeenCell Seen(const DisplayedCell& look) {
  SeenCell seen;
  seen.text = look.text;
  for (int digit = 1; digit <= kSide; ++digit) {
    const DisplayedMark& mark = look.marks[digit - 1];
    if (!mark.visible || mark.colour == look.PaintedBackground()) continue;
    seen.marks = static_cast<Mask>(seen.marks | BitOf(digit));
    if (mark.bold) seen.boldMarks = static_cast<Mask>(seen.boldMarks | BitOf(digit));
  }
  const auto colour = std::ranges::find(kCageColours, look.background);
  if (look.opaque && colour != kCageColours.end()) {
    seen.cage = 1 + static_cast<int>(colour - kCageColours.begin());
  }
  return seen;
}

char RowLetter(int row) {
  return "ABCDEFGHJ"[row];
}

// Nine rows of words, each column as wide as its widest word.
template <typename WordOf>
Lines Table(WordOf wordOf) {
  Lines lines{" "};
  for (int row = 0; row < kSide; ++row) lines.push_back({RowLetter(row)});
  for (int column = 0; column < kSide; ++column) {
    Lines words{std::to_string(column + 1)};
    for (int row = 0; row < kSide; ++row) words.push_back(wordOf(CellAt(row, column)));
    const std::size_t width = std::ranges::max(words, {}, &std::string::size).size();
    for (std::size_t line = 0; line < words.size(); ++line) {
      const std::string padding(column == kSide - 1 ? 0 : width - words[line].size(), ' ');
      lines[line] += ' ' + words[line] + padding;
    }
  }
  return lines;
}

std::string WordFor(const SeenCell& cell) {
  if (cell.text == 0 && cell.marks == 0) return ".";
  std::string word = cell.text != 0 ? std::to_string(cell.text) : "";
  if (cell.marks == 0) return word;
  if (cell.marks == kAllCandidates && cell.boldMarks == 0) return word + "(1-9)";
  word += '(';
  for (int digit = 1; digit <= kSide; ++digit) {
    if (Holds(cell.marks, digit)) word += static_cast<char>('0' + digit);
    if (Holds(cell.boldMarks, digit)) word += '!';
  }
  return word + ')';
}

void TellWords(Lines& lines, const Sight& before, const Sight& after) {
  if (after.caption != before.caption)
    lines.push_back("The caption reads " + Quoted(after.caption) + '.');
  if (after.solving != before.solving) {
    lines.push_back(after.solving ? "The frame of the solving mode appears."
                                  : "The frame of the solving mode disappears.");
  }
  if (after.buttons != before.buttons) lines.push_back(ButtonsLine(after));
  if (after.ticked != before.ticked) {
    lines.push_back("Ticked: " + (after.ticked.empty() ? "nothing" : Joined(after.ticked)) + '.');
  }
  if (after.hintText != before.hintText && !after.hintText.empty()) {
    lines.push_back("The hint says " + Quoted(after.hintText) + '.');
  }
  if (after.redCaptions != before.redCaptions) {
    lines.push_back(after.redCaptions.empty() ? "All row and column captions are black."
                                              : "Red captions: " + after.redCaptions + '.');
  }
  if (after.notice != before.notice) {
    lines.push_back(after.notice.empty() ? "The notice is gone."
                                         : "The notice says " + Quoted(after.notice) + '.');
  }
}

void TellCages(Lines& lines, const Sight& before, const Sight& after) {
  const auto sameCage = [](const SeenCell& a, const SeenCell& b) { return a.cage == b.cage; };
  if (std::ranges::equal(before.cells, after.cells, sameCage)) return;
  lines.push_back("The cages:");
  for (const std::string& line : Table([&](int cell) {
         const int cage = after.cells[static_cast<std::size_t>(cell)].cage;
         return cage == 0 ? std::string(".") : std::to_string(cage);
       })) {
    lines.push_back("  " + line);
  }
}

// Whether a change of the cell is told by a line of its own.
bool DeservesALine(const SeenCell& before, const SeenCell& after) {
  const auto changed = static_cast<unsigned>(before.marks ^ after.marks);
  return before.text != after.text || std::popcount(changed) > 2;
}

void TellCells(Lines& lines, const Sight& before, const Sight& after) {
  for (std::size_t cell = 0; cell < kCellCount; ++cell) {
    if (!DeservesALine(before.cells[cell], after.cells[cell])) continue;
    const std::string word = WordFor(after.cells[cell]);
    lines.push_back(NameOfCell(static_cast<int>(cell)) +
                    (word == "." ? " shows nothing." : " shows " + word + '.'));
  }
}

// The marks that have come or gone in the other cells, digit by digit.
void TellMarks(Lines& lines, const Sight& before, const Sight& after, bool come) {
  for (int digit = 1; digit <= kSide; ++digit) {
    Lines names;
    for (std::size_t cell = 0; cell < kCellCount; ++cell) {
      const SeenCell& was = before.cells[cell];
      const SeenCell& is = after.cells[cell];
      if (DeservesALine(was, is) || Holds(was.marks, digit) == Holds(is.marks, digit)) continue;
      if (Holds(is.marks, digit) == come) names.push_back(NameOfCell(static_cast<int>(cell)));
    }
    if (names.empty()) continue;
    lines.push_back("Mark " + std::to_string(digit) + (come ? " appears in " : " is gone from ") +
                    Joined(names, " ") + '.');
  }
}

std::size_t CountCells(const Sight& a, const Sight& b,
                       bool (*differ)(const SeenCell&, const SeenCell&)) {
  std::size_t count = 0;
  for (std::size_t cell = 0; cell < kCellCount; ++cell) {
    if (differ(a.cells[cell], b.cells[cell])) ++count;
  }
  return count;
}

}  // namespace

Sight::Sight(const Form& form)
    : caption(form.Caption()), notice(form.Notice()), solving(form.SolveButtonsVisible()) {
  if (solving) hintText = form.TextHint();
  for (const Button button : kAllButtons) {
    const bool shown = !IsInSolveFrame(button) || (solving && form.SolveButtonsEnabled());
    if (shown && form.Of(button).enabled) buttons.push_back(form.Of(button).caption);
  }
  for (const CheckBox box : kAllBoxes) {
    if (form.Checked(box) && (solving || !IsInSolveFrame(box)))
      ticked.push_back(Quoted(CaptionOf(box)));
  }
  for (int line = 0; line < kSide; ++line) {
    if (form.LabelRow(line) == kHighlightRed) redCaptions += RowLetter(line);
  }
  for (int line = 0; line < kSide; ++line) {
    if (form.LabelColumn(line) == kHighlightRed) redCaptions += std::to_string(line + 1);
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    cells[static_cast<std::size_t>(cell)] = Seen(form.Cell(cell));
  }
}

std::vector<std::string> ChangesBetween(const Sight& before, const Sight& after) {
  Lines lines;
  TellWords(lines, before, after);
  TellCages(lines, before, after);
  const auto texts = CountCells(
      before, after, [](const SeenCell& a, const SeenCell& b) { return a.text != b.text; });
  const auto marks = CountCells(before, after, [](const SeenCell& a, const SeenCell& b) {
    return a.marks != b.marks || a.boldMarks != b.boldMarks;
  });
  if (texts > kManyCells || marks > kManyMarks) {
    lines.emplace_back("The board:");
    for (const std::string& line : BoardLines(after)) lines.push_back("  " + line);
    return lines;
  }
  TellCells(lines, before, after);
  TellMarks(lines, before, after, false);
  TellMarks(lines, before, after, true);
  return lines;
}

std::string ButtonsLine(const Sight& sight) {
  return "To be clicked: " + Joined(sight.buttons) + '.';
}

std::vector<std::string> BoardLines(const Sight& sight) {
  return Table([&](int cell) { return WordFor(sight.cells[static_cast<std::size_t>(cell)]); });
}

const char* CaptionOf(CheckBox box) {
  switch (box) {
    case CheckBox::Rotational:
      return "Saw 180° Rotational";
    case CheckBox::MakeRegular:
      return "Make regular Sudoku";
    case CheckBox::ConcealRotational:
      return "Conceal 180° Rotational";
    case CheckBox::CheckVisualize:
      return "Visualize progress";
    case CheckBox::CheckPencilmarks:
      return "Update Pencilmarks";
  }
  return "";
}

std::string NameOfCell(int cell) {
  return RowLetter(RowOf(cell)) + std::to_string(ColumnOf(cell) + 1);
}

}  // namespace tessel
