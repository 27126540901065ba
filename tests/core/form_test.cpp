#include "core/form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/fakes/recording_view.h"

namespace tessel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Change = std::pair<FormPart, int>;

class FormTest : public testing::Test {
 protected:
  FormTest() {
    view.onChange = [this](FormPart part, int index) { changes.emplace_back(part, index); };
  }

  // The changes that `act` reports, the first time and when it is done again.
  template <typename Act>
  std::vector<Change> ChangesOf(Act act) {
    changes.clear();
    act();
    const std::vector<Change> first = std::exchange(changes, {});
    act();
    EXPECT_THAT(changes, IsEmpty()) << "a write that changes nothing was reported";
    return first;
  }

  RecordingView view;
  Form form{view};
  std::vector<Change> changes;
};

TEST_F(FormTest, StartsAsTheWindowDoes) {
  EXPECT_EQ(form.Caption(), "Tessel Sudoku");
  EXPECT_EQ(form.TextHint(), "Press [Hint] if you got stuck");
  EXPECT_EQ(form.Text1(), "");
  EXPECT_EQ(form.Notice(), "");
  EXPECT_FALSE(form.SolveButtonsVisible());
  EXPECT_TRUE(form.SolveButtonsEnabled());
  EXPECT_TRUE(form.Checked(CheckBox::CheckPencilmarks));
  for (const CheckBox box : {CheckBox::Rotational, CheckBox::MakeRegular,
                             CheckBox::ConcealRotational, CheckBox::CheckVisualize}) {
    EXPECT_FALSE(form.Checked(box));
  }
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(FormTest, StartsWithTheButtonsOfTheFirstStage) {
  const std::vector<std::pair<std::string, bool>> expected{
      {"Saw", true}, {"Fill", false}, {"Conceal", false}, {"Solve", false},  {"Exit", true},
      {"", true},    {"Hint", true},  {"Quit", true},     {"Restart", true}, {"Solution", true}};
  ASSERT_EQ(expected.size(), kButtonCount);
  for (std::size_t index = 0; index < kButtonCount; ++index) {
    const DisplayedButton& look = form.Of(static_cast<Button>(index));
    EXPECT_EQ(look.caption, expected[index].first);
    EXPECT_EQ(look.enabled, expected[index].second) << look.caption;
  }
}

TEST_F(FormTest, StartsWithAnEmptyBoardAndBlackCaptions) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(form.Cell(cell).text, 0);
    EXPECT_EQ(form.Cell(cell).PaintedBackground(), kBoardColour);
    EXPECT_EQ(form.Mark(cell, 9).colour, kBoardColour);
  }
  for (int line = 0; line < kSide; ++line) {
    EXPECT_EQ(form.LabelRow(line), kBlack);
    EXPECT_EQ(form.LabelColumn(line), kBlack);
  }
}

TEST_F(FormTest, CellWritesReportTheCell) {
  EXPECT_THAT(ChangesOf([&] { form.SetCellText(80, 9); }),
              ElementsAre(Change{FormPart::kCell, 80}));
  EXPECT_THAT(ChangesOf([&] { form.SetCellOpaque(0, true); }),
              ElementsAre(Change{FormPart::kCell, 0}));
  EXPECT_THAT(ChangesOf([&] { form.SetCellBackground(41, kCageColours[3]); }),
              ElementsAre(Change{FormPart::kCell, 41}));
  EXPECT_EQ(form.Cell(80).text, 9);
  EXPECT_TRUE(form.Cell(0).opaque);
  EXPECT_EQ(form.Cell(41).background, kCageColours[3]);
  EXPECT_EQ(form.Cell(40).text, 0);
}

TEST_F(FormTest, ATransparentCellShowsTheBoardWhateverItsColour) {
  form.SetCellBackground(5, kCageColours[3]);
  EXPECT_EQ(form.Cell(5).PaintedBackground(), kBoardColour);
  form.SetCellOpaque(5, true);
  EXPECT_EQ(form.Cell(5).PaintedBackground(), kCageColours[3]);
}

