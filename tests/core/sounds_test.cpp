#include "core/sounds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/fake_sound_player.h"

namespace tessel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SoundsTest : public testing::Test {
 protected:
  SoundsTest() { state.ProgramPath = "/opt/tessel/"; }

  GameState state;
  FakeSoundPlayer player;
  Sounds sounds{state, player};
};

TEST_F(SoundsTest, LoadsTheTenFilesInNumberOrderFromTheProgramFolder) {
  sounds.Init_Sound();
  EXPECT_TRUE(state.SoundOn);
  EXPECT_THAT(player.loaded, ElementsAre("/opt/tessel/applause.wav", "/opt/tessel/Patch54p.wav",
                                         "/opt/tessel/Beep2.wav", "/opt/tessel/Boink4.wav",
                                         "/opt/tessel/Blaster_1.wav", "/opt/tessel/Beep5.wav",
                                         "/opt/tessel/Beep1.wav", "/opt/tessel/Cashreg.wav",
                                         "/opt/tessel/Error.wav", "/opt/tessel/Giggle.wav"));
  EXPECT_THAT(state.SoundIds, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0));
  EXPECT_THAT(player.played, IsEmpty());
}

TEST_F(SoundsTest, AStatusOtherThanOneSilencesTheProgram) {
  for (const int status : {0, -1, 2}) {
    player.status = status;
    state.SoundOn = true;
    sounds.Init_Sound();
    EXPECT_FALSE(state.SoundOn) << status;
    EXPECT_THAT(player.loaded, IsEmpty()) << status;
    for (int number = 0; number < 10; ++number) sounds.PlaySound(static_cast<Sound>(number));
    EXPECT_THAT(player.played, IsEmpty()) << status;
  }
}

TEST_F(SoundsTest, PlaysNothingBeforeTheSoundsAreLoaded) {
  sounds.PlaySound(Sound::kApplause);
  EXPECT_THAT(player.played, IsEmpty());
}

TEST_F(SoundsTest, AFailedLoadSilencesThatSoundAlone) {
  player.failingLoad = 3;
  sounds.Init_Sound();
  EXPECT_TRUE(state.SoundOn);
  EXPECT_LT(state.SoundIds[3], 0);
  EXPECT_EQ(player.loaded.size(), 10u);
  for (int number = 0; number < 10; ++number) sounds.PlaySound(static_cast<Sound>(number));
  EXPECT_THAT(player.played, ElementsAre(0, 1, 2, 4, 5, 6, 7, 8, 9));
}

TEST_F(SoundsTest, PlaysTheIdentifierThatThePlayerGave) {
  sounds.Init_Sound();
  state.SoundIds[static_cast<std::size_t>(Sound::kError)] = 77;
  sounds.PlaySound(Sound::kError);
  sounds.PlaySound(Sound::kApplause);
  sounds.PlaySound(Sound::kError);
  EXPECT_THAT(player.played, ElementsAre(77, 0, 77));
}

TEST(SoundNumbers, AreFixed) {
  EXPECT_EQ(static_cast<int>(Sound::kApplause), 0);
  EXPECT_EQ(static_cast<int>(Sound::kPatch), 1);
  EXPECT_EQ(static_cast<int>(Sound::kEntry), 2);
  EXPECT_EQ(static_cast<int>(Sound::kBoink), 3);
  EXPECT_EQ(static_cast<int>(Sound::kBlaster), 4);
  EXPECT_EQ(static_cast<int>(Sound::kMarkAdded), 6);
  EXPECT_EQ(static_cast<int>(Sound::kCashRegister), 7);
  EXPECT_EQ(static_cast<int>(Sound::kError), 8);
  EXPECT_EQ(static_cast<int>(Sound::kGiggle), 9);
}

}  // namespace
}  // namespace tessel
