// My Puzzles: what it lists, and what screen readers find in it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <fstream>

#include "maker/maker.h"
#include "shell/qt/menu_bar.h"
#include "shell/qt/puzzle_list_dialog.h"
#include "shell/qt/puzzle_list_model.h"
#include "shell/qt/softer_colours.h"
#include "tests/qt/accessible_tree.h"
#include "tests/qt/modal.h"
#include "tests/qt/painted_board.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

PuzzleRecord Made(std::uint64_t index) {
  const Puzzle puzzle = maker::Maker({}).Make(1, index);
  return {puzzle.givens, *puzzle.solution, puzzle.layout.Cages()};
}

std::vector<ListedPuzzle> Listed(std::size_t count) {
  std::vector<ListedPuzzle> puzzles;
  for (std::size_t k = 0; k < count; ++k) puzzles.push_back({k + 1, Made(k)});
  return puzzles;
}

std::vector<std::string> Texts(const PuzzleListModel& model) {
  std::vector<std::string> texts;
  for (int row = 0; row < model.rowCount(); ++row) {
    texts.push_back(model.data(model.index(row), Qt::DisplayRole).toString().toStdString());
  }
  return texts;
}

TEST(PuzzleListModel, ListsTheNewestFirst) {
  PuzzleListModel model;
  model.Append(Listed(2));
  model.Append({{7, Made(2)}});
  EXPECT_THAT(Texts(model), testing::ElementsAre("7  …", "2  …", "1  …"));
  model.Order(PuzzleOrder::kOldestFirst);
  EXPECT_THAT(Texts(model), testing::ElementsAre("1  …", "2  …", "7  …"));
  EXPECT_EQ(model.RecordAt(model.index(2)), Made(2));
}

TEST(PuzzleListModel, OrdersByLevelOnceAllAreKnown) {
  PuzzleListModel model;
  model.Append(Listed(4));
  model.Order(PuzzleOrder::kEasiestFirst);
  model.SetLevels(0, {{ListedGrade::kLevel, grade::Level::kHard}, {ListedGrade::kNotOne}});
  EXPECT_EQ(Texts(model).front(), "1  Hard");
  model.SetLevels(
      2, {{ListedGrade::kLevel, grade::Level::kEasy}, {ListedGrade::kLevel, grade::Level::kHard}});
  EXPECT_THAT(Texts(model),
              testing::ElementsAre("3  Easy", "1  Hard", "4  Hard", "2  Not one solution"));
  model.Order(PuzzleOrder::kHardestFirst);
  EXPECT_THAT(Texts(model),
              testing::ElementsAre("1  Hard", "4  Hard", "3  Easy", "2  Not one solution"));
}

TEST(PuzzleListModel, SelectionStaysWithItsPuzzle) {
  PuzzleListModel model;
  model.Append(Listed(3));
  const QPersistentModelIndex kept = model.index(0);
  model.Order(PuzzleOrder::kOldestFirst);
  EXPECT_EQ(kept.row(), 2);
}

