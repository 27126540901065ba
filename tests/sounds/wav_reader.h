// The project's own WAV files, read back for the tests.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessel {

// The bytes of a file; empty when it cannot be read.
std::string BytesOf(const std::string& path);

// The little-endian number of `size` bytes at `at`.
std::uint32_t NumberAt(const std::string& bytes, std::size_t at, int size);

// The samples behind the 44 bytes of header.
std::vector<std::int16_t> SamplesOf(const std::string& wavFile);

double RootMeanSquare(const std::vector<std::int16_t>& samples);

}  // namespace tessel
