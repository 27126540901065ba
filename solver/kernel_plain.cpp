#include "solver/givens.h"
#include "solver/kernels.h"
#include "solver/lanes_plain.h"

namespace tessel::solver {

constexpr Kernel kPlainKernel = KernelOf<PlainLanes>();

}  // namespace tessel::solver
