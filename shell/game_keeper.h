// The file of the unfinished game, in the folder of the puzzle file.
#pragma once

#include <optional>
#include <string>
#include <tl/expected.hpp>

#include "shell/kept_game.h"
#include "shell/system_calls.h"

namespace tessel {

inline constexpr char kGameFileName[] = "Tessel_Sudoku.game";

class GameKeeper {
 public:
  // `programPath` must live as long as the keeper; for the folders see PuzzleFolder.
  GameKeeper(const std::string& programPath, std::optional<std::string> userFolder,
             SystemCalls& system)
      : programPath_(programPath), userFolder_(std::move(userFolder)), system_(system) {}

  bool IsThere() const;
  // Replaces the file as a whole, so that it holds this game or the one before whenever the program
  // ends. It is not waited for until the disk has it: that would take longer than a move may.
  // Returns what went wrong, for the foot of the window.
  std::optional<std::string> Keep(const PuzzleRecord& puzzle, const Position& position,
                                  const History& history);
  void Forget();
  // Or what went wrong, for the foot of the window. A file that holds no game is put aside under a
  // name of its own, which is told.
  tl::expected<KeptGame, std::string> Load();

 private:
  std::string Folder() const;
  std::string Path() const { return Folder() + kGameFileName; }
  tl::expected<std::string, std::string> Read(const std::string& path) const;
  std::string PutAside(const std::string& path);

  const std::string& programPath_;
  std::optional<std::string> userFolder_;
  SystemCalls& system_;
};

}  // namespace tessel
