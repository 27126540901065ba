#include "solver/givens.h"
#include "solver/kernels.h"
#include "solver/lanes_avx2.h"

namespace tessel::solver {

constexpr Kernel kAvx2Kernel = KernelOf<Avx2Lanes>();

}  // namespace tessel::solver
