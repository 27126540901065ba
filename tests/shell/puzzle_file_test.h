// Records that can be told apart, and the puzzle file read back.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "shell/puzzle_file.h"
#include "tests/fakes/fake_system_calls.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel {

inline constexpr std::size_t kRecordSize = sizeof(PuzzleRecord);
using RecordBytes = std::array<std::uint8_t, kRecordSize>;

// Record number `n`: `n` itself in the first four bytes, the others follow from it.
inline PuzzleRecord NumberedRecord(std::uint32_t n) {
  RecordBytes bytes;
  for (std::size_t i = 0; i < kRecordSize; ++i) {
    bytes[i] = static_cast<std::uint8_t>(i < 4 ? n >> 8 * i : n * 31 + i * 7);
  }
  return std::bit_cast<PuzzleRecord>(bytes);
}

// The number of the record; nothing when a single byte is not as it was written.
inline std::optional<std::uint32_t> NumberOf(const PuzzleRecord& record) {
  const auto bytes = std::bit_cast<RecordBytes>(record);
  std::uint32_t n = 0;
  for (std::size_t i = 4; i-- > 0;) n = n << 8 | bytes[i];
  if (NumberedRecord(n) != record) return std::nullopt;
  return n;
}

inline std::string BytesOf(const PuzzleRecord& record) {
  const auto bytes = std::bit_cast<RecordBytes>(record);
  return {bytes.begin(), bytes.end()};
}

inline std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes(std::filesystem::file_size(path), '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  EXPECT_TRUE(file.good()) << path;
  return bytes;
}

inline void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

// The whole records of the file.
inline std::vector<PuzzleRecord> RecordsOf(const std::filesystem::path& path) {
  const std::string bytes = ReadFile(path);
  std::vector<PuzzleRecord> records;
  for (std::size_t at = 0; at + kRecordSize <= bytes.size(); at += kRecordSize) {
    RecordBytes record;
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), kRecordSize, record.begin());
    records.push_back(std::bit_cast<PuzzleRecord>(record));
  }
  return records;
}

inline std::optional<std::string> ErrorOf(const AppendedPuzzle& outcome) {
  return outcome ? std::nullopt : std::optional(outcome.error());
}

class PuzzleFileTest : public testing::Test {
 protected:
  std::filesystem::path Path() const { return folder.PuzzleFile(); }
  std::string Contents() const { return ReadFile(Path()); }
  std::optional<std::string> Append(std::uint32_t n) {
    return ErrorOf(AppendPuzzle(Path().string(), NumberedRecord(n), system));
  }
  void AppendWell(std::uint32_t n) { EXPECT_EQ(Append(n), std::nullopt); }

  TemporaryFolder folder;
  FakeSystemCalls system;
};

}  // namespace tessel
