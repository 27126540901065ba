// Work on numbered batches by several threads, whose results are taken in the order of the numbers.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

namespace tessel::maker {

// Batches 0..batches-1 are worked on by `threads` threads, at most a window of them ahead of the
// one that is taken next, so that memory stays bounded however uneven the batches are.
//
// `MakeWorker() -> (std::uint64_t batch) -> Result` is called once in each thread. An exception of
// a worker comes out of Next.
template <typename Result>
class InOrder {
 public:
  template <typename MakeWorker>
  InOrder(std::uint64_t batches, int threads, MakeWorker makeWorker)
      : batches_(batches), window_(kWindow * static_cast<std::uint64_t>(threads)) {
    for (int i = 0; i < threads; ++i) {
      threads_.emplace_back(
          [this, makeWorker](const std::stop_token& stop) { Work(stop, makeWorker); });
    }
  }
  InOrder(const InOrder&) = delete;
  InOrder& operator=(const InOrder&) = delete;
  // Batches that were begun are finished, and thrown away.
  ~InOrder() {
    for (std::jthread& thread : threads_) thread.request_stop();
    room_.notify_all();
  }

  // The result of the next batch; nothing when all have been taken. Waits `patience` at most and
  // returns an unready one then, so that the caller can look about.
  struct Taken {
    bool ready = false;
    std::optional<Result> result;  // nothing, and ready: all have been taken
  };
  template <typename Duration>
  Taken Next(Duration patience) {
    std::unique_lock lock(mutex_);
    if (taken_ == batches_) return {true, std::nullopt};
    done_.wait_for(lock, patience, [&] { return failure_ || results_.contains(taken_); });
    if (failure_) std::rethrow_exception(failure_);
    const auto found = results_.find(taken_);
    if (found == results_.end()) return {};
    Taken taken{true, std::move(found->second)};
    results_.erase(found);
    ++taken_;
    room_.notify_all();
    return taken;
  }

 private:
  static constexpr std::uint64_t kWindow = 8;  // batches a thread may be ahead

  template <typename MakeWorker>
  void Work(const std::stop_token& stop, MakeWorker makeWorker) {
    try {
      auto worker = makeWorker();
      while (const auto batch = Begin(stop)) Finish(*batch, worker(*batch));
    } catch (...) {
      const std::lock_guard lock(mutex_);
      if (!failure_) failure_ = std::current_exception();
      done_.notify_all();
    }
  }

  std::optional<std::uint64_t> Begin(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    room_.wait(lock, stop, [&] { return begun_ < taken_ + window_ || begun_ == batches_; });
    if (stop.stop_requested() || begun_ == batches_ || failure_) return std::nullopt;
    return begun_++;
  }

  void Finish(std::uint64_t batch, Result result) {
    const std::lock_guard lock(mutex_);
    results_.emplace(batch, std::move(result));
    done_.notify_all();
  }

  const std::uint64_t batches_;
  const std::uint64_t window_;
  std::mutex mutex_;
  std::condition_variable_any room_;
  std::condition_variable_any done_;
  std::uint64_t begun_ = 0;
  std::uint64_t taken_ = 0;
  std::map<std::uint64_t, Result> results_;
  std::exception_ptr failure_;
  std::vector<std::jthread> threads_;  // last: joined before what they use is gone
};

}  // namespace tessel::maker
