#include "shell/program_folder.h"

#include <filesystem>

namespace tessel {

std::optional<std::string> ProgramFolder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error || !program.is_absolute()) return std::nullopt;
  return program.parent_path().string();
}

}  // namespace tessel
