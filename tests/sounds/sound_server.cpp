#include "tests/sounds/sound_server.h"

#include <signal.h>

#include <QThread>

namespace tessel {

namespace {

// A server that hangs answers nothing for 30 seconds; everything else takes a fraction of one.
constexpr int kPatience = 15'000;  // milliseconds

QProcessEnvironment EnvironmentWith(const QString& serverAddress) {
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert("PULSE_SERVER", serverAddress);
  return environment;
}

}  // namespace

void SoundServer::Start() {
  const QString folder = QString::fromStdString(folder_.Path().string());
  auto environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"}) {
    environment.insert(name, folder);
  }
  process_ = std::make_unique<QProcess>();
  process_->setProcessEnvironment(environment);
  process_->setStandardErrorFile(folder + "/server.log");
  process_->start(
      "pulseaudio",
      {"-n", "--system=false", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
       "--disable-shm=yes", "--realtime=no", "--high-priority=no",
       "--load=module-null-sink sink_name=null rate=44100",
       "--load=module-native-protocol-unix auth-anonymous=1 socket=" + folder + "/native"});
  for (int waited = 0; waited < kPatience && !Answers(); waited += 50) QThread::msleep(50);
}

bool SoundServer::Answers() const {
  QProcess asking;
  asking.setProcessEnvironment(EnvironmentWith(Address()));
  asking.start("pactl", {"info"});
  return asking.waitForFinished(kPatience) && asking.exitStatus() == QProcess::NormalExit &&
         asking.exitCode() == 0;
}

void SoundServer::Kill() {
  process_->kill();
  process_->waitForFinished();
}

void SoundServer::Freeze() {
  ::kill(static_cast<pid_t>(process_->processId()), SIGSTOP);
}

QString SoundServer::Address() const {
  return "unix:" + QString::fromStdString(folder_.Path().string()) + "/native";
}

Recording::Recording(const SoundServer& server) {
  process_.setProcessEnvironment(EnvironmentWith(server.Address()));
  process_.start("parec", {"--device=null.monitor", "--raw", "--format=s16le", "--rate=44100",
                           "--channels=1", "--latency-msec=20"});
  process_.waitForReadyRead(kPatience);
}

Recording::~Recording() {
  process_.kill();
  process_.waitForFinished();
}

std::vector<std::int16_t> Recording::Next(std::size_t count) {
  const auto size = static_cast<qint64>(count * sizeof(std::int16_t));
  while (process_.bytesAvailable() < size && process_.waitForReadyRead(kPatience)) {
  }
  std::vector<std::int16_t> samples(count);
  const qint64 got = process_.read(reinterpret_cast<char*>(samples.data()), size);
  samples.resize(got < 0 ? 0 : static_cast<std::size_t>(got) / sizeof(std::int16_t));
  return samples;
}

PlayerProcess::PlayerProcess(const QString& serverAddress) {
  process_.setProcessEnvironment(EnvironmentWith(serverAddress));
  process_.start(TESSEL_PLAYER_PROGRAM, QStringList());
}

PlayerProcess::~PlayerProcess() {
  process_.kill();
  process_.waitForFinished();
}

std::optional<QByteArray> PlayerProcess::Ask(const QByteArray& command) {
  process_.write(command + "\n");
  while (!process_.canReadLine()) {
    if (!process_.waitForReadyRead(kPatience)) return std::nullopt;
  }
  return process_.readLine().trimmed();
}

std::optional<int> PlayerProcess::End() {
  process_.closeWriteChannel();
  if (!process_.waitForFinished(kPatience)) return std::nullopt;
  if (process_.exitStatus() != QProcess::NormalExit) return std::nullopt;
  return process_.exitCode();
}

}  // namespace tessel
