// A private sound server, what it plays, and a process that plays through it.
#pragma once

#include <QProcess>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "tests/fakes/temporary_folder.h"

namespace tessel {

// PulseAudio with one sink that goes nowhere, in a folder of its own.
class SoundServer {
 public:
  SoundServer() { Start(); }
  SoundServer(const SoundServer&) = delete;
  SoundServer& operator=(const SoundServer&) = delete;
  ~SoundServer() { Kill(); }

  void Start();
  bool Answers() const;
  void Kill();    // SIGKILL
  void Freeze();  // SIGSTOP: still there, but it answers nothing

  QString Address() const;

 private:
  TemporaryFolder folder_;
  std::unique_ptr<QProcess> process_;
};

// Listens to what the server's sink plays, from its construction on.
class Recording {
 public:
  explicit Recording(const SoundServer& server);
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;
  ~Recording();

  // The next samples that were played; fewer when the server plays no more.
  std::vector<std::int16_t> Next(std::size_t count);

 private:
  QProcess process_;
};

// The player program, connected to the server at the address.
class PlayerProcess {
 public:
  explicit PlayerProcess(const QString& serverAddress);
  PlayerProcess(const PlayerProcess&) = delete;
  PlayerProcess& operator=(const PlayerProcess&) = delete;
  ~PlayerProcess();

  // The line that answers the command; nothing when none comes, which stands for a hang or crash.
  std::optional<QByteArray> Ask(const QByteArray& command);
  // Ends the program; its exit status, or nothing when it hangs or crashes.
  std::optional<int> End();
  QByteArray Errors() { return process_.readAllStandardError(); }

 private:
  QProcess process_;
};

}  // namespace tessel
