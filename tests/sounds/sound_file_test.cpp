#include "shell/qt/sound_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <functional>

#include "core/sounds.h"
#include "shell/qt/qt_sound_player.h"
#include "tests/fakes/temporary_folder.h"
#include "tests/sounds/wav_reader.h"

namespace tessel {
namespace {

class IsSoundFileTest : public testing::Test {
 protected:
  bool Accepts(const std::string& bytes) {
    const std::string path = folder.Path() / "sound.wav";
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    return IsSoundFile(path);
  }
  // Whether the good file is still accepted with the little-endian number put in at `at`.
  bool AcceptsWith(std::size_t at, std::uint32_t number, int size) {
    std::string bytes = good;
    for (int i = 0; i < size; ++i) {
      bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(number >> (8 * i));
    }
    return Accepts(bytes);
  }

  TemporaryFolder folder;
  std::string good = BytesOf(TESSEL_SOUND_FOLDER "Beep1.wav");
};

TEST_F(IsSoundFileTest, AcceptsTheTenSounds) {
  for (const std::string_view name : kSoundFiles) {
    EXPECT_TRUE(IsSoundFile(TESSEL_SOUND_FOLDER + std::string(name)));
  }
}

TEST_F(IsSoundFileTest, RejectsWhatIsNoFile) {
  const std::string path = folder.Path().string();
  EXPECT_FALSE(IsSoundFile(path + "/missing.wav"));
  EXPECT_FALSE(IsSoundFile(path));
  EXPECT_FALSE(IsSoundFile(""));
  EXPECT_FALSE(IsSoundFile("/dev/zero"));
}

TEST_F(IsSoundFileTest, DoesNotWaitForAPipe) {
  const std::string pipe = folder.Path() / "pipe.wav";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(IsSoundFile(pipe));
}

TEST_F(IsSoundFileTest, RejectsEveryShorterPartOfAFile) {
  ASSERT_TRUE(Accepts(good));
  for (std::size_t size = 0; size < 64; ++size) EXPECT_FALSE(Accepts(good.substr(0, size))) << size;
  EXPECT_FALSE(Accepts(good.substr(0, good.size() - 1)));
}

TEST_F(IsSoundFileTest, RejectsGarbage) {
  EXPECT_FALSE(Accepts(std::string(100'000, '\0')));
  EXPECT_FALSE(Accepts(std::string(100'000, 'R')));
  EXPECT_FALSE(Accepts("RIFF" + std::string(1000, '\xFF')));
  EXPECT_FALSE(Accepts("RIFF....WAVE" + std::string(1000, '\0')));
}

TEST_F(IsSoundFileTest, RejectsAHugeFileWithoutReadingIt) {
  const std::string path = folder.Path() / "huge.wav";
  std::ofstream(path, std::ios::binary) << good;
  std::filesystem::resize_file(path, std::uintmax_t{4} << 30);
  EXPECT_FALSE(IsSoundFile(path));
}

TEST_F(IsSoundFileTest, RejectsASizeThatTheFileDoesNotHave) {
  const auto samples = static_cast<std::uint32_t>(good.size() - 44);
  EXPECT_TRUE(AcceptsWith(40, samples, 4));
  EXPECT_FALSE(AcceptsWith(40, samples + 1, 4));
  EXPECT_FALSE(AcceptsWith(40, 0xFFFFFFFF, 4));
  EXPECT_FALSE(AcceptsWith(40, 0, 4));
  EXPECT_FALSE(AcceptsWith(16, 0xFFFFFFFF, 4));
}

TEST_F(IsSoundFileTest, RejectsFormatsThatNoSoundHas) {
  EXPECT_FALSE(AcceptsWith(20, 2, 2));  // packed
  EXPECT_FALSE(AcceptsWith(22, 0, 2));  // no channel
  EXPECT_FALSE(AcceptsWith(22, 3, 2));
  EXPECT_FALSE(AcceptsWith(24, 0, 4));  // no rate
  EXPECT_FALSE(AcceptsWith(24, 0xFFFFFFFF, 4));
  EXPECT_FALSE(AcceptsWith(34, 0, 2));  // no bits
  EXPECT_FALSE(AcceptsWith(34, 24, 2));
  EXPECT_TRUE(AcceptsWith(22, 2, 2));
  EXPECT_TRUE(AcceptsWith(24, 48'000, 4));
  EXPECT_TRUE(AcceptsWith(34, 8, 2));
}

TEST_F(IsSoundFileTest, SkipsOtherChunks) {
  const std::string note("LIST\x03\0\0\0abc\0", 12);  // of odd size, with its filling byte
  EXPECT_TRUE(Accepts(good.substr(0, 36) + note + good.substr(36)));
  EXPECT_FALSE(Accepts(good.substr(0, 12) + good.substr(36)));  // no format
}

TEST_F(IsSoundFileTest, SurvivesEveryChangedByteOfTheHeader) {
  for (std::size_t at = 0; at < 44; ++at) {
    for (const std::uint32_t value : {0x00u, 0x01u, 0x7Fu, 0x80u, 0xFFu}) {
      const bool accepted = AcceptsWith(at, value, 1);
      const bool named = at < 4 || (at >= 8 && at < 16) || (at >= 36 && at < 40);
      EXPECT_FALSE(named && accepted) << at;
    }
  }
}

TEST_F(IsSoundFileTest, ABrokenFileGetsANegativeIdentifier) {
  QtSoundPlayer player;
  EXPECT_EQ(player.Status(), 1);
  EXPECT_LT(player.Load(folder.Path() / "missing.wav"), 0);
  EXPECT_LT(player.Load(folder.Path()), 0);
  EXPECT_LT(player.Load(""), 0);
  player.Play(-1);
  player.Play(0);
  player.Play(1000);
}

}  // namespace
}  // namespace tessel
