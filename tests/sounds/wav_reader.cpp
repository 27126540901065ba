#include "tests/sounds/wav_reader.h"

#include <cmath>
#include <fstream>
#include <sstream>

namespace tessel {

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

std::uint32_t NumberAt(const std::string& bytes, std::size_t at, int size) {
  std::uint32_t number = 0;
  for (int i = size - 1; i >= 0; --i) {
    number = number << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
  }
  return number;
}

std::vector<std::int16_t> SamplesOf(const std::string& wavFile) {
  std::vector<std::int16_t> samples;
  for (std::size_t at = 44; at + 1 < wavFile.size(); at += 2) {
    samples.push_back(static_cast<std::int16_t>(NumberAt(wavFile, at, 2)));
  }
  return samples;
}

double RootMeanSquare(const std::vector<std::int16_t>& samples) {
  double sum = 0;
  for (const std::int16_t sample : samples) sum += static_cast<double>(sample) * sample;
  return samples.empty() ? 0 : std::sqrt(sum / static_cast<double>(samples.size()));
}

}  // namespace tessel
