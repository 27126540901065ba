// What the player has chosen for the window, kept from one start to the next.
#pragma once

#include <QSettings>
#include <QString>
#include <map>
#include <optional>

namespace tessel {

// Whatever the file holds, or if there is none, reading gives one of the values that are offered.
// Nothing is written before something changes. What cannot be written is forgotten at the end.
class Preferences {
 public:
  // The file in the user's configuration folder.
  static QString UserFile();
  // From now on, what the toolkit's own dialogs remember (the folders last visited, their columns)
  // lies beside that file and not in one that programs share.
  static void TakeInDialogs();

  // Keeps nothing beyond its own life.
  Preferences() = default;
  explicit Preferences(const QString& file);

  bool Flag(const QString& key, bool byDefault) const;
  void SetFlag(const QString& key, bool value);

  // A number 0..count - 1.
  int Choice(const QString& key, int count, int byDefault) const;
  void SetChoice(const QString& key, int value);

 private:
  QString Text(const QString& key) const;
  void SetText(const QString& key, const QString& text);

  std::optional<QSettings> file_;      // none where there is no file that could be read
  std::map<QString, QString> chosen_;  // since the start
};

}  // namespace tessel
