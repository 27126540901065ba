// Bytes as a whole input, whose format is found by looking.
#include "formats/puzzle_reader.h"

#include "fuzz/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::span<const std::uint8_t> left(data, size);
  tessel::formats::PuzzleReader reader([&](std::span<char> bytes) {
    const std::size_t count = std::min({left.size(), bytes.size(), std::size_t{100}});
    std::copy_n(left.begin(), count, bytes.begin());
    left = left.subspan(count);
    return count;
  });
  std::size_t records = 0;
  while (const auto next = reader.Next()) {
    ++records;
    if (!*next) tessel::fuzz::Require(!next->error().Message("f").empty(), "a fault is told");
  }
  tessel::fuzz::Require(records <= size, "each takes some bytes");
  return 0;
}
