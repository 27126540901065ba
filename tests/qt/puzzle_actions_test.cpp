// The entries of the Puzzle menu, in the whole window.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <fstream>

#include "grade/grader.h"
#include "shell/puzzle_export.h"
#include "shell/qt/menu_bar.h"
#include "shell/qt/new_puzzle_dialog.h"
#include "shell/qt/puzzle_list_dialog.h"
#include "tests/formats/example.h"
#include "tests/qt/modal.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

using formats::Example;
using formats::ExampleIn;
using testing::HasSubstr;
using testing::StartsWith;

class PuzzleMenu : public testing::Test {
 protected:
  void Choose(Entry entry) { program.Find<MenuBar>("MenuBar")->Of(entry)->trigger(); }
  bool CanChoose(Entry entry) { return program.Find<MenuBar>("MenuBar")->Of(entry)->isEnabled(); }
  static QClipboard& Clipboard() { return *QApplication::clipboard(); }
  void Paste(const std::string& text) {
    Clipboard().setText(QString::fromStdString(text));
    Choose(Entry::kPaste);
  }
  bool IsExampleOpen() {
    return program.main.HasPuzzleAtHand() && *program.main.PuzzleAtHand() == Example().puzzle;
  }
  QString PathTo(const char* name) const {
    return QString::fromStdString((program.folder.Path() / name).string());
  }
  static std::string Contents(const QString& path) {
    std::ifstream file(path.toStdString(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // Closes the message and tells what it says.
  static void ReadMessage(std::string& text) {
    Inside<QMessageBox>([&text](QMessageBox& box) {
      text = (box.text() + " " + box.informativeText()).toStdString();
      box.accept();
    });
  }
  static void TypePath(QFileDialog& dialog, const QString& path) {
    auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
  }

  WindowProgram program;
};

TEST_F(PuzzleMenu, NewIsReadyToPlayAndKeepsTheChoices) {
  Inside<NewPuzzleDialog>([](NewPuzzleDialog& dialog) {
    dialog.findChild<QComboBox*>("NewLevel")->setCurrentIndex(4);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Choose(Entry::kNew);
  EXPECT_TRUE(program.Display().SolveButtonsVisible());
  EXPECT_TRUE(program.Board()->hasFocus() || program.window.focusWidget() == program.Board());
  grade::Grader grader;
  EXPECT_EQ(grader.GradeOf(*program.main.PuzzleAtHand())->level, grade::Level::kHard);
  EXPECT_FALSE(std::filesystem::exists(program.folder.PuzzleFile()));
  const PuzzleRecord before = program.State().PlayBoard;
  NewPuzzleWish wish;
  Inside<NewPuzzleDialog>([&wish](NewPuzzleDialog& dialog) {
    wish = dialog.Wish();
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Choose(Entry::kNew);
  EXPECT_EQ(wish.level, grade::Level::kHard);
  EXPECT_EQ(program.State().PlayBoard, before);
}

TEST_F(PuzzleMenu, NewAfterAGameThatIsOverAsksNothing) {
  program.OpenPuzzle();
  program.Click("CommandSolution");
  const PuzzleRecord before = program.State().SavedPuzzle;
  Inside<NewPuzzleDialog>(
      [](NewPuzzleDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
  Choose(Entry::kNew);
  EXPECT_NE(program.State().SavedPuzzle, before);
  EXPECT_FALSE(program.State().Finished);
  EXPECT_TRUE(program.Display().SolveButtonsVisible());
}

TEST_F(PuzzleMenu, PasteOpensEveryFormatOfText) {
  for (const char* format : {"text", "sudokupad", "f-puzzles", "solo", "sumocue"}) {
    program.MakePuzzle();
    Paste(ExampleIn(format));
    EXPECT_TRUE(IsExampleOpen()) << format;
  }
}

TEST_F(PuzzleMenu, CopyComesBackByPaste) {
  Paste(ExampleIn("text"));
  for (const Entry entry : {Entry::kCopy, Entry::kCopyLink}) {
    Choose(entry);
    const QString copied = Clipboard().text();
    EXPECT_FALSE(copied.contains('\n'));
    program.MakePuzzle();
    Paste(copied.toStdString());
    EXPECT_TRUE(IsExampleOpen()) << copied.toStdString();
  }
  Choose(Entry::kCopy);
  EXPECT_EQ(Clipboard().text().toStdString(),
            std::string(formats::kExampleGivens) + " " + std::string(formats::kExampleCages));
  Choose(Entry::kCopyLink);
  EXPECT_THAT(Clipboard().text().toStdString(), StartsWith("https://sudokupad.app/scl"));
}

TEST_F(PuzzleMenu, CopyPictureIsAPicture) {
  Paste(ExampleIn("text"));
  Choose(Entry::kCopyPicture);
  EXPECT_GT(Clipboard().image().width(), 1000);
}

TEST_F(PuzzleMenu, PasteTellsWhatCannotBeRead) {
  std::string told;
  ReadMessage(told);
  Paste("What a day");
  EXPECT_THAT(told, StartsWith("clipboard:1:1: expected"));
  ReadMessage(told);
  Paste("");
  EXPECT_EQ(told, "The clipboard holds no text. ");
  EXPECT_FALSE(program.main.HasPuzzleAtHand());
}

TEST_F(PuzzleMenu, PuzzlesWithoutOneSolutionAreShownAndNotOpened) {
  std::string line = ExampleIn("text");
  line[1] = line[79] = '.';
  std::string told;
  ReadMessage(told);
  Paste(line);
  EXPECT_THAT(told, HasSubstr("Solutions: several: "));
  EXPECT_FALSE(program.main.HasPuzzleAtHand());
}

TEST_F(PuzzleMenu, PasteOfSeveralListsThem) {
  program.MakePuzzle();
  Choose(Entry::kCopy);
  const std::string other = Clipboard().text().toStdString();
  Inside<PuzzleListDialog>([](PuzzleListDialog& dialog) {
    auto* const list = dialog.findChild<QListView*>("PuzzleList");
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount() == 2; }));
    list->setCurrentIndex(list->model()->index(0, 0));  // the newest, which stands last
    QTest::keyClick(list, Qt::Key_Return);
  });
  Paste(other + "\n" + ExampleIn("text"));
  EXPECT_TRUE(IsExampleOpen());
}

TEST_F(PuzzleMenu, OpenReadsAFile) {
  const QString path = PathTo("link.txt");
  std::ofstream(path.toStdString()) << "# mine\n" << ExampleIn("f-puzzles");
  Inside<QFileDialog>([&path](QFileDialog& dialog) { TypePath(dialog, path); });
  Choose(Entry::kOpen);
  EXPECT_TRUE(IsExampleOpen());
}

TEST_F(PuzzleMenu, ARunningGameIsLeftAfterItsQuestionAlone) {
  program.OpenPuzzle();
  const PuzzleRecord before = program.State().PlayBoard;
  std::string asked;
  Inside<QMessageBox>([&asked](QMessageBox& box) {
    asked = box.text().toStdString();
    box.button(QMessageBox::No)->click();
  });
  Paste(ExampleIn("text"));
  EXPECT_EQ(asked, "Do you really want to quit solving ?");
  EXPECT_EQ(program.State().PlayBoard, before);
  Inside<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
  Paste(ExampleIn("text"));
  EXPECT_TRUE(IsExampleOpen());
  EXPECT_FALSE(program.Display().SolveButtonsVisible());
}

TEST_F(PuzzleMenu, ExportAndExplainWriteFilesAndTell) {
  Paste(ExampleIn("text"));
  const QString board = PathTo("board.svg");
  Inside<QFileDialog>([&](QFileDialog& dialog) { TypePath(dialog, board); });
  Choose(Entry::kExport);
  EXPECT_THAT(Contents(board), HasSubstr("<svg"));
  EXPECT_EQ(program.Display().Notice(), "Exported to " + board.toStdString());
  Inside<QFileDialog>([&](QFileDialog& dialog) { TypePath(dialog, PathTo("book")); });
  Choose(Entry::kExport);
  EXPECT_THAT(Contents(PathTo("book.pdf")), StartsWith("%PDF")) << "the usual kind and suffix";
  const QString page = PathTo("way.html");
  Inside<QFileDialog>([&](QFileDialog& dialog) { TypePath(dialog, page); });
  Choose(Entry::kExplainWay);
  EXPECT_THAT(Contents(page), HasSubstr("<html"));
  EXPECT_EQ(program.Display().Notice(), "Explained the way to " + page.toStdString());
}

TEST_F(PuzzleMenu, ExportThatFailsIsTold) {
  Paste(ExampleIn("text"));
  const QString nowhere = PathTo("none/board.svg");
  Inside<QFileDialog>([&](QFileDialog& dialog) {
    dialog.selectFile(nowhere);
    static_cast<QDialog&>(dialog).done(QDialog::Accepted);
  });
  Choose(Entry::kExport);
  EXPECT_THAT(program.Display().Notice(), StartsWith("Could not write "));
}

TEST_F(PuzzleMenu, PrintToAFileIsTheBooklet) {
  Paste(ExampleIn("text"));
  const QString path = PathTo("printed.pdf");
  Inside<QPrintDialog>([&](QPrintDialog& dialog) {
    dialog.findChild<QLineEdit*>("filename")->setText(path);
    dialog.accept();
  });
  Choose(Entry::kPrint);
  EXPECT_EQ(program.Display().Notice(), "Printed to " + path.toStdString());
  EXPECT_THAT(Contents(path), StartsWith("%PDF"));
}

TEST_F(PuzzleMenu, WhatNeedsAPuzzleIsDisabledWithoutOne) {
  const std::array outgoing{Entry::kCopy,   Entry::kCopyLink, Entry::kCopyPicture,
                            Entry::kExport, Entry::kPrint,    Entry::kExplainWay};
  for (const Entry entry : outgoing) EXPECT_FALSE(CanChoose(entry)) << TraitsOf(entry).text;
  for (const Entry entry : {Entry::kNew, Entry::kOpen, Entry::kMyPuzzles, Entry::kPaste}) {
    EXPECT_TRUE(CanChoose(entry)) << TraitsOf(entry).text;
  }
  program.MakePuzzle();
  for (const Entry entry : outgoing) EXPECT_TRUE(CanChoose(entry)) << TraitsOf(entry).text;
  program.Click("CommandSaw");
  for (const Entry entry : outgoing) EXPECT_FALSE(CanChoose(entry)) << TraitsOf(entry).text;
}

}  // namespace
}  // namespace tessel
