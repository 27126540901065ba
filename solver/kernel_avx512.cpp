#include "solver/givens.h"
#include "solver/kernels.h"
#include "solver/lanes_avx512.h"

namespace tessel::solver {

constexpr Kernel kAvx512Kernel = KernelOf<Avx512Lanes>();

}  // namespace tessel::solver
