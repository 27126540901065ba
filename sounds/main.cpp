// tessel-synth FOLDER: writes the ten sound files into the folder.
#include <fstream>
#include <iostream>

#include "sounds/effects.h"
#include "sounds/wav_file.h"

namespace {

bool Write(const std::string& path, tessel::Sound sound) {
  std::ofstream file(path, std::ios::binary);
  file << tessel::synth::WavFileOf(tessel::synth::EffectOf(sound));
  return static_cast<bool>(file.flush());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: tessel-synth FOLDER\n";
    return 2;
  }
  for (std::size_t number = 0; number < tessel::kSoundFiles.size(); ++number) {
    const std::string path = std::string(argv[1]) + "/" + std::string(tessel::kSoundFiles[number]);
    if (!Write(path, static_cast<tessel::Sound>(number))) {
      std::cerr << "tessel-synth: cannot write " << path << "\n";
      return 1;
    }
  }
  return 0;
}
