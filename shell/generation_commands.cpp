#include "shell/generation_commands.h"

#include <utility>

#include "core/texts.h"
#include "shell/concealing.h"
#include "shell/filling.h"
#include "shell/puzzle_file.h"
#include "shell/puzzle_folder.h"
#include "shell/puzzle_saver.h"
#include "shell/sawing.h"
#include "shell/stage.h"
#include "shell/stage_time.h"
#include "shell/window_progress.h"
#include "solver/solver.h"

namespace tessel {

namespace {

// Stands for the run of a command. Events come in meanwhile: the board and the frame of the solving
// mode answer none of them, since they could meet a half-made layout; their own enabled states are
// left alone.
class RunningCommandScope {
 public:
  RunningCommandScope(Form& form, Button button) : form_(form) {
    form_.SetRunning(button);
    form_.SetNotice("");
    form_.SetNews(form_.SolveButtonsVisible() ? texts::kGameStaysOpen : "");
    if (form_.SolveButtonsVisible()) ShowEveryMark();
  }
  RunningCommandScope(const RunningCommandScope&) = delete;
  RunningCommandScope& operator=(const RunningCommandScope&) = delete;
  ~RunningCommandScope() { form_.SetRunning(std::nullopt); }

 private:
  // An open game has hidden marks, and the commands draw on what is visible.
  void ShowEveryMark() {
    for (int cell = 0; cell < kCellCount; ++cell) form_.SetMarksVisible(cell, true);
  }

  Form& form_;
};

void Clear(Form& form, int cell) {
  form.SetCellText(cell, 0);
  form.SetCellOpaque(cell, false);
  form.SetMarksColour(cell, kBlack);
}

PuzzleRecord RecordOf(const GameState& state) {
  PuzzleRecord record;
  for (int cell = 0; cell < kCellCount; ++cell) {
    record.Board[cell] = static_cast<std::uint8_t>(state.Puzzle[cell]);
    record.Solution[cell] = static_cast<std::uint8_t>(state.WorkGrid[cell]);
    record.CageMap[cell] = static_cast<std::uint8_t>(state.CageOfCell[cell]);
  }
  return record;
}

}  // namespace

GenerationCommands::GenerationCommands(GameState& state, Form& form, View& view, Clock& clock,
                                       RandomSource& random, SystemCalls& system,
                                       std::optional<std::string> userFolder)
    : state_(state),
      form_(form),
      view_(view),
      clock_(clock),
      random_(random),
      system_(system),
      userFolder_(std::move(userFolder)) {}

void GenerationCommands::CommandSaw_Click() {
  form_.SetCaption(texts::kProgram);
  const RunningCommandScope scope(form_, Button::CommandSaw);
  ShowStage(form_, Stage::kSawing);
  RunSaw();
  ShowStage(form_, Stage::kLayoutMade);
}

void GenerationCommands::RunSaw() {
  for (int cell = 0; cell < kCellCount; ++cell) Clear(form_, cell);
  StartStopwatch(state_, clock_);
  Sawing sawing(state_, form_, view_, random_, clock_, solver::CanBeFilled);
  if (form_.Checked(CheckBox::MakeRegular)) {
    sawing.BuildRegularLayout();
  } else {
    sawing.BuildTesselPattern();
  }
  ShowStageTime(state_, form_, "Sawed");
}

// A second click, on "Stop", comes in while the first one's handler is still at work and leaves the
// rest to it.
void GenerationCommands::CommandGo_Click() {
  form_.SetCaption(texts::kProgram);
  if (form_.Running()) {
    state_.StopRequested = true;
    return;
  }
  const RunningCommandScope scope(form_, Button::CommandGo);
  for (int cell = 0; cell < kCellCount; ++cell) form_.SetCellText(cell, 0);
  ShowStage(form_, Stage::kFilling);
  state_.StopRequested = false;
  ShowStage(form_, RunFill() ? Stage::kGridFilled : Stage::kLayoutMade);
}

bool GenerationCommands::RunFill() {
  return Filling(state_, form_, view_, random_, clock_, search_).GenerateTessel();
}

void GenerationCommands::CommandConceal_Click() {
  form_.SetCaption(texts::kProgram);
  if (form_.Running()) {
    state_.StopRequested = true;
    return;
  }
  const RunningCommandScope scope(form_, Button::CommandConceal);
  ShowStage(form_, Stage::kConcealing);
  state_.StopRequested = false;
  const bool concealed = RunConceal();
  if (concealed) SaveTessel();
  ShowStage(form_, concealed ? Stage::kPuzzleConcealed : Stage::kGridFilled);
}

bool GenerationCommands::RunConceal() {
  return Concealing(state_, form_, view_, random_, clock_, search_).ConcealCells2ValidTessel();
}

std::string GenerationCommands::PuzzleFilePath() const {
  return PuzzleFolder(state_.ProgramPath, userFolder_, system_) + kPuzzleFileName;
}

std::string GenerationCommands::FolderForPuzzles() {
  const std::string folder = PuzzleFolder(state_.ProgramPath, userFolder_, system_);
  if (folder != state_.ProgramPath) MakeFolder(folder, system_);
  return folder;
}

// A puzzle that cannot be saved can be solved all the same; the foot of the window tells.
void GenerationCommands::SaveTessel() {
  state_.SavedPuzzle = RecordOf(state_);
  const std::string path = FolderForPuzzles() + kPuzzleFileName;
  const auto letWindowAnswer = [this] { view_.PumpEventsNow(); };
  const auto number = SavePuzzle(path, state_.SavedPuzzle, system_, letWindowAnswer);
  if (number) {
    TellOfSave(*number, path);
  } else {
    form_.SetNotice("The puzzle could not be saved to " + path + ": " + number.error());
  }
}

void GenerationCommands::TellOfSave(std::int64_t number, const std::string& path) {
  const std::string solve = form_.SolveButtonsVisible() ? "; Solve opens it" : "";
  form_.SetNews("Saved as puzzle " + std::to_string(number) + " in " + path + solve);
}

}  // namespace tessel
