#include "shell/kept_game.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "core/layout.h"

namespace tessel {

namespace {

constexpr std::string_view kFirstLine = "Tessel Sudoku game 1\n";
constexpr char kNow = '=';
constexpr char kPast = '-';
constexpr char kUndone = '+';
constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::size_t kCellChars = 9;  // two of the cell, one of the digit, three of each mask

// FNV-1a.
std::uint64_t HashOf(std::string_view text) {
  std::uint64_t hash = 0xcbf29ce484222325;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  return hash;
}

std::string LastLineOf(std::string_view text) {
  std::string line = "end ";
  const std::uint64_t hash = HashOf(text);
  for (int shift = 60; shift >= 0; shift -= 4) line += kHexDigits[hash >> shift & 15];
  return line + '\n';
}

void WriteMask(Mask mask, std::string& text) {
  for (int shift = 8; shift >= 0; shift -= 4) text += kHexDigits[mask >> shift & 15];
}

void WriteLine(char kind, const Difference& difference, std::string& text) {
  text += kind;
  text += static_cast<char>('0' + static_cast<int>(difference.mode));
  for (const auto& [cell, digit, candidates, candidatesBeforeEntry] : difference.cells) {
    text += static_cast<char>('0' + cell / 10);
    text += static_cast<char>('0' + cell % 10);
    text += static_cast<char>('0' + digit);
    WriteMask(candidates, text);
    WriteMask(candidatesBeforeEntry, text);
  }
  text += '\n';
}

void WriteDigits(const Grid& digits, std::string& text) {
  for (const std::uint8_t digit : digits) text += static_cast<char>('0' + digit);
  text += '\n';
}

void WriteSteps(char kind, std::span<const Difference> steps, std::string& text) {
  const auto nearest = steps.last(std::min(steps.size(), kKeptSteps));
  for (const Difference& step : nearest) WriteLine(kind, step, text);
}

// Takes the text apart; whatever is not as it should be sets a fault, after which all is empty.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  // Nothing where none was found.
  const std::optional<std::string>& Fault() const { return fault_; }
  void Expect(bool holds, const char* otherwise) {
    if (!holds && !fault_) fault_ = "line " + std::to_string(line_) + ": " + otherwise;
  }

  bool NextIs(char kind) const { return !fault_ && rest_.starts_with(kind); }
  bool AtEnd() const { return rest_.empty(); }
  Grid Digits(char lowest) {
    const std::string_view line = Line();
    Expect(line.size() == kCellCount, "not 81 digits");
    Grid digits{};
    for (std::size_t cell = 0; cell < kCellCount && !fault_; ++cell) {
      Expect(line[cell] >= lowest && line[cell] <= '9', "no digit");
      digits[cell] = static_cast<std::uint8_t>(line[cell] - '0');
    }
    return digits;
  }
  Difference Step(const Grid& givens);
  std::string_view Line();

 private:
  Difference::InCell Cell(std::string_view chars);
  int Number(std::string_view chars, int base, int max);

