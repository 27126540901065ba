#include "shell/qt/qt_sound_player.h"

#include <QAudioDevice>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <tuple>
#include <vector>

#include "shell/qt/sound_file.h"

namespace tessel {

namespace {

using namespace std::chrono_literals;

constexpr auto kLatestStart = 500ms;
constexpr int kMostWaiting = 16;
constexpr auto kPatienceAtEnd = 300ms;

// The objects that a thread still uses when the process ends must not be destroyed under it: ends
// the process before the destructors of static objects get their turn.
void EndProcessWithoutDestroyingStatics() {
  on_exit(
      [](int status, void*) {
        std::fflush(nullptr);
        std::_Exit(status);
      },
      nullptr);
}

}  // namespace

// What the thread runs; everything of Qt Multimedia lives here.
class QtSoundPlayer::Speaker final : public QObject {
 public:
  void Open() {
    devices_ = std::make_unique<QMediaDevices>();
    connect(devices_.get(), &QMediaDevices::audioOutputsChanged, this, [this] { FollowOutput(); });
    output_ = QMediaDevices::defaultAudioOutput();
  }
  void Add(const QUrl& source) {
    sources_.push_back(source);
    if (!output_.isNull()) effects_.push_back(EffectFrom(source));
  }
  void Play(std::size_t id) {
    if (id < effects_.size()) effects_[id]->play();
  }

  std::atomic<int> waiting = 0;  // plays that were asked for and have not begun

 private:
  // An effect stays with the output that it was made for: a new output needs new effects.
  void FollowOutput() {
    effects_.clear();
    output_ = QMediaDevices::defaultAudioOutput();
    if (output_.isNull()) return;
    for (const QUrl& source : sources_) effects_.push_back(EffectFrom(source));
  }
  std::unique_ptr<QSoundEffect> EffectFrom(const QUrl& source) const {
    auto effect = std::make_unique<QSoundEffect>(output_);
    effect->setSource(source);
    return effect;
  }

  std::unique_ptr<QMediaDevices> devices_;
  QAudioDevice output_;
  std::vector<QUrl> sources_;
  std::vector<std::unique_ptr<QSoundEffect>> effects_;  // in the order of the sources, or none
};

QtSoundPlayer::~QtSoundPlayer() {
  if (!thread_) return;
  thread_->quit();
  if (thread_->wait(kPatienceAtEnd)) return;
  std::ignore = thread_.release();
  EndProcessWithoutDestroyingStatics();
}

void QtSoundPlayer::Start() {
  thread_ = std::make_unique<QThread>();
  speaker_ = new Speaker;
  speaker_->moveToThread(thread_.get());
  QObject::connect(thread_.get(), &QThread::finished, speaker_, &QObject::deleteLater);
  thread_->start();
  QMetaObject::invokeMethod(speaker_, [speaker = speaker_] { speaker->Open(); });
}

std::int32_t QtSoundPlayer::Load(const std::string& path) {
  const QFileInfo info(QFile::decodeName(path.c_str()));
  if (!IsSoundFile(info.filePath())) return -1;
  if (!thread_) Start();
  const QUrl source = QUrl::fromLocalFile(info.absoluteFilePath());
  QMetaObject::invokeMethod(speaker_, [speaker = speaker_, source] { speaker->Add(source); });
  return count_++;
}

void QtSoundPlayer::Play(std::int32_t id) {
  if (id < 0 || id >= count_ || speaker_->waiting >= kMostWaiting) return;
  ++speaker_->waiting;
  const QDeadlineTimer latest(kLatestStart);
  QMetaObject::invokeMethod(speaker_, [speaker = speaker_, id, latest] {
    --speaker->waiting;
    if (!latest.hasExpired()) speaker->Play(static_cast<std::size_t>(id));
  });
}

}  // namespace tessel
