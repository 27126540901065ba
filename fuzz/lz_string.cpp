// Bytes as base64: unpacking stays within its bound, and what it makes comes back.
#include "formats/lz_string.h"

#include "fuzz/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel::formats;
  constexpr std::size_t most = 10'000;
  const auto text = LzDecompressed({reinterpret_cast<const char*>(data), size}, most);
  if (!text) return 0;
  tessel::fuzz::Require(text->size() <= most, "within the bound");
  tessel::fuzz::Require(LzDecompressed(LzCompressed(*text), most) == *text, "the text comes back");
  return 0;
}
