// The kernels that were compiled: the plain one everywhere, the others for x86-64.
#pragma once

#include "solver/kernel.h"

namespace tessel::solver {

extern const Kernel kPlainKernel;
extern const Kernel kAvx2Kernel;
extern const Kernel kAvx512Kernel;

}  // namespace tessel::solver
