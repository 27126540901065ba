// Which of the kernels this machine runs.
#pragma once

#include <array>
#include <cstdint>

namespace tessel::solver {

enum class Path : std::uint8_t { kPlain, kAvx2, kAvx512 };
inline constexpr std::array kPaths{Path::kPlain, Path::kAvx2, Path::kAvx512};

struct Kernel;

// Whether this build has the kernel and this processor runs it.
bool IsAvailable(Path path);
// The widest that is available.
Path BestPath();
// The path must be available.
const Kernel& KernelOf(Path path);

}  // namespace tessel::solver
