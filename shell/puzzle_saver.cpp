#include "shell/puzzle_saver.h"

#include <chrono>
#include <future>
#include <memory>

namespace tessel {

namespace {

constexpr std::int64_t kPatienceMilliseconds = 3'000;  // longer than a lock is waited for
constexpr std::chrono::milliseconds kPause{10};

// Shared by the thread that saves and the one that waits; the last of them deletes it.
struct Save {
  std::string path;
  PuzzleRecord record;
  WriteClaim claim;
  std::promise<AppendedPuzzle> outcome;
};

std::string GiveUp(Save& save) {
  return save.claim.Take() ? "The disk does not answer"
                           : "The disk is slow; the puzzle may still arrive";
}

}  // namespace

AppendedPuzzle SavePuzzle(const std::string& path, const PuzzleRecord& record, SystemCalls& system,
                          const std::function<void()>& meanwhile) {
  const auto save = std::make_shared<Save>();
  save->path = path;
  save->record = record;
  auto outcome = save->outcome.get_future();
  const std::int64_t deadline = system.Milliseconds() + kPatienceMilliseconds;
  system.Start([save, &system] {
    save->outcome.set_value(AppendPuzzle(save->path, save->record, system, save->claim));
  });
  while (outcome.wait_for(kPause) != std::future_status::ready) {
    if (system.Milliseconds() >= deadline) return tl::unexpected(GiveUp(*save));
    meanwhile();
  }
  return outcome.get();
}

}  // namespace tessel
