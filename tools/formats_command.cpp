// tessel formats: the formats, a line each.
#include <iomanip>
#include <sstream>

#include "formats/format.h"
#include "tools/standard_output.h"
#include "tools/subcommand.h"

namespace tessel::tools {

namespace {

std::string Line(const formats::Format& format) {
  std::ostringstream line;
  line << std::left << std::setw(11) << format.name << std::setw(12)
       << (format.IsRead() ? "read, write" : "write") << "  " << format.summary << "\n";
  return line.str();
}

}  // namespace

Work DeclareFormats(CLI::App&) {
  return [] {
    std::string lines;
    for (const formats::Format& format : formats::AllFormats()) lines += Line(format);
    WriteToStandardOutput(lines);
    return kDone;
  };
}

}  // namespace tessel::tools
