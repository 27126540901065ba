#include "tools/making.h"

#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <filesystem>

#include "maker/in_order.h"
#include "tools/failure.h"
#include "tools/output.h"
#include "tools/stop_signals.h"

namespace tessel::tools {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::uint64_t kMostABatch = 32;
constexpr std::size_t kWriteBytes = std::size_t{1} << 16;
constexpr milliseconds kPatience{50};  // until a signal or the progress line is looked after
constexpr milliseconds kCheckpointTime{1000};

double ProcessorSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

RecordOutput::Sharing SharingOf(const MakeOptions& options) {
  return options.format.Base().name == "sds" ? RecordOutput::Sharing::kPuzzleFile
                                             : RecordOutput::Sharing::kAlone;
}

// Shards follow one another in one file: the first one begins it.
std::string HeaderOf(const MakeOptions& options) {
  const bool begins = !options.shard || options.shard->number == 0;
  return begins ? options.format.Header() : "";
}

bool IsThere(const std::string& path) {
  std::error_code ignored;
  return !path.empty() && std::filesystem::exists(path, ignored);
}

bool IsSameShard(const std::optional<Shard>& a, const std::optional<Shard>& b) {
  if (!a || !b) return !a && !b;
  return a->number == b->number && a->count == b->count;
}

// Throws Failure for a manifest of another run.
Manifest ManifestOfSameRun(const std::string& path, const MakeOptions& options) {
  Manifest manifest = ReadManifest(path);
  if (manifest.run != RunOf(options) || !IsSameShard(manifest.shard, options.shard)) {
    throw Failure(path + " belongs to a run with other options");
  }
  return manifest;
}

// As a run leaves the file that is killed before its first state.
bool HoldsNoRecord(const MakeOptions& options) {
  std::error_code failed;
  const auto size = std::filesystem::file_size(options.output, failed);
  return !failed && size <= HeaderOf(options).size();
}

// Which puzzles are repeats is known only from all those before: they are made again, and found in
// the output as they are.
Manifest BeforeTheFirst(Manifest manifest, std::uint64_t first) {
  manifest.tally = {};
  manifest.tally.next = first;
  manifest.output = {manifest.output.offset, 0, Sha256().Hex()};
  return manifest;
}

}  // namespace

Making::Making(const MakeOptions& options)
    : options_(options),
      range_(options.Indices()),
      line_(options.quiet, options.want.has_value(), options.want.value_or(range_.Size())) {
  tally_.next = range_.first;
  const bool resumes = options_.resume && IsThere(options_.output);
  if (!options_.resume) RefuseExisting(options_.manifest);
  if (resumes && IsThere(StatePath())) {
    Resume(StatePath());
  } else if (resumes && IsThere(options_.manifest)) {
    Resume(options_.manifest);
  } else if (resumes && !HoldsNoRecord(options_)) {
    throw Failure("nothing tells how far " + options_.output + " has come: there is no " +
                  StatePath());
  } else {
    Begin(resumes);
  }
  notice_.emplace(options_, tally_);
}

void Making::Begin(bool overNothing) {
  if (IsThere(StatePath())) {
    throw Failure(StatePath() + " tells of a run that was ended: --resume goes on with it");
  }
  const RecordOutput::Done nothing{0, 0, Sha256().Hex()};
  output_ = overNothing
                ? std::make_unique<RecordOutput>(options_.output, SharingOf(options_), nothing)
                : std::make_unique<RecordOutput>(options_.output, SharingOf(options_));
  pending_ = HeaderOf(options_);
}

void Making::Resume(const std::string& manifest) {
  Manifest earlier = ManifestOfSameRun(manifest, options_);
  if (options_.unique) earlier = BeforeTheFirst(std::move(earlier), range_.first);
  tally_ = earlier.tally;
  standing_ = tally_.accepted;
  output_ = std::make_unique<RecordOutput>(options_.output, SharingOf(options_), earlier.output);
  if (earlier.output.bytes == 0) pending_ = HeaderOf(options_);
}

