#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/texts.h"
#include "tests/fakes/test_program.h"
#include "tests/shell/enabled_buttons.h"

namespace tessel {
namespace {

// All ports in one, to see the order in which start-up uses them.
class Journal final : public View, public SoundPlayer, public Clock, public RandomSource {
 public:
  void Show() override { lines.emplace_back("show the window"); }
  std::int32_t WindowHandle() override { return 4711; }
  void PumpEvents() override { lines.emplace_back("pump"); }
  bool AskYesNo(const std::string& question, const std::string&) override {
    lines.push_back("ask " + question);
    return false;
  }
  void Beep() override { lines.emplace_back("beep"); }
  void EndProgram() override { lines.emplace_back("end"); }
  void FormChanged(FormPart, int) override { lines.emplace_back("change the form"); }

  void SetOwner(std::int32_t window) override {
    lines.push_back("owner " + std::to_string(window));
  }
  int Status() override {
    lines.emplace_back("player ready?");
    return status;
  }
  std::int32_t Load(const std::string& path) override {
    lines.push_back("load " + path);
    return 0;
  }
  void Play(std::int32_t) override { lines.emplace_back("play"); }

  std::int64_t QueryPerformanceFrequency() override { return 0; }
  std::int64_t QueryPerformanceCounter() override { return 0; }
  std::int64_t GetTickCount() override { return 0; }
  std::uint64_t Seed() override { return 77; }

  void Seed(std::uint64_t seed) override { lines.push_back("seed " + std::to_string(seed)); }
  float Next() override { return 0; }

  int status = 1;
  std::vector<std::string> lines;
};

std::vector<std::string> StartIn(const std::string& folder, int status) {
  Journal journal;
  journal.status = status;
  Tessel_Main main(journal, journal, journal, journal, folder);
  EXPECT_TRUE(journal.lines.empty()) << "a program that is not started does nothing";
  main.Form_Load();
  return journal.lines;
}

TEST(StartUp, ShowsTheWindowThenLoadsTheSoundsThenSeeds) {
  EXPECT_THAT(StartIn("/games/", 1),
              testing::ElementsAre("show the window", "owner 4711", "player ready?",
                                   "load /games/applause.wav", "load /games/Patch54p.wav",
                                   "load /games/Beep2.wav", "load /games/Boink4.wav",
                                   "load /games/Blaster_1.wav", "load /games/Beep5.wav",
                                   "load /games/Beep1.wav", "load /games/Cashreg.wav",
                                   "load /games/Error.wav", "load /games/Giggle.wav", "seed 77"));
}

TEST(StartUp, LoadsNoSoundWhenThePlayerIsNotReady) {
  for (const int status : {0, 2, -1}) {
    EXPECT_THAT(StartIn("/games", status),
                testing::ElementsAre("show the window", "owner 4711", "player ready?", "seed 77"))
        << status;
  }
}

TEST(StartUp, EndsTheProgramPathInASeparator) {
  for (const char* folder : {"/games", "/games/"}) {
    EXPECT_EQ(StartIn(folder, 1)[3], "load /games/applause.wav") << folder;
  }
  TestProgram program;
  EXPECT_EQ(program.State().ProgramPath, program.folder.Path().string() + '/');
}

TEST(StartUp, FillsTheTables) {
  TestProgram program;
  EXPECT_EQ(program.State().BitCount[0], 0);
  EXPECT_EQ(program.State().BitCount[256], 1);
  EXPECT_EQ(program.State().BitCount[511], 9);
  EXPECT_EQ(program.State().AxisLetters[7], 'H');
  EXPECT_EQ(program.State().AxisLetters[8], 'J');
  EXPECT_EQ(program.State().CageColour, kCageColours);
}

TEST(StartUp, SetsTheFlags) {
  TestProgram program;
  EXPECT_FALSE(program.State().StopRequested);
  EXPECT_EQ(program.State().AssignmentPending, Bool16::kFalse);
  EXPECT_EQ(program.State().PencilmarkMode, MarkMode::kAutomatic);
  EXPECT_FALSE(program.State().Finished);
  EXPECT_FALSE(program.State().Command1Pressed);
  EXPECT_TRUE(program.State().SoundOn);
}

TEST(StartUp, TicksNothingButUpdatePencilmarks) {
  const TestProgram program;
  EXPECT_TRUE(program.Display().Checked(CheckBox::CheckPencilmarks));
  for (const CheckBox box : {CheckBox::Rotational, CheckBox::MakeRegular,
                             CheckBox::ConcealRotational, CheckBox::CheckVisualize}) {
    EXPECT_FALSE(program.Display().Checked(box)) << IndexOf(box);
  }
}

TEST(StartUp, ShowsAnEmptyBoardAndTheFirstStage) {
  const TestProgram program;
  EXPECT_EQ(program.Display().Caption(), texts::kProgram);
  EXPECT_EQ(EnabledButtons(program.Display()), kLayoutNeeded);
  EXPECT_FALSE(program.Display().SolveButtonsVisible());
  EXPECT_EQ(program.Display().TextHint(), "Press [Hint] if you got stuck");
  EXPECT_EQ(program.Display().Notice(), "");
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(program.Display().Cell(cell).text, 0);
    EXPECT_FALSE(program.Display().Cell(cell).opaque);
  }
}

TEST(StartUp, WritesNoFile) {
  const TestProgram program;
  EXPECT_TRUE(std::filesystem::is_empty(program.folder.Path()));
}

TEST(StartUp, AProgramWithoutSoundPlayerIsSilentAndWorks) {
  TestProgram program;
  program.player.status = 0;
  program.main.Form_Load();
  program.Tick(CheckBox::MakeRegular);
  program.MakePuzzle();
  program.main.Click(Button::CommandSolve);
  program.main.Click(Button::CommandSolution);
  EXPECT_FALSE(program.State().SoundOn);
  EXPECT_TRUE(program.player.played.empty());
  EXPECT_TRUE(program.State().Finished);
}

TEST(StartUp, ASoundThatCannotBeLoadedIsSkipped) {
  TestProgram program;
  program.player.loaded.clear();
  program.player.failingLoad = static_cast<std::int32_t>(Sound::kBlaster);
  program.main.Form_Load();
  program.Tick(CheckBox::MakeRegular);
  program.MakePuzzle();
  program.main.Click(Button::CommandSolve);
  program.main.Click(Button::CommandSolution);
  EXPECT_THAT(program.player.played, testing::ElementsAre(1)) << "the sound of Restart alone";
}

}  // namespace
}  // namespace tessel
