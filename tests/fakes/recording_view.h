// A front end without a window: it counts, answers questions as told, and can act like a user in
// the middle of the n-th pump or while a question is open.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/view.h"

namespace tessel {

class RecordingView final : public View {
 public:
  void Show() override { ++shows; }
  std::int32_t WindowHandle() override { return 4711; }
  void PumpEvents() override {
    ++pumps;
    if (onPump) onPump(pumps);
  }
  bool AskYesNo(const std::string& question, const std::string& title) override {
    questions.push_back(title + ": " + question);
    if (onQuestion) onQuestion();
    return answer;
  }
  void Beep() override { ++beeps; }
  void EndProgram() override { ++ends; }
  void FormChanged(FormPart part, int index) override {
    ++changes;
    if (onChange) onChange(part, index);
  }

  std::function<void(long pump)> onPump;
  std::function<void()> onQuestion;
  std::function<void(FormPart, int index)> onChange;
  bool answer = true;
  int shows = 0;
  long pumps = 0;
  int beeps = 0;
  int ends = 0;
  long changes = 0;
  std::vector<std::string> questions;  // "title: question"
};

}  // namespace tessel
