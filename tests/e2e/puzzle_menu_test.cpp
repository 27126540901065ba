// The Puzzle menu in the real window, by mouse and by keys, with the display's own clipboard.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "tests/e2e/desktop.h"
#include "tests/e2e/eventually.h"
#include "tests/e2e/menu_by_hand.h"
#include "tests/e2e/puzzle_file_reading.h"
#include "tests/formats/example.h"

namespace tessel {
namespace {

using formats::ExampleIn;

// What another program gets when it pastes.
QString Clipboard(const char* target = "UTF8_STRING") {
  return TheDesktop().Run("xclip", {"-selection", "clipboard", "-o", "-t", target});
}

// Another program has copied this.
void PutOnClipboard(const std::string& text) {
  TheDesktop().Run("sh", {"-c", "printf %s \"$1\" | xclip -selection clipboard -i >/dev/null 2>&1",
                          "sh", QString::fromStdString(text)});
}

class PuzzleMenuByHand : public MenuByHand {
 protected:
  PuzzleMenuByHand() { Starts(); }

  void TypesPath(const DesktopWindow& dialog, const std::filesystem::path& path) {
    EXPECT_TRUE(Eventually([&] { return dialog.IsActive(); }));
    TheDesktop().Xdo({"type", QString::fromStdString(path.string())});
    Closes(dialog, "Return");
  }
  // Another puzzle than the example is on the board afterwards, being played.
  void MakesNew() {
    Closes(Dialog("Tessel Sudoku - New Puzzle"), "Return");
    EXPECT_TRUE(user_->SeesSolveButtons(true));
  }
  void LeavesGame() { Answers(kSolver, kQuitSolving, true); }
};

TEST_P(PuzzleMenuByHand, CopiesAndPastesThroughTheClipboard) {
  PressKeys("ctrl+n");
  MakesNew();
  PressKeys("ctrl+c");
  ASSERT_TRUE(Eventually([] { return Clipboard().size() == 163; })) << Clipboard().toStdString();
  const QString line = Clipboard();
  for (std::size_t way = 0; way < 2; ++way) {
    WaysTo(Entry::kCopyLink)[way].act();
    EXPECT_TRUE(Eventually([] { return Clipboard().startsWith("https://sudokupad.app/scl"); }));
    WaysTo(Entry::kCopyPicture)[way].act();
    EXPECT_TRUE(Eventually([] { return Clipboard("TARGETS").contains("image/png"); }));
    WaysTo(Entry::kCopy)[way].act();
    EXPECT_TRUE(Eventually([&] { return Clipboard() == line; }));
  }

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
  OpensExample();
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
  for (const auto& [entry, caption] : {std::pair(Entry::kExport, "Tessel Sudoku - Export"),
                                       std::pair(Entry::kPrint, "Tessel Sudoku - Print")}) {
    for (const Way& way : WaysTo(entry)) {
      way.act();
      Closes(Dialog(caption), "Escape");
    }
  }
  const std::filesystem::path way = folder_.Path() / "way.html";
  user_->Choose(Entry::kExplainWay);
  TypesPath(Dialog("Tessel Sudoku - Explain Way"), way);
  EXPECT_TRUE(Eventually([&] { return BytesOf(way).ends_with("</html>\n"); }));
}

TEST_P(PuzzleMenuByHand, Exits) {
  user_->Choose(Entry::kExit);
  Answers("Tessel Sudoku", kQuitProgram, false);
  EXPECT_TRUE(user_->Program().Running());
  user_->ChooseByKeys(Entry::kExit);
  Answers("Tessel Sudoku", kQuitProgram, true);
  EXPECT_TRUE(user_->Program().EndedInOrder());
}

INSTANTIATE_TEST_SUITE_P(AtTwoSizes, PuzzleMenuByHand, AtTwoSizes(), SizeName);

}  // namespace
}  // namespace tessel