class MyPuzzles : public testing::Test {
 protected:
  // Opens the list of a file of so many records, and acts in it once all are graded.
  template <typename Act>
  void With(std::size_t count, const Act& act) {
    std::ofstream file(program.folder.PuzzleFile(), std::ios::binary);
    for (std::size_t k = 0; k < count; ++k) {
      const PuzzleRecord record = Made(k);
      file.write(reinterpret_cast<const char*>(&record), sizeof record);
    }
    file << "fragment";
    file.close();
    Inside<PuzzleListDialog>([act, count](PuzzleListDialog& dialog) {
      auto* const list = dialog.findChild<QListView*>("PuzzleList");
      const auto& model = dynamic_cast<const PuzzleListModel&>(*list->model());
      EXPECT_TRUE(QTest::qWaitFor(
          [&] { return model.rowCount() == static_cast<int>(count) && model.Graded() == count; },
          60'000));
      act(dialog, *list);
      if (dialog.isVisible()) dialog.reject();
    });
    program.Find<MenuBar>("MenuBar")->Of(Entry::kMyPuzzles)->trigger();
  }

  WindowProgram program;
};

TEST_F(MyPuzzles, TellsWhereTheyAreKeptAndWhatCannotBeRead) {
  With(3, [this](PuzzleListDialog& dialog, QListView&) {
    EXPECT_EQ(dialog.findChild<QLabel*>("PuzzlePlace")->text().toStdString(),
              program.folder.PuzzleFile().string());
    EXPECT_THAT(dialog.findChild<QLabel*>("PuzzleCount")->text().toStdString(),
                testing::MatchesRegex("3 puzzles. 1 could not be read, the first: .*record 4.*"));
  });
}

TEST_F(MyPuzzles, CanBeWalkedByAScreenReader) {
  With(2, [](PuzzleListDialog&, QListView& view) {
    QAccessibleInterface* const list = AccessibleOf(&view);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(NameOf(*list), "Puzzles");
    ASSERT_EQ(list->childCount(), 2);
    EXPECT_THAT(NameOf(*list->child(0)).toStdString(),
                testing::MatchesRegex("Puzzle 2, 2[0-9] givens, [A-Z][a-z ]+"));
    EXPECT_EQ(list->child(1)->role(), QAccessible::ListItem);
    EXPECT_TRUE(list->child(0)->state().selectable);
    EXPECT_TRUE(list->child(0)->state().selected);
    EXPECT_FALSE(list->child(1)->state().selected);
  });
}

TEST_F(MyPuzzles, TellEveryControlByNameAndRole) {
  With(2, [this](PuzzleListDialog& dialog, QListView& view) {
    view.selectAll();
    std::vector<std::string> told;
    for (const QAccessibleInterface* node : TreeOf(AccessibleOf(&dialog))) {
      const bool isControl = qobject_cast<QWidget*>(node->object()) != nullptr &&
                             (node->state().focusable || node->role() == QAccessible::Button);
      if (!isControl || node->state().invisible) continue;
      QString name = NameOf(*node) + (node->state().disabled ? " (disabled)" : "");
      for (const auto& [label, kind] : node->relations(QAccessible::Label)) {
        name.prepend(NameOf(*label) + " ");
      }
      told.push_back(name.toStdString());
    }
    EXPECT_EQ(NameOf(*AccessibleOf(&dialog)), "Tessel Sudoku - My Puzzles");
    EXPECT_THAT(told, testing::UnorderedElementsAre(
                          "Puzzles", "Order: Newest first", program.folder.PuzzleFile().string(),
                          "Open (disabled)", "Print…", "Export…", "Close"));
  });
}

TEST_F(MyPuzzles, FollowSofterColours) {
  const auto paintedIn = [this](const CageColours& colours, const CageColours& others) {
    With(2, [&](PuzzleListDialog&, QListView& list) {
      const QImage seen = list.viewport()->grab().toImage();
      const std::set<QRgb> shown = ColoursIn(seen, seen.rect());
      for (const Rgb colour : colours) EXPECT_TRUE(shown.contains(ColourOf(colour).rgb()));
      EXPECT_FALSE(shown.contains(ColourOf(others[3]).rgb()));
    });
  };
  paintedIn(kCageColours, kSofterCages);
  program.Find<MenuBar>("MenuBar")->Of(Entry::kSofterColours)->trigger();
  paintedIn(kSofterCages, kCageColours);
}

TEST_F(MyPuzzles, OpensTheChosenOne) {
  With(3, [](PuzzleListDialog& dialog, QListView& list) {
    list.setCurrentIndex(list.model()->index(1, 0));
    EXPECT_TRUE(dialog.findChild<QPushButton*>("OpenChosen")->isEnabled());
    QTest::mouseClick(dialog.findChild<QPushButton*>("OpenChosen"), Qt::LeftButton);
  });
  EXPECT_EQ(program.State().SavedPuzzle, Made(1));
  EXPECT_EQ(std::filesystem::file_size(program.folder.PuzzleFile()), 3 * 243 + 8u);
}

TEST_F(MyPuzzles, BeginAtTheNewest) {
  With(3, [](PuzzleListDialog& dialog, QListView& list) {
    EXPECT_EQ(list.currentIndex().row(), 0);
    EXPECT_EQ(dialog.Chosen().front(), PuzzleOf(Made(2)));
  });
}

TEST_F(MyPuzzles, SeveralCanBePrintedAndExportedButNotOpened) {
  With(3, [](PuzzleListDialog& dialog, QListView& list) {
    list.selectAll();
    EXPECT_FALSE(dialog.findChild<QPushButton*>("OpenChosen")->isEnabled());
    EXPECT_TRUE(dialog.findChild<QPushButton*>("PrintChosen")->isEnabled());
    EXPECT_TRUE(dialog.findChild<QPushButton*>("ExportChosen")->isEnabled());
    EXPECT_EQ(dialog.Chosen().size(), 3u);
  });
}

TEST_F(MyPuzzles, AreNoneBeforeTheFirstConceal) {
  Inside<PuzzleListDialog>([](PuzzleListDialog& dialog) {
    auto* const count = dialog.findChild<QLabel*>("PuzzleCount");
    EXPECT_TRUE(QTest::qWaitFor([&] { return count->text().startsWith("No puzzle yet"); }));
    dialog.reject();
  });
  program.Find<MenuBar>("MenuBar")->Of(Entry::kMyPuzzles)->trigger();
}

}  // namespace
}  // namespace tessel
