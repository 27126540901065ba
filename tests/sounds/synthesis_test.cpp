#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <numeric>

#include "core/sounds.h"
#include "sounds/effects.h"
#include "sounds/wav_file.h"
#include "tests/fakes/temporary_folder.h"
#include "tests/sounds/wav_reader.h"

namespace tessel {
namespace {

using testing::AllOf;
using testing::Ge;
using testing::Le;

// FNV-1a, 64 bits.
std::uint64_t HashOf(const std::string& bytes) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char byte : bytes) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  }
  return hash;
}

// The tests that hold for each of the ten files, by number.
class SoundFile : public testing::TestWithParam<std::size_t> {
 protected:
  static std::string Name() { return std::string(kSoundFiles[GetParam()]); }
  static std::string Built() { return BytesOf(TESSEL_SOUND_FOLDER + Name()); }
  // The samples without the silence at the end.
  static std::vector<std::int16_t> Audible() {
    std::vector<std::int16_t> samples = SamplesOf(Built());
    while (!samples.empty() && samples.back() == 0) samples.pop_back();
    return samples;
  }
};

INSTANTIATE_TEST_SUITE_P(Synthesised, SoundFile, testing::Range<std::size_t>(0, 10),
                         [](const auto& number) {
                           const std::string_view name = kSoundFiles[number.param];
                           return std::string(name.substr(0, name.find('.')));
                         });

