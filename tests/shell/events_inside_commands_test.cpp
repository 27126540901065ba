// Events come in at every pump of a running command.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/texts.h"
#include "tests/shell/disturbance.h"
#include "tests/shell/enabled_buttons.h"
#include "tests/shell/snapshot.h"

namespace tessel {
namespace {

// A layout that is soon sawed and soon filled.
constexpr std::uint64_t kIrregularSeed = 19;

class EventsInsideCommands : public testing::Test {
 protected:
  // Does something at the first pumps and then at every 101st, so that long commands stay quick.
  void OnPumps(std::function<void()> act) {
    program.view.onPump = [this, act = std::move(act)](long pump) {
      if (pump % 101 != 0 && pump > 30) return;
      ++interruptions;
      act();
    };
  }
  void OpenPuzzle() {
    program.Tick(CheckBox::MakeRegular);
    program.MakePuzzle();
    program.main.Click(Button::CommandSolve);
    program.Tick(CheckBox::MakeRegular, false);
  }
  // Runs the command twice from the same state, once disturbed at its pumps, and compares the ends.
  void ExpectUndisturbed(Button command, const std::function<void(TestProgram&)>& prepare) {
    TestProgram quiet(kIrregularSeed);
    prepare(quiet);
    quiet.main.Click(command);
    prepare(program);
    OnPumps([this, command] { DisturbCommand(program, {command}); });
    program.main.Click(command);
    EXPECT_GT(interruptions, 0);
    EXPECT_EQ(Snapshot(program), Snapshot(quiet));
    EXPECT_EQ(program.view.pumps, quiet.view.pumps);
  }

