#include "shell/qt/work_show.h"

#include <algorithm>

namespace tessel {

namespace {

constexpr std::chrono::milliseconds kSlice{10};
constexpr std::chrono::milliseconds kBlurTime{40};

}  // namespace

void WorkShow::Step(const ShowPace& pace, const std::function<void()>& show,
                    const std::function<bool()>& goesOn) {
  const FrameClock::Time now = clock_.Now();
  if (!start_) start_ = now;
  const auto time = pace.StepTime(now - *start_);
  if (!time && now - lastPicture_ < kBlurTime) return;
  lastPicture_ = now;
  show();
  if (time) WaitUntil(now + std::chrono::duration_cast<FrameClock::Duration>(*time), goesOn);
}

void WorkShow::WaitUntil(FrameClock::Time end, const std::function<bool()>& goesOn) {
  while (goesOn()) {
    const FrameClock::Time now = clock_.Now();
    if (now >= end) return;
    clock_.Sleep(std::min<FrameClock::Duration>(kSlice, end - now));
  }
}

}  // namespace tessel
