#include "tests/e2e/entry_keys.h"

#include <QKeySequence>

namespace tessel {
namespace {

// Letters in small: a capital one would be Shift's.
QString XNameOf(const QKeySequence& keys) {
  QStringList parts = keys.toString(QKeySequence::PortableText).split('+');
  for (QString& part : parts) {
    const bool isNamed = part.size() > 1 && part == parts.last();
    if (!isNamed) part = part.toLower();
  }
  return parts.join('+');
}

QString AltAndLetter(const char* text) {
  return XNameOf(QKeySequence::mnemonic(QString::fromUtf8(text)));
}

}  // namespace

QStringList KeysOf(Entry entry) {
  QStringList names;
  for (const QKeySequence& keys : QKeySequence::listFromString(TraitsOf(entry).keys)) {
    if (!keys.isEmpty()) names << XNameOf(keys);
  }
  return names;
}

QStringList LettersOf(Entry entry) {
  const EntryTraits& traits = TraitsOf(entry);
  return {AltAndLetter(kMenuTitles[IndexOf(traits.menu)]),
          AltAndLetter(traits.text).section('+', -1)};
}

}  // namespace tessel
