#include "core/version.h"

namespace tessel {

const char* Version() {
  return TESSEL_VERSION;
}

}  // namespace tessel
