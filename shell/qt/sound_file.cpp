#include "shell/qt/sound_file.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <array>
#include <bit>
#include <optional>
#include <string_view>

namespace tessel {

namespace {

constexpr qint64 kLargestFile = 4 << 20;

using Name = std::array<char, 4>;

struct RiffHeader {
  Name riff;
  quint32_le size;
  Name wave;
};
struct ChunkHeader {
  Name name;
  quint32_le size;
};
struct Format {
  quint16_le coding;
  quint16_le channels;
  quint32_le rate;
  quint32_le bytesPerSecond;
  quint16_le bytesPerFrame;
  quint16_le bits;
};
static_assert(sizeof(RiffHeader) == 12 && sizeof(ChunkHeader) == 8 && sizeof(Format) == 16);

template <typename T>
std::optional<T> Read(QFile& file) {
  std::array<char, sizeof(T)> bytes{};
  if (file.read(bytes.data(), sizeof(T)) != sizeof(T)) return std::nullopt;
  return std::bit_cast<T>(bytes);
}

bool Is(const Name& name, std::string_view text) {
  return std::string_view(name.data(), name.size()) == text;
}

bool IsPlain(const Format& format) {
  constexpr int kPlainNumbers = 1;
  return format.coding == kPlainNumbers && (format.channels == 1 || format.channels == 2) &&
         format.rate >= 4'000 && format.rate <= 192'000 && (format.bits == 8 || format.bits == 16);
}

// Walks the chunks up to the samples.
bool HoldsSamples(QFile& file) {
  const auto riff = Read<RiffHeader>(file);
  if (!riff || !Is(riff->riff, "RIFF") || !Is(riff->wave, "WAVE")) return false;
  bool plain = false;
  while (const auto chunk = Read<ChunkHeader>(file)) {
    const qint64 size = chunk->size;
    const qint64 end = file.pos() + size;
    if (Is(chunk->name, "data")) return plain && size > 0 && end <= file.size();
    if (Is(chunk->name, "fmt ")) {
      const auto format = Read<Format>(file);
      plain = format && IsPlain(*format);
    }
    if (!file.seek(end + size % 2)) return false;
  }
  return false;
}

}  // namespace

bool IsSoundFile(const QString& path) {
  const QFileInfo info(path);
  // Only a plain file: a pipe would hold up whoever opens it.
  if (!info.isFile() || info.size() > kLargestFile) return false;
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && HoldsSamples(file);
}

}  // namespace tessel
