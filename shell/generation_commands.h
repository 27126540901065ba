// Saw, Fill and Conceal: their clicks, the stages that they lead to, and the saved puzzle.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/clock.h"
#include "core/form.h"
#include "core/game_state.h"
#include "core/random_source.h"
#include "core/view.h"
#include "search/exact_cover_search.h"
#include "shell/system_calls.h"

namespace tessel {

class GenerationCommands {
 public:
  GenerationCommands(GameState& state, Form& form, View& view, Clock& clock, RandomSource& random,
                     SystemCalls& system, std::optional<std::string> userFolder);

  // Each returns when its work is done or has been stopped, and lets events in until then. A click
  // that comes in meanwhile stops the work, where it can be stopped.
  void CommandSaw_Click();
  void CommandGo_Click();
  void CommandConceal_Click();

  // Where puzzles are saved.
  std::string PuzzleFilePath() const;

 private:
  void RunSaw();
  bool RunFill();     // whether it completed
  bool RunConceal();  // likewise
  // Makes it where that is needed.
  std::string FolderForPuzzles();
  void SaveTessel();
  void TellOfSave(std::int64_t number, const std::string& path);

  GameState& state_;
  Form& form_;
  View& view_;
  Clock& clock_;
  RandomSource& random_;
  SystemCalls& system_;
  std::optional<std::string> userFolder_;  // for puzzles that cannot be saved beside the program
  ExactCoverSearch search_{Layout::Regular()};
};

}  // namespace tessel
