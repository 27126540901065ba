#include "tools/standard_output.h"

#include <unistd.h>

#include <cerrno>

#include "tools/failure.h"

namespace tessel::tools {

void WriteAll(int file, std::string_view bytes, std::string_view name) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EPIPE) {
      throw ReaderGone();
    } else if (errno != EINTR) {
      throw SystemFailure("cannot write " + std::string(name));
    }
  }
}

void WriteToStandardOutput(std::string_view bytes) {
  WriteAll(STDOUT_FILENO, bytes, "standard output");
}

}  // namespace tessel::tools