TEST_F(FormTest, MarkWritesReportTheirCell) {
  EXPECT_THAT(ChangesOf([&] { form.SetMarkVisible(7, 1, false); }),
              ElementsAre(Change{FormPart::kCell, 7}));
  EXPECT_THAT(ChangesOf([&] { form.SetMarkColour(7, 9, kBlack); }),
              ElementsAre(Change{FormPart::kCell, 7}));
  EXPECT_THAT(ChangesOf([&] { form.SetMarkBold(7, 5, true); }),
              ElementsAre(Change{FormPart::kCell, 7}));
  EXPECT_FALSE(form.Mark(7, 1).visible);
  EXPECT_TRUE(form.Mark(7, 2).visible);
  EXPECT_EQ(form.Mark(7, 9).colour, kBlack);
  EXPECT_EQ(form.Mark(7, 8).colour, kBoardColour);
  EXPECT_TRUE(form.Mark(7, 5).bold);
  EXPECT_FALSE(form.Mark(8, 5).bold);
}

TEST_F(FormTest, TheCellHoldsItsMarksInTheOrderOfTheDigits) {
  form.SetMarkVisible(7, 1, false);
  form.SetMarkBold(7, 9, true);
  EXPECT_FALSE(form.Cell(7).marks.front().visible);
  EXPECT_TRUE(form.Cell(7).marks.back().bold);
}

TEST_F(FormTest, TheMarksOfACellChangeTogether) {
  form.SetMarkVisible(3, 4, false);
  EXPECT_EQ(ChangesOf([&] { form.SetMarksVisible(3, false); }).size(), 8u);
  EXPECT_EQ(ChangesOf([&] { form.SetMarksColour(3, kBlack); }).size(), 9u);
  for (int digit = 1; digit <= kSide; ++digit) {
    EXPECT_FALSE(form.Mark(3, digit).visible);
    EXPECT_EQ(form.Mark(3, digit).colour, kBlack);
    EXPECT_TRUE(form.Mark(2, digit).visible);
  }
}

TEST_F(FormTest, CaptionWritesReportTheLine) {
  EXPECT_THAT(ChangesOf([&] { form.SetLabelRow(8, kHighlightRed); }),
              ElementsAre(Change{FormPart::kRowCaption, 8}));
  EXPECT_THAT(ChangesOf([&] { form.SetLabelColumn(0, kHighlightRed); }),
              ElementsAre(Change{FormPart::kColumnCaption, 0}));
  EXPECT_THAT(ChangesOf([&] { form.SetAllCaptions(kBlack); }),
              ElementsAre(Change{FormPart::kColumnCaption, 0}, Change{FormPart::kRowCaption, 8}));
}

TEST_F(FormTest, HighlightingACellLeavesTheOtherCaptions) {
  form.HighlightCell(CellAt(2, 5));
  EXPECT_THAT(ChangesOf([&] { form.HighlightCell(CellAt(7, 1)); }),
              ElementsAre(Change{FormPart::kRowCaption, 7}, Change{FormPart::kColumnCaption, 1}));
  for (int line = 0; line < kSide; ++line) {
    EXPECT_EQ(form.LabelRow(line), line == 2 || line == 7 ? kHighlightRed : kBlack);
    EXPECT_EQ(form.LabelColumn(line), line == 1 || line == 5 ? kHighlightRed : kBlack);
  }
}

TEST_F(FormTest, ButtonWritesReportTheButton) {
  const int conceal = static_cast<int>(Button::CommandConceal);
  EXPECT_THAT(ChangesOf([&] { form.Enable(Button::CommandConceal, true); }),
              ElementsAre(Change{FormPart::kButton, conceal}));
  EXPECT_THAT(ChangesOf([&] { form.SetButtonCaption(Button::CommandConceal, "Stop"); }),
              ElementsAre(Change{FormPart::kButton, conceal}));
  EXPECT_TRUE(form.Of(Button::CommandConceal).enabled);
  EXPECT_EQ(form.Of(Button::CommandConceal).caption, "Stop");
}

