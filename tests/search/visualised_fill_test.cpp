// What the marks show at every pump of a drawn fill, against the search written out.
#include <gtest/gtest.h>

#include <functional>

#include "search/random_restarts.h"
#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

using oracle::LiteralLayout;
using oracle::LiteralLevel;
using oracle::LiteralSearch;
using oracle::SampleLayout;

struct Marks {
  std::array<std::array<bool, 9>, kCellCount> black{};
  std::array<std::array<bool, 9>, kCellCount> bold{};

  // What a placement changes: mode 1 is a trial at position `ptr`, mode 2 a single above it.
  void Draw(const LiteralLevel& level, int ptr, int cell, int mode) {
    for (int i = 0; i <= ptr; ++i) {
      const int open = level.Order[i];
      for (int d = 0; d < 9; ++d) black[open][d] = (level.Candidates[open] >> d) % 2 == 1;
    }
    if (mode == 1) {
      bold[cell].fill(false);
      bold[cell][level.Digit[cell] - 1] = true;
    } else {
      black[cell].fill(false);
      black[cell][level.Digit[cell] - 1] = true;
    }
  }
  friend bool operator==(const Marks&, const Marks&) = default;
};

struct VisualisedFill : testing::TestWithParam<std::uint64_t> {
  VisualisedFill() {
    SeededRandom orders(GetParam());
    tryOuts = oracle::TryOrders(layout, orders, kRestartCutoff, 100'000);
    for (int cell = 0; cell < kCellCount; ++cell) rig.form.SetMarksColour(cell, kBlack);
    for (auto& cell : expected.black) cell.fill(true);
    rig.form.SetChecked(CheckBox::CheckVisualize, true);
  }

  Marks Shown() const {
    Marks marks;
    for (int cell = 0; cell < kCellCount; ++cell) {
      for (int d = 0; d < 9; ++d) {
        marks.black[cell][d] = rig.form.Mark(cell, d + 1).colour == kBlack;
        marks.bold[cell][d] = rig.form.Mark(cell, d + 1).bold;
      }
    }
    return marks;
  }
  // The marks that must be shown at every pump of the drawn search; `ticked` says of a pump,
  // counted from 1, whether the box is ticked after it.
  std::vector<Marks> Replay(const std::function<bool(long)>& ticked) {
    LiteralSearch literal(layout);
    std::vector<Marks> atPump;
    literal.onPump = [&] { atPump.push_back(expected); };
    literal.draw = [&](int ptr, int cell, int mode) {
      if (ticked(literal.pumps)) expected.Draw(literal.Levels[literal.Depth], ptr, cell, mode);
    };
    EXPECT_EQ(literal.GenerateTessel(tryOuts.order), LiteralSearch::End::kSolved);
    return atPump;
  }
  void ExpectDrawnAs(const std::function<bool(long)>& ticked) {
    const std::vector<Marks> atPump = Replay(ticked);
    rig.view.onPump = [&](long pump) {
      const long drawn = pump - tryOuts.pumps;
      if (drawn < 1 || HasFatalFailure()) return;
      ASSERT_TRUE(drawn <= std::ssize(atPump)) << drawn;
      ASSERT_TRUE(Shown() == atPump.at(static_cast<std::size_t>(drawn - 1))) << drawn;
      rig.form.SetChecked(CheckBox::CheckVisualize, ticked(drawn));
    };
    ASSERT_TRUE(rig.fill.GenerateTessel());
    EXPECT_EQ(rig.view.pumps, tryOuts.pumps + static_cast<long>(atPump.size()));
    EXPECT_EQ(rig.state.WorkGrid, tryOuts.solution);
    ExpectFinished();
  }
  void ExpectFinished() const {
    Marks finished;
    for (int cell = 0; cell < kCellCount; ++cell) {
      finished.black[cell][rig.state.WorkGrid[cell] - 1] = true;
    }
    EXPECT_TRUE(Shown() == finished);
  }

  oracle::Layout layout = SampleLayout(GetParam(), LiteralLayout::Mode::kRandom);
  SearchRig rig{layout, GetParam()};
  oracle::TryOutResult tryOuts;
  Marks expected;
};

TEST_P(VisualisedFill, EveryPlacementIsDrawnFromTheFirstToTheLast) {
  ExpectDrawnAs([](long) { return true; });
}

TEST_P(VisualisedFill, TickingTheBoxTakesEffectAtTheNextPlacement) {
  ExpectDrawnAs([](long pump) { return pump < 5 || pump % 16 >= 8; });
}

TEST_P(VisualisedFill, TryOutsAreNotDrawn) {
  rig.view.onPump = [&](long pump) {
    if (HasFatalFailure()) return;
    ASSERT_TRUE(pump > tryOuts.pumps || Shown() == expected) << pump;
  };
  ASSERT_TRUE(rig.fill.GenerateTessel());
}

TEST_P(VisualisedFill, BoxTickedDuringTheTryOutsIsDrawn) {
  rig.form.SetChecked(CheckBox::CheckVisualize, false);
  rig.view.onPump = [&](long pump) {
    if (pump == 3) rig.form.SetChecked(CheckBox::CheckVisualize, true);
  };
  ASSERT_TRUE(rig.fill.GenerateTessel());
  EXPECT_GT(rig.view.pumps, tryOuts.pumps);
  EXPECT_EQ(rig.state.WorkGrid, tryOuts.solution);
  ExpectFinished();
}

TEST_P(VisualisedFill, StopEndsTheDrawnSearchWithinOneIteration) {
  const long last = tryOuts.pumps + 7;
  rig.view.onPump = [&](long pump) {
    if (pump == last) rig.state.StopRequested = true;
  };
  EXPECT_FALSE(rig.fill.GenerateTessel());
  EXPECT_EQ(rig.view.pumps, last);
  EXPECT_FALSE(rig.state.StopRequested);
  EXPECT_NE(rig.state.Stopwatch, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Layouts, VisualisedFill, testing::Values(0, 1, 2, 3, 4, 5));

}  // namespace
}  // namespace tessel
