// The program's icon, painted in code.
#pragma once

#include <QIcon>

namespace tessel {

// A small board of three interlocked cages.
QIcon AppIcon();

}  // namespace tessel
