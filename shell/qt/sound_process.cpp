#include "shell/qt/sound_process.h"

#include <fcntl.h>
#include <unistd.h>

#include <QAudioDevice>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QSocketNotifier>
#include <QSoundEffect>
#include <QUrl>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessel {

namespace {

// The loaded sounds, in the order in which they came.
class Speaker final : public QObject {
 public:
  Speaker() {
    connect(&devices_, &QMediaDevices::audioOutputsChanged, this, [this] { SwitchOutput(); });
  }
  void Add(const QUrl& source) {
    sources_.push_back(source);
    if (!output_.isNull()) effects_.push_back(EffectFrom(source));
  }
  void Play(std::size_t id) {
    if (id < effects_.size()) effects_[id]->play();
  }

 private:
  // An effect stays with the output that it was made for: a new output needs new effects.
  void SwitchOutput() {
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

  QMediaDevices devices_;
  QAudioDevice output_ = QMediaDevices::defaultAudioOutput();
  std::vector<QUrl> sources_;
  std::vector<std::unique_ptr<QSoundEffect>> effects_;  // in the order of the sources, or none
};

// A name that Qt can open, whatever bytes the path is made of; the file stays open for it.
QUrl SourceAt(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  return QUrl::fromLocalFile(QString("/proc/self/fd/%1").arg(file));
}

void Obey(std::string_view order, Speaker& speaker) {
  const std::string_view rest = order.substr(1);
  if (order.front() == kLoadOrder) return speaker.Add(SourceAt(std::string(rest)));
  PlayOrder play{};
  std::memcpy(&play, rest.data(), sizeof play);
  if (std::chrono::steady_clock::now() > play.latestStart) return;
  speaker.Play(static_cast<std::size_t>(play.id));
}

}  // namespace

void PlaySounds(int orders) {
  int argumentCount = 0;
  const QCoreApplication application(argumentCount, nullptr);
  Speaker speaker;
  const QSocketNotifier notifier(orders, QSocketNotifier::Read);
  QObject::connect(&notifier, &QSocketNotifier::activated, &speaker, [orders, &speaker] {
    std::array<char, kLongestOrder> order{};
    const ssize_t size = read(orders, order.data(), order.size());
    if (size == 0) std::_Exit(EXIT_SUCCESS);
    if (size > 0) Obey({order.data(), static_cast<std::size_t>(size)}, speaker);
  });
  std::_Exit(QCoreApplication::exec());
}

}  // namespace tessel
