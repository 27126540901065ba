// What a run made and how, as JSON: told at its end, kept beside an unfinished output, and checked
// when shards are joined.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "tools/make_options.h"
#include "tools/record_output.h"

namespace tessel::tools {

struct Tally {
  std::uint64_t next = 0;      // the first index that has not been tried
  std::uint64_t accepted = 0;  // puzzles written
  std::uint64_t repeats = 0;   // puzzles left out by --unique
  std::array<std::uint64_t, grade::kLevelCount> levels{};      // of graded puzzles
  std::array<std::uint64_t, grade::kStepKindCount> puzzles{};  // with at least one step of a kind
  double processorSeconds = 0;
  double wallSeconds = 0;

  void Count(const grade::Grade& grade);
  // A part of the same run that follows this one, or was made elsewhere at the same time.
  void Add(const Tally& part);
};

// Everything that decides which puzzles are made, and in which form, as JSON. Equal for runs that
// make the same.
std::string RunOf(const MakeOptions& options);

struct Manifest {
  std::string run;  // see RunOf
  std::optional<Shard> shard;
  bool complete = false;
  std::uint64_t first = 0;
  Tally tally;
  std::string outputFile;  // seen from the manifest's folder; empty for standard output
  RecordOutput::Done output;
};

Manifest ManifestOf(const MakeOptions& options, const Tally& tally,
                    const RecordOutput::Done& output, bool complete);

// Throws Failure for a file that cannot be read, or is no manifest.
Manifest ReadManifest(const std::string& path);
// Whole or not at all. Throws Failure.
void WriteManifest(const std::string& path, const Manifest& manifest);

// The path of `output` as it is seen from the folder of `manifest`, or from its own where there is
// no manifest.
std::string OutputFileBeside(const std::string& manifest, const std::string& output);

// Throws Failure when something stands there; an empty path is none.
void RefuseExisting(const std::string& path);

}  // namespace tessel::tools
