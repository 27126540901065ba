// Bytes to the reader of one format; what it takes must come back when it is written.
#include "formats/format.h"
#include "fuzz/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel::formats;
  static const Format& format = *FormatNamed(TESSEL_FORMAT);
  const Reading reading = format.read({reinterpret_cast<const char*>(data), size});
  if (!reading) return 0;
  const Writing writing = format.write(*reading);
  if (!writing) return 0;
  const Reading again = format.read(*writing);
  tessel::fuzz::Require(again.has_value(), "what is written can be read");
  tessel::fuzz::Require(again->puzzle == reading->puzzle, "the puzzle comes back");
  return 0;
}
