#include "shell/qt/sound_file.h"

#include <QtEndian>
#include <array>
#include <bit>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

namespace tessel {

namespace {

constexpr std::uintmax_t kMaxFileBytes = 4 << 20;

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
std::optional<T> Read(std::istream& file) {
  std::array<char, sizeof(T)> bytes{};
  if (!file.read(bytes.data(), sizeof(T))) return std::nullopt;
  return std::bit_cast<T>(bytes);
}

bool Is(const Name& name, std::string_view text) {
  return std::string_view(name.data(), name.size()) == text;
}

bool IsSupportedPcm(const Format& format) {
  constexpr int kPcm = 1;
  return format.coding == kPcm && (format.channels == 1 || format.channels == 2) &&
         format.rate >= 4'000 && format.rate <= 192'000 && (format.bits == 8 || format.bits == 16);
}

// Walks the chunks up to the samples.
bool HoldsSamples(std::istream& file, std::streamoff fileSize) {
  const auto riff = Read<RiffHeader>(file);
  if (!riff || !Is(riff->riff, "RIFF") || !Is(riff->wave, "WAVE")) return false;
  bool supported = false;
  while (const auto chunk = Read<ChunkHeader>(file)) {
    const std::streamoff size = chunk->size;
    const std::streamoff end = file.tellg() + size;
    if (Is(chunk->name, "data")) return supported && size > 0 && end <= fileSize;
    if (Is(chunk->name, "fmt ")) {
      const auto format = Read<Format>(file);
      supported = format && IsSupportedPcm(*format);
    }
    file.seekg(end + size % 2);
  }
  return false;
}

}  // namespace

bool IsSoundFile(const std::string& path) {
  std::error_code error;
  // Only a regular file: a pipe would hold up whoever opens it.
  if (!std::filesystem::is_regular_file(path, error)) return false;
  const auto size = std::filesystem::file_size(path, error);
  if (error || size > kMaxFileBytes) return false;
  std::ifstream file(path, std::ios::binary);
  return HoldsSamples(file, static_cast<std::streamoff>(size));
}

}  // namespace tessel
