// Bytes as the JSON of a link, packed as both formats of links have them.
#include "formats/format.h"
#include "formats/lz_string.h"
#include "fuzz/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel::formats;
  const std::string packed = LzCompressed(std::u16string(data, data + size));
  const auto unpacked = LzDecompressed(packed, size);
  tessel::fuzz::Require(unpacked == std::u16string(data, data + size), "the text comes back");
  for (const char* const name : {"f-puzzles", "sudokupad"}) {
    const Format& format = *FormatNamed(name);
    const char* const address = name[0] == 'f' ? "https://f-puzzles.com/?load=" : "scl";
    const Reading reading = format.read(address + packed);
    if (!reading) continue;
    const Reading again = format.read(format.write(*reading).value());
    tessel::fuzz::Require(again && again->puzzle == reading->puzzle, "the puzzle comes back");
  }
  return 0;
}
