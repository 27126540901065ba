// The Puzzle menu in the real window, by mouse and by keys, with the display's own clipboard.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "tests/e2e/desktop.h"
#include "tests/e2e/eventually.h"
#include "tests/e2e/puzzle_file_reading.h"
#include "tests/e2e/user.h"
#include "tests/formats/example.h"

namespace tessel {
namespace {

using formats::Example;
using formats::ExampleIn;

PuzzleRecord ExampleRecord() {
  const Puzzle puzzle = Example().puzzle;
  return {puzzle.givens, *puzzle.solution, puzzle.layout.Cages()};
}

// What another program gets when it pastes.
QString Clipboard(const char* target = "UTF8_STRING") {
  return TheDesktop().Run("xclip", {"-selection", "clipboard", "-o", "-t", target});
}

// Another program has copied this.
void PutOnClipboard(const std::string& text) {
  TheDesktop().Run("sh", {"-c", "printf %s \"$1\" | xclip -selection clipboard -i >/dev/null 2>&1",
                          "sh", QString::fromStdString(text)});
}

class PuzzleMenuByHand : public testing::TestWithParam<QSize> {
 protected:
  PuzzleMenuByHand() {
    InstallProgram(folder_.Path());
    const std::string record = ExampleIn("sds");
    std::ofstream(folder_.PuzzleFile(), std::ios::binary) << record;
    user_.emplace(folder_.Path());
    EXPECT_TRUE(user_->ResizesWindow(GetParam()));
  }

  void PressKeys(const char* keys) { user_->Program().Window().PressKeys({keys}); }
  // The dialog of this caption, once it is there.
  DesktopWindow Dialog(const std::string& caption) {
    DesktopWindow dialog = user_->Program().Question();
    EXPECT_TRUE(Eventually([&] { return dialog.Caption() == caption; })) << dialog.Caption();
    return dialog;
  }
  void Closes(const DesktopWindow& dialog, const char* key) {
    dialog.PressKeys({key});
    EXPECT_TRUE(Eventually([this] { return !user_->Program().Asks(); }));
  }
  void TypesPath(const DesktopWindow& dialog, const std::filesystem::path& path) {
    EXPECT_TRUE(Eventually([&] { return dialog.IsActive(); }));
    TheDesktop().Xdo({"type", QString::fromStdString(path.string())});
    Closes(dialog, "Return");
  }
  bool SeesExample() {
    return user_->SeesBoard(ExpectedBoard::Concealed(ExampleRecord())) &&
           user_->SeesStage(Stage::kPuzzleConcealed);
  }
  // Another puzzle than the example is on the board afterwards, being played.
  void MakesNew() {
    Closes(Dialog("Tessel Sudoku - New Puzzle"), "Return");
    EXPECT_TRUE(user_->SeesSolveButtons(true));
  }
  void LeavesGame() {
    EXPECT_TRUE(user_->Answers("Tessel Sudoku - Solver", "Do you really want to quit solving ?",
                               true, User::By::kKeyboard));
  }

  TemporaryFolder folder_;
  std::optional<User> user_;
};

TEST_P(PuzzleMenuByHand, CopiesAndPastesThroughTheClipboard) {
  PressKeys("ctrl+n");
  MakesNew();
  PressKeys("ctrl+c");
  ASSERT_TRUE(Eventually([] { return Clipboard().size() == 163; })) << Clipboard().toStdString();
  const QString line = Clipboard();
  user_->Choose(Entry::kCopyLink);
  EXPECT_TRUE(Eventually([] { return Clipboard().startsWith("https://sudokupad.app/scl"); }));
  user_->Choose(Entry::kCopyPicture);
  EXPECT_TRUE(Eventually([] { return Clipboard("TARGETS").contains("image/png"); }));
  user_->Choose(Entry::kCopy);
  EXPECT_TRUE(Eventually([&] { return Clipboard() == line; }));

  PutOnClipboard(ExampleIn("solo"));
  PressKeys("ctrl+v");
  LeavesGame();
  EXPECT_TRUE(SeesExample());
  for (const char* format : {"sudokupad", "text"}) {
    user_->Choose(Entry::kNew);
    MakesNew();
    PutOnClipboard(ExampleIn(format));
    user_->Choose(Entry::kPaste);
    LeavesGame();
    EXPECT_TRUE(SeesExample()) << format;
  }
  EXPECT_EQ(BytesOf(folder_.PuzzleFile()), ExampleIn("sds")) << "nothing is saved";
}

TEST_P(PuzzleMenuByHand, OpensFilesAndMyPuzzles) {
  const std::filesystem::path path = folder_.Path() / "link.txt";
  std::ofstream(path) << ExampleIn("f-puzzles");
  PressKeys("ctrl+o");
  TypesPath(Dialog("Tessel Sudoku - Open"), path);
  EXPECT_TRUE(SeesExample());
  user_->Choose(Entry::kOpen);
  Closes(Dialog("Tessel Sudoku - Open"), "Escape");
  user_->Press("CommandSaw");
  EXPECT_TRUE(user_->SeesTime("Sawed"));
  PressKeys("ctrl+shift+o");
  Closes(Dialog("Tessel Sudoku - My Puzzles"), "Return");
  EXPECT_TRUE(SeesExample());
  user_->Choose(Entry::kMyPuzzles);
  Closes(Dialog("Tessel Sudoku - My Puzzles"), "Escape");
  EXPECT_EQ(BytesOf(folder_.PuzzleFile()), ExampleIn("sds")) << "nothing is saved";
}

TEST_P(PuzzleMenuByHand, ExportsPrintsAndExplains) {
  PutOnClipboard(ExampleIn("text"));
  PressKeys("ctrl+v");
  ASSERT_TRUE(SeesExample());
  PressKeys("ctrl+e");
  const std::filesystem::path board = folder_.Path() / "board.svg";
  TypesPath(Dialog("Tessel Sudoku - Export"), board);
  EXPECT_TRUE(Eventually([&] { return BytesOf(board).ends_with("</svg>\n"); }));
  EXPECT_TRUE(user_->SeesText("Notice", "Exported to " + board.string()));
  user_->Choose(Entry::kExport);
  Closes(Dialog("Tessel Sudoku - Export"), "Escape");
  PressKeys("ctrl+p");
  Closes(Dialog("Tessel Sudoku - Print"), "Escape");
  user_->Choose(Entry::kPrint);
  Closes(Dialog("Tessel Sudoku - Print"), "Escape");
  const std::filesystem::path way = folder_.Path() / "way.html";
  user_->Choose(Entry::kExplainWay);
  TypesPath(Dialog("Tessel Sudoku - Explain Way"), way);
  EXPECT_TRUE(Eventually([&] { return BytesOf(way).ends_with("</html>\n"); }));
}

INSTANTIATE_TEST_SUITE_P(AtTwoSizes, PuzzleMenuByHand,
                         testing::Values(QSize(900, 662), QSize(480, 560)), [](const auto& size) {
                           return size.param.width() < 600 ? "Small" : "Usual";
                         });

}  // namespace
}  // namespace tessel
