#include "shell/qt/qt_sound_player.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "shell/puzzle_folder.h"
#include "shell/qt/sound_file.h"
#include "shell/qt/sound_process.h"

namespace tessel {

namespace {

using namespace std::chrono_literals;

constexpr auto kMaxStartDelay = 500ms;

// Neither keeps open what reads our output nor prints into it.
void LeaveStandardStreams() {
  const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nothing, stream);
  close(nothing);
}

[[noreturn]] void RunSoundProcess(int orders, pid_t parent) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) std::_Exit(EXIT_SUCCESS);  // it ended before the line above
  prctl(PR_SET_NAME, "tessel-sounds");
  LeaveStandardStreams();
  PlaySounds(orders);
}

}  // namespace

QtSoundPlayer::QtSoundPlayer() {
  signal(SIGPIPE, SIG_IGN);
  std::array<int, 2> pipe{};
  if (pipe2(pipe.data(), O_CLOEXEC | O_DIRECT | O_NONBLOCK) != 0) return;
  const pid_t parent = getpid();
  process_ = fork();
  if (process_ == 0) {
    close(pipe[1]);
    RunSoundProcess(pipe[0], parent);
  }
  close(pipe[0]);
  orders_ = pipe[1];
}

QtSoundPlayer::~QtSoundPlayer() {
  close(orders_);
  if (process_ > 0) kill(process_, SIGKILL);
}

std::int32_t QtSoundPlayer::Load(const std::string& path) {
  const std::string file = InstalledFile(path);
  if (!IsSoundFile(file) || !Send(kLoadOrder + file)) return -1;
  return count_++;
}

void QtSoundPlayer::Play(std::int32_t id) {
  if (id < 0 || id >= count_) return;
  const PlayOrder play{id, std::chrono::steady_clock::now() + kMaxStartDelay};
  std::string order(1, kPlayOrder);
  order.append(reinterpret_cast<const char*>(&play), sizeof play);
  Send(order);
}

// The pipe takes a whole order or, when the other process has not read the last ones, none.
bool QtSoundPlayer::Send(const std::string& order) const {
  if (order.size() > kLongestOrder) return false;
  return write(orders_, order.data(), order.size()) == static_cast<ssize_t>(order.size());
}

}  // namespace tessel
