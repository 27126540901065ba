// The behaviour signature, and whether it is the one that the suite expects.
#include "tests/signature/signature.h"

#include <cstdio>
#include <cstdlib>

namespace tessel {
namespace {

void PrintLine(const char* stage, std::uint64_t now, std::uint64_t recorded) {
  std::printf("  %-8s %s  %s\n", stage, HexOf(now).c_str(),
              now == recorded ? "as recorded" : "DIFFERS");
}

}  // namespace
}  // namespace tessel

int main() {
  using namespace tessel;
  const Signature now = SignatureOf(kSignatureSeeds);
  std::printf("\nBehaviour signature over %d seeds\n", kSignatureSeeds);
  PrintLine("layouts", now.layouts, kRecordedSignature.layouts);
  PrintLine("fills", now.fills, kRecordedSignature.fills);
  PrintLine("puzzles", now.puzzles, kRecordedSignature.puzzles);
  PrintLine("hints", now.hints, kRecordedSignature.hints);
  return now == kRecordedSignature ? EXIT_SUCCESS : EXIT_FAILURE;
}
