#include "shell/qt/preferences.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace tessel {

namespace {

constexpr qint64 kMaxBytes = 1 << 20;  // of a file that a player's choices can have grown to

// Empty where the user has none.
QString UserFolder() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return folder.isEmpty() ? QString() : folder + "/tessel-sudoku";
}

// Only a plain file of moderate size is opened: a pipe would hold up the start, and so would a
// disk's image.
bool CanBeRead(const QFileInfo& file) {
  return !file.exists() || (file.isFile() && file.size() <= kMaxBytes);
}

}  // namespace

QString Preferences::UserFile() {
  const QString folder = UserFolder();
  return folder.isEmpty() ? QString() : folder + "/window.ini";
}

void Preferences::TakeInDialogs() {
  const QString folder = UserFolder();
  if (folder.isEmpty()) return;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
}

Preferences::Preferences(const QString& file) {
  if (!file.isEmpty() && CanBeRead(QFileInfo(file))) file_.emplace(file, QSettings::IniFormat);
}

QString Preferences::Text(const QString& key) const {
  if (const auto found = chosen_.find(key); found != chosen_.end()) return found->second;
  return file_ ? file_->value(key).toString() : QString();
}

// At once and not at the end of the program, which may be a crash of the display.
void Preferences::SetText(const QString& key, const QString& text) {
  if (Text(key) == text) return;
  chosen_[key] = text;
  if (!file_) return;
  file_->setValue(key, text);
  file_->sync();
}

bool Preferences::Flag(const QString& key, bool byDefault) const {
  const QString text = Text(key);
  if (text == "yes") return true;
  return text == "no" ? false : byDefault;
}

void Preferences::SetFlag(const QString& key, bool value) {
  SetText(key, value ? "yes" : "no");
}

int Preferences::Choice(const QString& key, int count, int byDefault) const {
  bool isNumber = false;
  const int value = Text(key).toInt(&isNumber);
  return isNumber && value >= 0 && value < count ? value : byDefault;
}

void Preferences::SetChoice(const QString& key, int value) {
  SetText(key, QString::number(value));
}

}  // namespace tessel