  TestProgram program{kIrregularSeed};
  int interruptions = 0;
};

TEST_F(EventsInsideCommands, NothingDisturbsSaw) {
  ExpectUndisturbed(Button::CommandSaw, [](TestProgram&) {});
}

TEST_F(EventsInsideCommands, NothingDisturbsAVisualisedRotationalSaw) {
  ExpectUndisturbed(Button::CommandSaw, [](TestProgram& quiet) {
    quiet.Tick(CheckBox::Rotational);
    quiet.Tick(CheckBox::CheckVisualize);
  });
}

TEST_F(EventsInsideCommands, NothingButStopDisturbsFill) {
  ExpectUndisturbed(Button::CommandGo,
                    [](TestProgram& quiet) { quiet.main.Click(Button::CommandSaw); });
}

TEST_F(EventsInsideCommands, NothingButStopDisturbsAVisualisedFill) {
  ExpectUndisturbed(Button::CommandGo, [](TestProgram& quiet) {
    quiet.main.Click(Button::CommandSaw);
    quiet.Tick(CheckBox::CheckVisualize);
  });
}

TEST_F(EventsInsideCommands, NothingButStopDisturbsConceal) {
  ExpectUndisturbed(Button::CommandConceal, [](TestProgram& quiet) {
    quiet.main.Click(Button::CommandSaw);
    quiet.main.Click(Button::CommandGo);
  });
}

TEST_F(EventsInsideCommands, CommandsNeverNest) {
  program.main.Click(Button::CommandSaw);
  OnPumps([this] {
    const Snapshot before(program);
    const long pumps = program.view.pumps;
    DisturbCommand(program, {Button::CommandGo});
    EXPECT_EQ(program.view.pumps, pumps);
    EXPECT_EQ(Snapshot(program), before);
  });
  program.main.Click(Button::CommandGo);
  EXPECT_EQ(EnabledButtons(program.Display()), kGridFilled);
}

TEST_F(EventsInsideCommands, StopInsideStopOnlyAsksAgain) {
  program.main.Click(Button::CommandSaw);
  OnPumps([this] {
    program.main.Click(Button::CommandGo);
    program.main.Click(Button::CommandGo);
  });
  const long before = program.view.pumps;
  program.main.Click(Button::CommandGo);
  program.view.onPump = nullptr;
  EXPECT_EQ(EnabledButtons(program.Display()), kLayoutMade);
  program.main.Click(Button::CommandGo);
  EXPECT_EQ(EnabledButtons(program.Display()), kGridFilled) << "no stop is left over";
  EXPECT_GT(program.view.pumps, before);
}

TEST_F(EventsInsideCommands, ClosingIsRefusedWithoutAQuestionAndTheFillGoesOn) {
  program.main.Click(Button::CommandSaw);
  OnPumps([this] { EXPECT_FALSE(program.main.Form_QueryUnload()); });
  program.main.Click(Button::CommandGo);
  EXPECT_GT(interruptions, 0);
  EXPECT_TRUE(program.view.questions.empty());
  EXPECT_EQ(EnabledButtons(program.Display()), kGridFilled);
}

TEST_F(EventsInsideCommands, StopEndsAFillWithinOneIteration) {
  program.main.Click(Button::CommandSaw);
  for (const bool visualised : {false, true}) {
    program.Tick(CheckBox::CheckVisualize, visualised);
    for (const long pump : {1, 2, 77, 200}) {
      const long target = program.view.pumps + pump;
      program.view.onPump = [&](long n) {
        if (n == target) program.main.Click(Button::CommandGo);
      };
      program.main.Click(Button::CommandGo);
      EXPECT_EQ(program.view.pumps, target) << "no pump after the click";
      EXPECT_EQ(EnabledButtons(program.Display()), kLayoutMade);
    }
  }
}

TEST_F(EventsInsideCommands, StopEndsTheDrawnPartOfAFillWithinOneIteration) {
  program.main.Click(Button::CommandSaw);
  program.Tick(CheckBox::CheckVisualize);
  long stopped = 0;
  bool drawn = false;
  program.view.onChange = [&](FormPart part, int) { drawn = drawn || part == FormPart::kCell; };
  program.view.onPump = [&](long pump) {
    if (!drawn) return;
    EXPECT_EQ(stopped, 0) << "no pump after the click";
    stopped = pump;
    program.main.Click(Button::CommandGo);
  };
  program.main.Click(Button::CommandGo);
  EXPECT_GT(stopped, 0);
  EXPECT_EQ(program.view.pumps, stopped);
  EXPECT_EQ(EnabledButtons(program.Display()), kLayoutMade);
}

// The uniqueness test at work ends first.
TEST_F(EventsInsideCommands, StopEndsAConcealAfterTheRunningTest) {
  program.main.Click(Button::CommandSaw);
  program.main.Click(Button::CommandGo);
  const long target = program.view.pumps + 25;
  int redraws = 0;
  program.view.onPump = [&](long pump) {
    if (pump == target) program.main.Click(Button::CommandConceal);
    if (pump > target) {
      EXPECT_TRUE(program.State().StopRequested);
      EXPECT_EQ(redraws, 0) << "a new pass begins";
    }
  };
  program.view.onChange = [&](FormPart part, int) {
    if (part == FormPart::kCell && program.State().StopRequested) ++redraws;
  };
  program.main.Click(Button::CommandConceal);
  EXPECT_EQ(EnabledButtons(program.Display()), kGridFilled);
  EXPECT_EQ(program.Display().Of(Button::CommandConceal).caption, texts::kConceal);
}

// The first cage is the first row but for its last cell, in whose place it has the cell below: the
// two would need the same digit in one column.
TEST_F(EventsInsideCommands, AFillWithoutSolutionEndsByStop) {
  program.Tick(CheckBox::MakeRegular);
  program.main.Click(Button::CommandSaw);
  CageNumbers cages = Layout::Regular().Cages();
  for (int cell = 0; cell < 3 * kSide; ++cell) {
    cages[cell] = static_cast<std::uint8_t>(1 + RowOf(cell));
  }
  std::swap(cages[8], cages[17]);
  SetLayout(program.Probe(), Layout::FromCages(cages, Layout::Shape::kAny).value());
  const long target = program.view.pumps + 20'000;
  program.view.onPump = [&](long pump) {
    if (pump == target) program.main.Click(Button::CommandGo);
  };
  program.main.Click(Button::CommandGo);
  EXPECT_EQ(program.view.pumps, target);
  EXPECT_EQ(EnabledButtons(program.Display()), kLayoutMade);
}

// The pumps of a fill before which something was drawn; `act` is done inside every one.
std::vector<long> DrawnPumps(TestProgram& program, const std::function<void(long)>& act) {
  std::vector<long> drawn;
  bool changed = false;
  program.view.onChange = [&](FormPart part, int) { changed = changed || part == FormPart::kCell; };
  program.view.onPump = [&](long pump) {
    if (changed) drawn.push_back(pump);
    changed = false;
    act(pump);
  };
  program.main.Click(Button::CommandGo);
  EXPECT_EQ(EnabledButtons(program.Display()), kGridFilled);
  return drawn;
}

TEST_F(EventsInsideCommands, VisualizeTakesEffectAtTheNextPlacementOfAFill) {
  TestProgram drawnThroughout(kIrregularSeed);
  for (TestProgram* each : {&program, &drawnThroughout}) {
    each->main.Click(Button::CommandSaw);
    each->Tick(CheckBox::CheckVisualize);
  }
  const std::vector<long> all = DrawnPumps(drawnThroughout, [](long) {});
  ASSERT_GT(all.size(), 30u);
  // Ticked at every pump whose number has an even third part.
  const auto tickedBefore = [&](long pump) { return pump < all[3] || (pump - 1) / 3 % 2 == 0; };
  const std::vector<long> some = DrawnPumps(
      program, [&](long pump) { program.Tick(CheckBox::CheckVisualize, tickedBefore(pump + 1)); });
  std::vector<long> expected;
  std::ranges::copy_if(all, std::back_inserter(expected), tickedBefore);
  EXPECT_LT(expected.size(), all.size());
  EXPECT_EQ(some, expected);
}

TEST_F(EventsInsideCommands, VisualizeTickedInATryOutDrawsTheFill) {
  program.main.Click(Button::CommandSaw);
  long changes = 0;
  program.view.onChange = [&](FormPart part, int) {
    if (part == FormPart::kCell) ++changes;
  };
  program.view.onPump = [&](long) { program.Tick(CheckBox::CheckVisualize); };
  program.main.Click(Button::CommandGo);
  EXPECT_GT(changes, 3 * kCellCount);
  EXPECT_EQ(EnabledButtons(program.Display()), kGridFilled);
}

TEST_F(EventsInsideCommands, TheFrameIsDisabledAsAWholeAndItsStatesUntouched) {
  OpenPuzzle();
  program.main.Click(Button::CommandSolution);  // Hint and Solution are off now
  OnPumps([this] {
    EXPECT_TRUE(program.Display().SolveButtonsVisible());
    EXPECT_FALSE(program.Display().SolveButtonsEnabled());
    EXPECT_FALSE(program.Display().Of(Button::CommandHint).enabled);
    EXPECT_FALSE(program.Display().Of(Button::CommandSolution).enabled);
    EXPECT_TRUE(program.Display().Of(Button::CommandRestart).enabled);
    EXPECT_TRUE(program.Display().Of(Button::CommandQuit).enabled);
  });
  program.MakePuzzle();
  EXPECT_GT(interruptions, 0);
  EXPECT_TRUE(program.Display().SolveButtonsEnabled());
  EXPECT_FALSE(program.Display().Of(Button::CommandHint).enabled);
  EXPECT_TRUE(program.Display().Of(Button::CommandRestart).enabled);
}

TEST_F(EventsInsideCommands, NothingPlaysTheOpenPuzzle) {
  OpenPuzzle();
  const PuzzleRecord board = program.State().PlayBoard;
  const MaskBoard candidates = program.State().Candidates;
  const std::size_t sounds = program.player.played.size();
  for (const Button command : {Button::CommandSaw, Button::CommandGo, Button::CommandConceal}) {
    interruptions = 0;
    program.view.pumps = 0;
    OnPumps([this, command] { DisturbCommand(program, {command}); });
    program.main.Click(command);
    EXPECT_GT(interruptions, 0);
    EXPECT_EQ(program.State().PlayBoard, board);
    EXPECT_EQ(program.State().Candidates, candidates);
    EXPECT_EQ(program.player.played.size(), sounds);
    EXPECT_TRUE(program.view.questions.empty());
  }
}

TEST_F(EventsInsideCommands, EveryClickOnAHalfMadeLayoutIsSafe) {
  OpenPuzzle();
  bool sawUnclaimed = false;
  OnPumps([&] {
    sawUnclaimed = sawUnclaimed || std::ranges::count(program.State().CageOfCell, 0) > 0;
    DisturbCommand(program);
  });
  program.main.Click(Button::CommandSaw);
  EXPECT_TRUE(sawUnclaimed);
  EXPECT_EQ(EnabledButtons(program.Display()), kLayoutMade);
}

TEST_F(EventsInsideCommands, ClicksBeforeTheFirstLayoutAreSafe) {
  const Snapshot before(program);
  ClickEveryCell(program);
  ClickEveryButtonBut(program, {Button::CommandSaw, Button::CommandExit});
  program.main.Toggle(CheckBox::CheckPencilmarks);
  EXPECT_EQ(Snapshot(program), before);
}

}  // namespace
}  // namespace tessel