void Making::Run() try {
  Checkpoint();
  MakeAll();
  Finish();
} catch (const Failure& failure) {
  throw Failure(std::string(failure.what()) + "; " + std::to_string(standing_) +
                (standing_ == 1 ? " whole record stands" : " whole records stand"));
}

void Making::MakeAll() {
  const std::uint64_t first = tally_.next;
  const std::uint64_t indices = range_.end - first;
  // One puzzle that is wanted does not wait for others.
  const std::uint64_t size = std::min(kMostABatch, options_.want.value_or(kMostABatch));
  const std::uint64_t batches = Enough() ? 0 : indices / size + (indices % size != 0 ? 1 : 0);
  const auto endOf = [&](std::uint64_t batch) {
    return first + std::min(indices, (batch + 1) * size);
  };
  maker::InOrder<Batch> work(batches, options_.jobs, [&] {
    return [&, maker = maker::BatchMaker(options_.order)](std::uint64_t number) mutable {
      return RecordsOf(maker, first + number * size, endOf(number));
    };
  });
  for (std::uint64_t batch = 0; StopSignal() == 0 && !Enough(); LookAbout()) {
    const auto taken = work.Next(kPatience);
    if (!taken.ready) continue;
    if (!taken.result) break;
    Take(*taken.result, endOf(batch++));
  }
}

Making::Batch Making::RecordsOf(maker::BatchMaker& maker, std::uint64_t begin,
                                std::uint64_t end) const {
  Batch batch;
  for (const maker::Made& made : maker.Make(begin, end - begin)) {
    batch.push_back(MakeRecordOf(made, options_));
  }
  return batch;
}

bool Making::Enough() const {
  return options_.want ? tally_.accepted >= *options_.want : tally_.next >= range_.end;
}

void Making::Take(const Batch& batch, std::uint64_t end) {
  for (const MakeRecord& record : batch) {
    TakeOne(record);
    if (options_.want && Enough()) return;
  }
  tally_.next = end;
  // A reader at the other end of a pipe is not kept waiting.
  if (pending_.size() >= kWriteBytes || !output_->IsFile()) WritePending();
}

void Making::TakeOne(const MakeRecord& record) {
  tally_.next = record.index + 1;
  if (options_.unique && !seen_.Add(record.fingerprint)) {
    ++tally_.repeats;
    return;
  }
  pending_ += record.bytes;
  ++tally_.accepted;
  if (record.grade) tally_.Count(*record.grade);
}

void Making::LookAbout() {
  if (const auto text = notice_->After(tally_)) line_.Say(*text);
  line_.Show(tally_, options_.want ? tally_.accepted : tally_.next - range_.first);
  if (steady_clock::now() >= nextCheckpoint_) Checkpoint();
}

void Making::WritePending() {
  output_->Write(pending_);
  pending_.clear();
  standing_ = tally_.accepted;
}

// Records first, so that the state never tells of more than stands in the file.
void Making::Checkpoint() {
  nextCheckpoint_ = steady_clock::now() + kCheckpointTime;
  WritePending();
  if (output_->IsFile()) WriteManifest(StatePath(), ManifestNow(false));
}

void Making::Finish() {
  Checkpoint();
  output_->Sync();
  if (!options_.manifest.empty()) WriteManifest(options_.manifest, ManifestNow(Enough()));
  if (!output_->IsFile() || !Enough()) return;
  unlink(StatePath().c_str());
  RemoveTemporariesOf(StatePath());  // of runs that were killed while they wrote a state
}

double Making::SecondsSoFar() const {
  return std::chrono::duration<double>(steady_clock::now() - start_).count();
}

Manifest Making::ManifestNow(bool complete) const {
  Tally tally = tally_;
  tally.processorSeconds += ProcessorSeconds();
  tally.wallSeconds += SecondsSoFar();
  return ManifestOf(options_, tally, output_->SoFar(), complete);
}

}  // namespace tessel::tools
