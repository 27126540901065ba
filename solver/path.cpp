#include "solver/path.h"

#include <algorithm>
#include <cassert>

#include "solver/kernels.h"

namespace tessel::solver {

bool IsAvailable(Path path) {
  switch (path) {
    case Path::kPlain:
      return true;
#ifdef TESSEL_WIDE_KERNELS
    case Path::kAvx2:
      return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi");
    case Path::kAvx512:
      return IsAvailable(Path::kAvx2) && __builtin_cpu_supports("avx512bw");
#else
    case Path::kAvx2:
    case Path::kAvx512:
      return false;
#endif
  }
  return false;
}

Path BestPath() {
  static const Path best = *std::ranges::find_if(kPaths.rbegin(), kPaths.rend(), IsAvailable);
  return best;
}

const Kernel& KernelOf(Path path) {
  assert(IsAvailable(path));
  switch (path) {
#ifdef TESSEL_WIDE_KERNELS
    case Path::kAvx2:
      return kAvx2Kernel;
    case Path::kAvx512:
      return kAvx512Kernel;
#else
    case Path::kAvx2:
    case Path::kAvx512:
#endif
    case Path::kPlain:
      break;
  }
  return kPlainKernel;
}

}  // namespace tessel::solver