  std::string_view rest_;
  int line_ = 0;
  std::optional<std::string> fault_;
};

std::string_view Reader::Line() {
  ++line_;
  const std::size_t end = rest_.find('\n');
  Expect(end != std::string_view::npos, "a line is missing");
  if (fault_) return {};
  const std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(end + 1);
  return line;
}

int Reader::Number(std::string_view chars, int base, int max) {
  int number = 0;
  for (const char c : chars) {
    const std::size_t value = kHexDigits.substr(0, static_cast<std::size_t>(base)).find(c);
    Expect(value != std::string_view::npos, "not a number");
    if (fault_) return 0;
    number = base * number + static_cast<int>(value);
  }
  Expect(number <= max, "a number is too large");
  return fault_ ? 0 : number;
}

Difference::InCell Reader::Cell(std::string_view chars) {
  return {static_cast<std::uint8_t>(Number(chars.substr(0, 2), 10, kCellCount - 1)),
          static_cast<std::uint8_t>(Number(chars.substr(2, 1), 10, kSide)),
          static_cast<Mask>(Number(chars.substr(3, 3), 16, kAllCandidates)),
          static_cast<Mask>(Number(chars.substr(6, 3), 16, kAllCandidates))};
}

Difference Reader::Step(const Grid& givens) {
  const std::string_view line = Line();
  Expect(line.size() >= 2 && line.size() % kCellChars == 2, "not a step");
  if (fault_) return {};
  Expect(line[1] == '1' || line[1] == '2', "no such way to keep marks");
  Difference step{{}, static_cast<MarkMode>(line[1] - '0')};
  for (std::size_t at = 2; at < line.size() && !fault_; at += kCellChars) {
    const Difference::InCell next = Cell(line.substr(at, kCellChars));
    Expect(step.cells.empty() || step.cells.back().cell < next.cell, "cells out of order");
    const int given = givens[next.cell];
    Expect(given == 0 || (next.digit == given && next.candidates == 0), "a given is changed");
    step.cells.push_back(next);
  }
  return step;
}

bool SolvesHouses(const Layout& layout, const Grid& solution) {
  return std::ranges::all_of(layout.AllHouses(), [&](const House& house) {
    int digits = 0;
    for (const int cell : house.cells) digits |= BitOf(solution[cell]);
    return digits == kAllCandidates;
  });
}

bool IsSound(const PuzzleRecord& puzzle) {
  const auto layout = Layout::FromCages(puzzle.CageMap, Layout::Shape::kAny);
  if (!layout || !SolvesHouses(*layout, puzzle.Solution)) return false;
  return std::ranges::equal(puzzle.Board, puzzle.Solution,
                            [](int given, int digit) { return given == 0 || given == digit; });
}

PuzzleRecord ReadPuzzle(Reader& reader) {
  PuzzleRecord puzzle;
  puzzle.Board = reader.Digits('0');
  puzzle.Solution = reader.Digits('1');
  puzzle.CageMap = reader.Digits('1');
  if (!reader.Fault()) reader.Expect(IsSound(puzzle), "the solution does not fit");
  return puzzle;
}

Position ReadPosition(Reader& reader, const PuzzleRecord& puzzle) {
  Position position;
  position.PlayBoard = puzzle;
  reader.Expect(reader.NextIs(kNow), "no position");
  const Difference whole = reader.Step(puzzle.Board);
  reader.Expect(whole.cells.size() == kCellCount, "not 81 cells");
  return With(whole, position);
}

std::vector<Difference> ReadSteps(Reader& reader, char kind, const Grid& givens) {
  std::vector<Difference> steps;
  while (reader.NextIs(kind)) steps.push_back(reader.Step(givens));
  reader.Expect(steps.size() <= kKeptSteps, "too many steps");
  return steps;
}

}  // namespace

std::string TextOf(const PuzzleRecord& puzzle, const Position& position, const History& history) {
  std::string text(kFirstLine);
  WriteDigits(puzzle.Board, text);
  WriteDigits(puzzle.Solution, text);
  WriteDigits(puzzle.CageMap, text);
  WriteLine(kNow, WholeOf(position), text);
  WriteSteps(kPast, history.Past(), text);
  WriteSteps(kUndone, history.Undone(), text);
  return Vouched(std::move(text));
}

std::string Vouched(std::string lines) {
  return std::move(lines += LastLineOf(lines));
}

tl::expected<KeptGame, std::string> ReadGame(std::string_view text) {
  if (!text.starts_with(kFirstLine)) return tl::unexpected<std::string>("not a game");
  const std::size_t end = std::min(text.rfind("end "), text.size());
  if (text.substr(end) != LastLineOf(text.substr(0, end))) {
    return tl::unexpected<std::string>("not whole");
  }
  Reader reader(text.substr(0, end));
  reader.Line();
  KeptGame game;
  game.puzzle = ReadPuzzle(reader);
  game.position = ReadPosition(reader, game.puzzle);
  auto past = ReadSteps(reader, kPast, game.puzzle.Board);
  game.history = {std::move(past), ReadSteps(reader, kUndone, game.puzzle.Board)};
  reader.Expect(reader.AtEnd(), "not a step");
  if (reader.Fault()) return tl::unexpected(*reader.Fault());
  return game;
}

}  // namespace tessel
