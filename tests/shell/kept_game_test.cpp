// The unfinished game as text.
#include "shell/kept_game.h"

#include <gtest/gtest.h>

#include "core/random_source.h"
#include "tests/shell/known_puzzle.h"

namespace tessel {
namespace {

Position Opened() {
  Position position;
  position.PlayBoard = KnownPuzzle();
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (!IsKnownGiven(cell)) position.Candidates[cell] = KnownCandidates(cell);
  }
  return position;
}

// Any change that leaves the givens alone.
Position Changed(Position position, RandomSource& random) {
  for (int change = DrawIndex(random, 20); change >= 0; --change) {
    const int cell = DrawIndex(random, kCellCount);
    if (IsKnownGiven(cell)) continue;
    position.PlayBoard.Board[cell] = static_cast<std::uint8_t>(DrawIndex(random, kSide + 1));
    position.Candidates[cell] = static_cast<Mask>(DrawIndex(random, kAllCandidates + 1));
    position.CandidatesBeforeEntry[cell] = static_cast<Mask>(DrawIndex(random, kAllCandidates + 1));
  }
  position.PencilmarkMode =
      DrawIndex(random, 9) == 0 ? MarkMode::kNotUpdated : MarkMode::kAutomatic;
  return position;
}

KeptGame Played(int moves, int undone, std::uint64_t seed = 1) {
  SeededRandom random(seed);
  KeptGame game{KnownPuzzle(), Opened(), {}};
  for (int move = 0; move < moves; ++move) {
    const Position next = Changed(game.position, random);
    game.history.Record(game.position, next);
    game.position = next;
  }
  for (int step = 0; step < undone; ++step) {
    game.position = game.history.Undo(game.position).value();
  }
  return game;
}

std::string TextOf(const KeptGame& game) {
  return TextOf(game.puzzle, game.position, game.history);
}

TEST(KeptGame, ComesBackWithItsHistory) {
  for (const auto& [moves, undone] : {std::pair(0, 0), {1, 0}, {1, 1}, {60, 0}, {200, 77}}) {
    const KeptGame game = Played(moves, undone);
    const auto read = ReadGame(TextOf(game));
    ASSERT_TRUE(read.has_value()) << read.error();
    EXPECT_EQ(*read, game);
  }
}

TEST(KeptGame, KeepsTheNearestStepsOfALongHistory) {
  const KeptGame game = Played(1500, 700);
  auto read = ReadGame(TextOf(game));
  ASSERT_TRUE(read.has_value()) << read.error();
  EXPECT_EQ(read->history.Past().size(), kKeptSteps);
  EXPECT_EQ(read->history.Undone().size(), kKeptSteps);
  KeptGame whole = game;
  EXPECT_EQ(read->history.Undo(game.position), whole.history.Undo(game.position));
  EXPECT_EQ(ReadGame(TextOf(game))->history.Redo(game.position),
            KeptGame(game).history.Redo(game.position));
}

TEST(KeptGame, EveryTruncatedTextIsRefused) {
  const std::string text = TextOf(Played(3, 1));
  for (std::size_t length = 0; length < text.size(); ++length) {
    EXPECT_FALSE(ReadGame(text.substr(0, length)).has_value()) << length;
  }
}

TEST(KeptGame, EveryChangedByteIsRefused) {
  const std::string text = TextOf(Played(3, 1));
  for (std::size_t at = 0; at < text.size(); ++at) {
    std::string changed = text;
    changed[at] = static_cast<char>(changed[at] ^ 1);
    EXPECT_FALSE(ReadGame(changed).has_value()) << at;
  }
}

// The text with another line in the place of one, and a last line that vouches for it.
std::string Forged(const KeptGame& game, std::size_t line, const std::string& other) {
  std::string text = TextOf(game);
  std::size_t at = 0;
  for (std::size_t skipped = 1; skipped < line; ++skipped) at = text.find('\n', at) + 1;
  text.replace(at, text.find('\n', at) - at, other);
  return Vouched(text.substr(0, text.rfind("end ")));
}

TEST(KeptGame, ForgedTextIsRefusedWithItsLine) {
  const KeptGame game = Played(2, 1);
  const std::string digits(kCellCount, '1');
  const std::pair<std::size_t, std::string> lines[] = {{2, "123"},
                                                       {2, std::string(kCellCount, 'x')},
                                                       {4, digits},
                                                       {5, "=2"},
                                                       {5, "=9"},
                                                       {6, "-3"},
                                                       {6, "-2811000000"},
                                                       {6, "-2010000fff"},
                                                       {6, "-201x000000"},
                                                       {6, "-2 11000000"},
                                                       {6, "-2020000000010000000"},
                                                       {6, "-2000000000"},
                                                       {6, "*2"},
                                                       {6, ""}};
  for (const auto& [line, other] : lines) {
    const auto read = ReadGame(Forged(game, line, other));
    ASSERT_FALSE(read.has_value()) << line << ' ' << other;
    EXPECT_TRUE(read.error().starts_with("line ")) << read.error();
  }
  EXPECT_TRUE(ReadGame(Forged(game, 6, "-1")).has_value());
}

// The givens agree with it, but two cells of a row have each other's digits.
TEST(KeptGame, SolutionThatBreaksARuleIsRefused) {
  KeptGame game = Played(2, 1);
  int cell = 0;
  while (IsKnownGiven(cell) || IsKnownGiven(cell + 1) || ColumnOf(cell) == kSide - 1) ++cell;
  std::swap(game.puzzle.Solution[cell], game.puzzle.Solution[cell + 1]);
  const auto read = ReadGame(TextOf(game));
  ASSERT_FALSE(read.has_value());
  EXPECT_TRUE(read.error().ends_with("the solution does not fit")) << read.error();
}

TEST(KeptGame, ForeignTextIsRefused) {
  for (const char* text : {"", "\n", "end ", "Tessel Sudoku game 1\n", "{\"format\": 1}"}) {
    EXPECT_FALSE(ReadGame(text).has_value()) << text;
  }
  EXPECT_FALSE(ReadGame(std::string(10'000, '\0')).has_value());
}

}  // namespace
}  // namespace tessel
