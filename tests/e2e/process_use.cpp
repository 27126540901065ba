#include "tests/e2e/process_use.h"

#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>

namespace tessel {
namespace {

std::string ReadAll(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

long AnonymousKilobytes(const std::string& folder) {
  const std::string status = ReadAll(folder + "/status");
  const std::size_t at = status.find("RssAnon:");
  return at == std::string::npos ? 0 : std::stol(status.substr(at + 8));
}

std::chrono::milliseconds ProcessorTime(const std::string& folder) {
  const std::string stat = ReadAll(folder + "/stat");
  const std::size_t name = stat.rfind(')');  // may hold blanks
  if (name == std::string::npos) return {};
  std::istringstream fields(stat.substr(name + 2));
  std::string skipped;
  for (int field = 3; field < 14; ++field) fields >> skipped;
  long user = 0;
  long system = 0;
  fields >> user >> system;
  return std::chrono::milliseconds((user + system) * 1000 / sysconf(_SC_CLK_TCK));
}

}  // namespace

ProcessUse UseOf(pid_t process) {
  const std::string number = std::to_string(process);
  const std::string folder = "/proc/" + number;
  ProcessUse use{AnonymousKilobytes(folder), ProcessorTime(folder)};
  std::istringstream children(ReadAll(folder + "/task/" + number + "/children"));
  for (pid_t child = 0; children >> child;) {
    const ProcessUse more = UseOf(child);
    use.kilobytes += more.kilobytes;
    use.processorTime += more.processorTime;
  }
  return use;
}

}  // namespace tessel