TEST_F(FormTest, BoxWritesReportTheBox) {
  EXPECT_THAT(ChangesOf([&] { form.SetChecked(CheckBox::CheckVisualize, true); }),
              ElementsAre(Change{FormPart::kCheckBox, static_cast<int>(CheckBox::CheckVisualize)}));
  EXPECT_TRUE(form.Checked(CheckBox::CheckVisualize));
}

TEST_F(FormTest, TheOnlyOnesOfTheirKindReportIndexZero) {
  EXPECT_THAT(ChangesOf([&] { form.SetCaption("Tessel Sudoku - Solver"); }),
              ElementsAre(Change{FormPart::kWindowCaption, 0}));
  EXPECT_THAT(ChangesOf([&] { form.ShowSolveButtons(true); }),
              ElementsAre(Change{FormPart::kSolveButtons, 0}));
  EXPECT_THAT(ChangesOf([&] { form.SetRunning(Button::CommandSaw); }),
              ElementsAre(Change{FormPart::kSolveButtons, 0}));
  EXPECT_THAT(ChangesOf([&] { form.SetTextHint("Naked single"); }),
              ElementsAre(Change{FormPart::kHintText, 0}));
  EXPECT_THAT(ChangesOf([&] { form.SetNotice("not saved"); }),
              ElementsAre(Change{FormPart::kNotice, 0}));
  EXPECT_EQ(form.Caption(), "Tessel Sudoku - Solver");
  EXPECT_TRUE(form.SolveButtonsVisible());
  EXPECT_FALSE(form.SolveButtonsEnabled());
  EXPECT_EQ(form.TextHint(), "Naked single");
  EXPECT_EQ(form.Notice(), "not saved");
}

TEST_F(FormTest, WritesOfTheStartingValuesAreNotReported) {
  form.SetCaption("Tessel Sudoku");
  form.SetTextHint("Press [Hint] if you got stuck");
  form.Enable(Button::CommandSaw, true);
  form.SetChecked(CheckBox::CheckPencilmarks, true);
  form.SetMarksVisible(0, true);
  form.SetAllCaptions(kBlack);
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(FormTest, TheNewValueIsThereWhenItIsReported) {
  std::string seen;
  view.onChange = [&](FormPart, int) { seen = form.Caption(); };
  form.SetCaption("new");
  EXPECT_EQ(seen, "new");
}

TEST_F(FormTest, TheSpareTextTakesTextAtItsSelection) {
  form.ReplaceText1Selection("abcdef");
  EXPECT_THAT(changes, ElementsAre(Change{FormPart::kText1, 0}));
  form.SelectText1(2, 3);
  form.ReplaceText1Selection("X");
  EXPECT_EQ(form.Text1(), "abXf");
  form.ReplaceText1Selection("Y");  // the caret stands behind the text put in
  EXPECT_EQ(form.Text1(), "abXYf");
}

TEST_F(FormTest, TheSpareTextGrowsAtItsEnd) {
  for (const char* line : {"one\n", "two\n"}) {
    form.SelectText1(form.Text1().size(), 0);
    form.ReplaceText1Selection(line);
  }
  EXPECT_EQ(form.Text1(), "one\ntwo\n");
}

TEST_F(FormTest, ASelectionBeyondTheSpareTextIsCutToIt) {
  form.ReplaceText1Selection("abc");
  form.SelectText1(100, 5);
  form.ReplaceText1Selection("d");
  EXPECT_EQ(form.Text1(), "abcd");
  form.SelectText1(2, static_cast<std::size_t>(-1));
  form.ReplaceText1Selection("");
  EXPECT_EQ(form.Text1(), "ab");
}

}  // namespace
}  // namespace tessel
