// Puts the shards of a run together again.
#pragma once

#include <string>
#include <vector>

namespace tessel::tools {

struct JoinOptions {
  std::vector<std::string> manifests;  // in any order
  std::string output = "-";
  std::string manifest;  // empty: none is written
};

// Writes the outputs of the shards one after the other, byte for byte what the run without shards
// writes, and its manifest. Throws Failure when a shard is missing, unfinished, of another run or
// not as its manifest tells; then nothing is written to a file.
void Join(const JoinOptions& options);

}  // namespace tessel::tools
