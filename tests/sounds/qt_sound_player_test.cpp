#include "shell/qt/qt_sound_player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <algorithm>
#include <optional>

#include "core/sounds.h"
#include "tests/sounds/sound_server.h"
#include "tests/sounds/wav_reader.h"

namespace tessel {
namespace {

using testing::AllOf;
using testing::Each;
using testing::Optional;
using testing::SizeIs;

constexpr std::size_t kHalfSecond = 22'050;
constexpr char kNoServer[] = "pulseaudio or pactl (package pulseaudio-utils) does not start";
constexpr int kEndedOrderly = 7;  // the player program's exit status

double EnergyOf(const std::vector<std::int16_t>& samples) {
  const double level = RootMeanSquare(samples);
  return level * level * static_cast<double>(samples.size());
}

class QtSoundPlayerTest : public testing::Test {
 protected:
  static QByteArray Sound(const char* name) { return QByteArray(TESSEL_SOUND_FOLDER) + name; }

  // Plays the sound until something is heard; the recording from there on, `count` samples. Until
  // the player is connected, plays are dropped.
  static std::vector<std::int16_t> Heard(PlayerProcess& player, Recording& recording,
                                         std::size_t count) {
    for (int attempt = 0; attempt < 20; ++attempt) {
      EXPECT_THAT(player.Ask("play 0"), Optional(QByteArray("done")));
      std::vector<std::int16_t> heard = recording.Next(kHalfSecond);
      const auto start =
          std::find_if(heard.begin(), heard.end(), [](std::int16_t sample) { return sample != 0; });
      if (start == heard.end()) continue;
      heard.erase(heard.begin(), start);
      const std::vector<std::int16_t> rest = recording.Next(count - std::min(count, heard.size()));
      heard.insert(heard.end(), rest.begin(), rest.end());
      return heard;
    }
    return {};
  }

  // All ten files, five times; every answer must come.
  static void LoadAndPlayAll(PlayerProcess& player) {
    for (std::size_t number = 0; number < kSoundFiles.size(); ++number) {
      const std::string path = TESSEL_SOUND_FOLDER + std::string(kSoundFiles[number]);
      EXPECT_THAT(player.Ask("load " + QByteArray::fromStdString(path)),
                  Optional(QByteArray::number(static_cast<int>(number))));
    }
    for (int play = 0; play < 50; ++play) {
      ASSERT_THAT(player.Ask("play " + QByteArray::number(play % 10)),
                  Optional(QByteArray("done")));
    }
  }

  int argumentCount_ = 0;
  QCoreApplication application_{argumentCount_, nullptr};
};

// A player that has just been heard to play.
class HeardPlayerTest : public QtSoundPlayerTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(server.Answers()) << kNoServer;
    recording.emplace(server);
    player.emplace(server.Address());
    ASSERT_THAT(player->Ask("load " + Sound("Beep1.wav")), Optional(QByteArray("0")));
    ASSERT_THAT(Heard(*player, *recording, kHalfSecond), SizeIs(kHalfSecond));
  }
  void PlayOften() {
    for (int i = 0; i < 50; ++i) ASSERT_THAT(player->Ask("play 0"), Optional(QByteArray("done")));
  }

  SoundServer server;
  std::optional<Recording> recording;
  std::optional<PlayerProcess> player;
};

TEST_F(QtSoundPlayerTest, PlaysTheWholeFileAndThenNothing) {
  SoundServer server;
  ASSERT_TRUE(server.Answers()) << kNoServer;
  Recording recording(server);
  for (const char* name : {"Beep1.wav", "Cashreg.wav"}) {
    PlayerProcess player(server.Address());
    ASSERT_THAT(player.Ask("load " + Sound(name)), Optional(QByteArray("0")));
    const std::vector<std::int16_t> file = SamplesOf(BytesOf(Sound(name).toStdString()));
    const std::size_t length = file.size() + kHalfSecond;
    const std::vector<std::int16_t> heard = Heard(player, recording, length);
    ASSERT_THAT(heard, SizeIs(length));
    // The sink's monitor misses the first hundredths of a second of every stream.
    EXPECT_GT(EnergyOf(heard), 0.6 * EnergyOf(file)) << name;
    EXPECT_LT(EnergyOf(heard), 1.1 * EnergyOf(file)) << name;
    EXPECT_THAT(recording.Next(kHalfSecond), AllOf(SizeIs(kHalfSecond), Each(0))) << name;
    EXPECT_THAT(player.End(), Optional(kEndedOrderly)) << name;
  }
}

