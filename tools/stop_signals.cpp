#include "tools/stop_signals.h"

#include <array>
#include <csignal>

namespace tessel::tools {

namespace {

volatile std::sig_atomic_t stopSignal = 0;

extern "C" void NoteStopSignal(int signal) {
  if (stopSignal == 0) stopSignal = signal;
}

}  // namespace

void HeedStopSignals() {
  struct sigaction action {};
  action.sa_handler = NoteStopSignal;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : std::array{SIGINT, SIGTERM}) sigaction(signal, &action, nullptr);
}

int StopSignal() {
  return stopSignal;
}

void StopIfAsked() {
  if (stopSignal != 0) throw Stopped();
}

}  // namespace tessel::tools
