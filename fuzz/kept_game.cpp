// Bytes to the reader of the game file, with a last line that vouches for them: what it takes must
// come back, and can be played.
#include "shell/kept_game.h"

#include "fuzz/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tessel::fuzz::Require;
  const std::string lines(reinterpret_cast<const char*>(data), size);
  Require(!tessel::ReadGame(lines + "x"), "what nothing vouches for is refused");
  auto game = tessel::ReadGame(tessel::Vouched(lines));
  if (!game) return 0;
  const std::string text = tessel::TextOf(game->puzzle, game->position, game->history);
  Require(tessel::ReadGame(text) == game, "the game comes back");
  while (game->history.CanUndo()) {
    game->position = *game->history.Undo(game->position);
    for (int cell = 0; cell < tessel::kCellCount; ++cell) {
      const int given = game->puzzle.Board[cell];
      Require(given == 0 || game->position.PlayBoard.Board[cell] == given, "givens stay");
    }
  }
  return 0;
}
