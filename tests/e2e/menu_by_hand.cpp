#include "tests/e2e/menu_by_hand.h"

#include <fstream>

#include "tests/e2e/desktop.h"
#include "tests/e2e/entry_keys.h"
#include "tests/e2e/eventually.h"
#include "tests/formats/example.h"

namespace tessel {

PuzzleRecord ExampleRecord() {
  const Puzzle puzzle = formats::Example().puzzle;
  return {puzzle.givens, *puzzle.solution, puzzle.layout.Cages()};
}

MenuByHand::MenuByHand() {
  InstallProgram(folder_.Path());
  std::ofstream(folder_.PuzzleFile(), std::ios::binary) << formats::ExampleIn("sds");
  const std::string config = (folder_.Path() / "config").string();
  launch_.environment.insert("XDG_CONFIG_HOME", QString::fromStdString(config));
}

void MenuByHand::Starts() {
  user_.reset();
  user_.emplace(folder_.Path(), launch_);
  EXPECT_TRUE(user_->ResizesWindow(GetParam()));
}

std::vector<MenuByHand::Way> MenuByHand::WaysTo(Entry entry) {
  std::vector<Way> ways{{"the mouse", [this, entry] { user_->Choose(entry); }},
                        {"letters", [this, entry] { user_->ChooseByKeys(entry); }}};
  for (const QString& keys : KeysOf(entry)) {
    ways.push_back(
        {keys.toStdString(), [this, keys] { user_->Program().Window().PressKeys({keys}); }});
  }
  return ways;
}

DesktopWindow MenuByHand::Dialog(const std::string& caption) {
  DesktopWindow dialog = user_->Program().Question();
  EXPECT_TRUE(Eventually([&] { return dialog.Caption() == caption; })) << dialog.Caption();
  return dialog;
}

void MenuByHand::Closes(const DesktopWindow& dialog, const char* key) {
  dialog.PressKeys({key});
  EXPECT_TRUE(Eventually([this] { return !user_->Program().Asks(); }));
}

void MenuByHand::Answers(const char* title, const char* question, bool yes) {
  EXPECT_TRUE(user_->Answers(title, question, yes, User::By::kKeyboard));
}

bool MenuByHand::SeesExample() {
  return user_->SeesBoard(ExpectedBoard::Concealed(ExampleRecord())) &&
         user_->SeesStage(Stage::kPuzzleConcealed);
}

// The list hears nothing of Enter before it has been read.
void MenuByHand::OpensExample() {
  PressKeys("ctrl+shift+o");
  const DesktopWindow list = Dialog("Tessel Sudoku - My Puzzles");
  EXPECT_TRUE(Eventually([&] {
    list.PressKeys({"Return"});
    return Eventually([this] { return !user_->Program().Asks(); }, std::chrono::seconds(5));
  }));
  EXPECT_TRUE(user_->SeesStage(Stage::kPuzzleConcealed));
}

ExpectedGame MenuByHand::PlaysExample() {
  OpensExample();
  user_->Press("CommandSolve");
  EXPECT_TRUE(user_->SeesSolveButtons(true));
  return ExpectedGame(ExampleRecord());
}

testing::AssertionResult MenuByHand::SeesGame(const ExpectedGame& game) {
  return user_->SeesBoard(ExpectedBoard::Playing(game));
}

void MenuByHand::Places(ExpectedGame& game, Mark mark) {
  user_->ClickMark(mark.cell, mark.digit, MouseKey::kLeft);
  game.Place(mark.cell, mark.digit);
}

}  // namespace tessel
