#include "tests/source_folder.h"

namespace tessel {

std::string SourceFolder() {
  return TESSEL_SOURCE_DIR;
}

}  // namespace tessel
