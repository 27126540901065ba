// A run of tessel make: threads make puzzles, and their records are written in the order of their
// indices.
//
// Beside an output file that is being written stands OUTPUT.unfinished: the manifest so far,
// written about once a second, after the records that it tells of. A run that goes on believes what
// it says, compared with the file by its hash, and makes what follows again.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "maker/seen.h"
#include "tools/filter_notice.h"
#include "tools/make_record.h"
#include "tools/manifest.h"
#include "tools/progress_line.h"
#include "tools/record_output.h"

namespace tessel::tools {

class Making {
 public:
  // Opens the output, and goes on with what is there where that was asked for. Throws Failure.
  explicit Making(const MakeOptions& options);

  // Makes until enough is made or a signal asks to stop; the output ends in a whole record either
  // way. Throws Failure, or ReaderGone.
  void Run();

 private:
  using Batch = std::vector<MakeRecord>;

  // `overNothing`: there is a file already, which holds no record.
  void Begin(bool overNothing);
  void Resume(const std::string& manifest);
  void MakeAll();
  // The records of the puzzles begin..end-1; for several threads at once.
  Batch RecordsOf(maker::BatchMaker& maker, std::uint64_t begin, std::uint64_t end) const;
  bool Enough() const;
  void Take(const Batch& batch, std::uint64_t end);
  void TakeOne(const MakeRecord& record);
  void LookAbout();
  void WritePending();
  void Checkpoint();
  void Finish();
  double SecondsSoFar() const;
  Manifest ManifestNow(bool complete) const;
  std::string StatePath() const { return options_.output + ".unfinished"; }

  MakeOptions options_;
  Range range_;
  Tally tally_;
  maker::Seen seen_;
  std::string pending_;         // records that are not written yet
  std::uint64_t standing_ = 0;  // records that are written
  std::unique_ptr<RecordOutput> output_;
  ProgressLine line_;
  std::optional<FilterNotice> notice_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::time_point nextCheckpoint_ = start_;
};

}  // namespace tessel::tools