TEST_F(QtSoundPlayerTest, PlaysTheSoundOfTheIdentifier) {
  SoundServer server;
  ASSERT_TRUE(server.Answers()) << kNoServer;
  Recording recording(server);
  PlayerProcess player(server.Address());
  ASSERT_THAT(player.Ask("load " + Sound("Error.wav")), Optional(QByteArray("0")));
  ASSERT_THAT(player.Ask("load " + Sound("Beep1.wav")), Optional(QByteArray("1")));
  const double error = EnergyOf(Heard(player, recording, kHalfSecond));
  ASSERT_THAT(player.Ask("play 1"), Optional(QByteArray("done")));
  const double beep = EnergyOf(recording.Next(kHalfSecond));
  EXPECT_GT(beep, 0);
  EXPECT_GT(error, 2 * beep);
}

TEST_F(QtSoundPlayerTest, IsSilentForASoundThatWasNotLoaded) {
  SoundServer server;
  ASSERT_TRUE(server.Answers()) << kNoServer;
  Recording recording(server);
  PlayerProcess player(server.Address());
  EXPECT_THAT(player.Ask("load /nowhere/Beep1.wav"), Optional(QByteArray("-1")));
  ASSERT_THAT(player.Ask("load " + Sound("Beep1.wav")), Optional(QByteArray("0")));
  for (const char* id : {"-1", "1", "1000000"}) {
    EXPECT_THAT(player.Ask(QByteArray("play ") + id), Optional(QByteArray("done")));
  }
  EXPECT_THAT(recording.Next(kHalfSecond), AllOf(SizeIs(kHalfSecond), Each(0)));
  EXPECT_THAT(player.End(), Optional(kEndedOrderly));
}

TEST_F(QtSoundPlayerTest, LivesWithoutAServer) {
  PlayerProcess player("unix:/nowhere/native");
  LoadAndPlayAll(player);
  EXPECT_THAT(player.End(), Optional(kEndedOrderly));
  EXPECT_EQ(player.Errors(), "");
}

// A server that takes the connection and says nothing; connecting to it fails after 30 seconds.
TEST_F(QtSoundPlayerTest, DoesNotWaitForAServerThatHangs) {
  const TemporaryFolder folder;
  const std::string path = folder.Path() / "native";
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.copy(address.sun_path, sizeof(address.sun_path) - 1),
            sizeof(address.sun_path) - 1);
  const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
  ASSERT_EQ(listen(listener, 10), 0);
  PlayerProcess player("unix:" + QString::fromStdString(path));
  LoadAndPlayAll(player);
  EXPECT_THAT(player.End(), Optional(kEndedOrderly));
  close(listener);
}

TEST_F(HeardPlayerTest, LivesOnWhenTheServerIsKilledWhileItPlays) {
  ASSERT_THAT(player->Ask("play 0"), Optional(QByteArray("done")));
  server.Kill();
  ASSERT_NO_FATAL_FAILURE(PlayOften());
  EXPECT_THAT(player->End(), Optional(kEndedOrderly));
  EXPECT_EQ(player->Errors(), "");
}

TEST_F(QtSoundPlayerTest, PlaysAgainWhenTheServerIsBack) {
  SoundServer server;
  ASSERT_TRUE(server.Answers()) << kNoServer;
  PlayerProcess player(server.Address());
  ASSERT_THAT(player.Ask("load " + Sound("Beep1.wav")), Optional(QByteArray("0")));
  {
    Recording recording(server);
    ASSERT_THAT(Heard(player, recording, kHalfSecond), SizeIs(kHalfSecond));
  }
  server.Kill();
  server.Start();
  ASSERT_TRUE(server.Answers());
  Recording recording(server);
  EXPECT_THAT(Heard(player, recording, kHalfSecond), SizeIs(kHalfSecond));
  EXPECT_THAT(player.End(), Optional(kEndedOrderly));
  EXPECT_EQ(player.Errors(), "");
}

TEST_F(HeardPlayerTest, EndsInOrderWhileTheServerIsFrozen) {
  server.Freeze();
  ASSERT_NO_FATAL_FAILURE(PlayOften());
  EXPECT_THAT(player->End(), Optional(kEndedOrderly));
}

}  // namespace
}  // namespace tessel
