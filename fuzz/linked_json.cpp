// Bytes as the JSON of both formats of links.
#include "formats/f_puzzles.h"
#include "formats/sudokupad.h"
#include "formats/unicode.h"
#include "fuzz/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel::formats;
  const auto text = Utf8Of(std::u16string(data, data + size));
  const auto json = text ? JsonOf(*text) : tl::unexpected(std::string("half a character"));
  if (!json) return 0;
  const auto comesBack = [&](auto read, auto write) {
    const Reading reading = read(*json);
    if (!reading) return;
    const Reading again = read(JsonOf(write(*reading).dump()).value());
    tessel::fuzz::Require(again && again->puzzle == reading->puzzle, "the puzzle comes back");
  };
  comesBack(SudokuPadFromJson, SudokuPadJson);
  comesBack(FPuzzlesFromJson, FPuzzlesJson);
  return 0;
}