TEST_P(SoundFile, HasThePlainHeaderOfOneChannelAnd16Bits) {
  const std::string bytes = Built();
  ASSERT_GT(bytes.size(), 44u);
  EXPECT_EQ(bytes.substr(0, 4), "RIFF");
  EXPECT_EQ(NumberAt(bytes, 4, 4), bytes.size() - 8);
  EXPECT_EQ(bytes.substr(8, 8), "WAVEfmt ");
  EXPECT_EQ(NumberAt(bytes, 16, 4), 16u);
  EXPECT_EQ(NumberAt(bytes, 20, 2), 1u);  // PCM
  EXPECT_EQ(NumberAt(bytes, 22, 2), 1u);  // channels
  EXPECT_EQ(NumberAt(bytes, 24, 4), 44'100u);
  EXPECT_EQ(NumberAt(bytes, 28, 4), 88'200u);  // bytes a second
  EXPECT_EQ(NumberAt(bytes, 32, 2), 2u);       // bytes a sample of all channels
  EXPECT_EQ(NumberAt(bytes, 34, 2), 16u);      // bits
  EXPECT_EQ(bytes.substr(36, 4), "data");
  EXPECT_EQ(NumberAt(bytes, 40, 4), bytes.size() - 44);
  EXPECT_EQ(bytes.size() % 2, 0u);
}

TEST_P(SoundFile, IsShort) {
  const double seconds = static_cast<double>(Audible().size()) / 44'100;
  EXPECT_THAT(seconds, AllOf(Ge(0.1), Le(2.0)));
}

TEST_P(SoundFile, DoesNotClip) {
  for (const std::int16_t sample : SamplesOf(Built())) {
    ASSERT_THAT(sample, AllOf(Ge(-26'300), Le(26'300)));
  }
}

TEST_P(SoundFile, IsLoudEnoughAndNotTooLoud) {
  EXPECT_THAT(RootMeanSquare(Audible()), AllOf(Ge(1'000), Le(5'000)));
}

TEST_P(SoundFile, StartsAndEndsInSilenceWithoutAClick) {
  const std::vector<std::int16_t> samples = Audible();
  ASSERT_GT(samples.size(), 1000u);
  EXPECT_EQ(samples.front(), 0);
  for (std::size_t i = 0; i < 20; ++i) {
    EXPECT_LT(std::abs(samples[i]), 400) << i;
    EXPECT_LT(std::abs(samples[samples.size() - 1 - i]), 400) << i;
  }
}

// Qt Multimedia drops the last tenths of a second of a file.
TEST_P(SoundFile, EndsInSilenceThatMayBeCutOff) {
  const std::vector<std::int16_t> samples = SamplesOf(Built());
  ASSERT_GT(samples.size(), 11'025u);
  EXPECT_THAT(std::vector(samples.end() - 11'025, samples.end()), testing::Each(0));
}

TEST_P(SoundFile, HasNoConstantPart) {
  const std::vector<std::int16_t> samples = SamplesOf(Built());
  const long sum = std::accumulate(samples.begin(), samples.end(), 0L);
  EXPECT_LT(std::abs(static_cast<double>(sum) / static_cast<double>(samples.size())), 10.0);
}

TEST_P(SoundFile, IsWhatTheSynthesiserMakesNow) {
  const synth::Signal effect = synth::EffectOf(static_cast<Sound>(GetParam()));
  EXPECT_TRUE(Built() == synth::WavFileOf(effect));
}

// Recorded once: every build and machine gives the same bytes.
TEST_P(SoundFile, HasTheRecordedBytes) {
  constexpr std::array<std::uint64_t, 10> kRecorded{
      0xD2ACB6D85757387D, 0xAF2B8BBDF6733A10, 0x6D27D4E985D6FCE6, 0xFB4AA721C7DEDF7F,
      0x428A1CBF47E25FA8, 0xF31418107117DF85, 0xE1CD2ED2707399DB, 0xF4D9FD0166B69507,
      0x57944020272683A4, 0x1F8951FB70284BC8};
  EXPECT_EQ(HashOf(Built()), kRecorded[GetParam()]) << std::hex << HashOf(Built());
}

TEST(Synthesiser, WritesTheSameBytesInEveryRun) {
  const TemporaryFolder folder;
  ASSERT_EQ(std::system((std::string(TESSEL_SYNTH) + " " + folder.Path().string()).c_str()), 0);
  for (const std::string_view name : kSoundFiles) {
    const std::string bytes = BytesOf((folder.Path() / name).string());
    EXPECT_FALSE(bytes.empty());
    EXPECT_TRUE(bytes == BytesOf(TESSEL_SOUND_FOLDER + std::string(name))) << name;
  }
}

TEST(Synthesiser, FailsWhereItCannotWrite) {
  const std::string synth = TESSEL_SYNTH;
  EXPECT_NE(std::system((synth + " /nowhere/at/all 2>/dev/null").c_str()), 0);
  EXPECT_NE(std::system((synth + " 2>/dev/null").c_str()), 0);
}

// How alike two sounds are at their beginning, 0 to 1.
double Likeness(const std::vector<std::int16_t>& a, const std::vector<std::int16_t>& b) {
  const std::size_t size = std::min(a.size(), b.size());
  double product = 0;
  double squares[2] = {0, 0};
  for (std::size_t i = 0; i < size; ++i) {
    product += static_cast<double>(a[i]) * b[i];
    squares[0] += static_cast<double>(a[i]) * a[i];
    squares[1] += static_cast<double>(b[i]) * b[i];
  }
  return std::abs(product) / std::sqrt(squares[0] * squares[1]);
}

TEST(Synthesiser, NoTwoSoundsAreAlike) {
  std::vector<std::vector<std::int16_t>> sounds;
  for (const std::string_view name : kSoundFiles) {
    sounds.push_back(SamplesOf(BytesOf(TESSEL_SOUND_FOLDER + std::string(name))));
  }
  for (std::size_t a = 0; a < sounds.size(); ++a) {
    for (std::size_t b = 0; b < a; ++b) {
      EXPECT_LT(Likeness(sounds[a], sounds[b]), 0.5) << kSoundFiles[a] << " " << kSoundFiles[b];
    }
  }
}

TEST(Sine, AgreesWithTheMathematicalLibrary) {
  for (int i = -3000; i <= 3000; ++i) {
    const double turns = i / 997.0;
    EXPECT_NEAR(synth::Sine(turns), std::sin(2 * std::numbers::pi * turns), 1e-9) << turns;
  }
}

TEST(BandPass, PassesItsCentreAndHoldsBackTheRest) {
  const auto levelOf = [](double hertz) {
    const synth::Signal tone = synth::Tone(0.5, synth::Steady(hertz));
    const synth::Signal passed = synth::BandPass(tone, synth::Steady(1000), 5);
    return *std::max_element(passed.begin() + 11'025, passed.end());
  };
  EXPECT_NEAR(levelOf(1000), 1.0, 0.05);
  EXPECT_LT(levelOf(250), 0.1);
  EXPECT_LT(levelOf(4000), 0.1);
}

TEST(Decaying, FallsToAHalfInEveryHalfLife) {
  const synth::Signal signal = synth::Decaying(synth::Signal(22'050, 1.0), 0.1);
  EXPECT_NEAR(signal[4'410], 0.5, 1e-3);
  EXPECT_NEAR(signal[8'820], 0.25, 1e-3);
}

TEST(WavFile, CutsWhatIsBeyondFullScale) {
  const std::vector<std::int16_t> samples = SamplesOf(synth::WavFileOf({2.0, -2.0, 0.0, 0.5}));
  EXPECT_THAT(samples, testing::ElementsAre(32'767, -32'767, 0, 16'384));
}

}  // namespace
}  // namespace tessel
