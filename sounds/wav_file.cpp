#include "sounds/wav_file.h"

#include <algorithm>
#include <cmath>

namespace tessel::synth {

namespace {

constexpr int kBytesPerSample = 2;
constexpr std::uint32_t kHeaderBytesAfterSize = 36;

// The lowest `bytes` bytes of the number, lowest first.
std::string LittleEndian(std::uint32_t number, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(number >> (8 * i) & 0xFF);
  return text;
}

std::string SampleOf(double value) {
  constexpr double kFullScale = 32767;
  const double scaled = std::clamp(value, -1.0, 1.0) * kFullScale;
  const auto rounded = static_cast<std::int32_t>(std::floor(scaled + 0.5));
  return LittleEndian(static_cast<std::uint32_t>(rounded), kBytesPerSample);
}

std::string Header(std::uint32_t dataSize) {
  constexpr std::uint32_t kPcm = 1;
  constexpr std::uint32_t kChannels = 1;
  return "RIFF" + LittleEndian(kHeaderBytesAfterSize + dataSize, 4) + "WAVEfmt " +
         LittleEndian(16, 4) + LittleEndian(kPcm, 2) + LittleEndian(kChannels, 2) +
         LittleEndian(kSampleRate, 4) + LittleEndian(kSampleRate * kBytesPerSample, 4) +
         LittleEndian(kBytesPerSample, 2) + LittleEndian(8 * kBytesPerSample, 2) + "data" +
         LittleEndian(dataSize, 4);
}

}  // namespace

std::string WavFileOf(const Signal& signal) {
  std::string file = Header(static_cast<std::uint32_t>(signal.size()) * kBytesPerSample);
  for (const double value : signal) file += SampleOf(value);
  return file;
}

}  // namespace tessel::synth
