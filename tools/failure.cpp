#include "tools/failure.h"

#include <cerrno>
#include <system_error>

namespace tessel::tools {

Failure SystemFailure(const std::string& what) {
  return Failure(what + ": " + std::generic_category().message(errno));
}

}  // namespace tessel::tools
