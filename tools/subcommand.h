// A subcommand of the program `tessel`: a row of the table, and a file of its own.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <span>

namespace tessel::tools {

// What the program tells its caller; a signal that ended it is told as 128 + its number.
enum ExitCode : int {
  kDone = 0,
  kFailed = 1,  // something asked for did not hold, could not be read or be written
  kWrongOptions = 2,
};

// Does the work once the options are known, and returns an exit code.
using Work = std::function<int()>;

struct Subcommand {
  const char* name;
  const char* summary;
  // Declares the options. They must live as long as the work that is returned: let it own them.
  Work (*declare)(CLI::App& app);
};

std::span<const Subcommand> AllSubcommands();

Work DeclareCheck(CLI::App& app);
Work DeclareConvert(CLI::App& app);
Work DeclareExplain(CLI::App& app);
Work DeclareFormats(CLI::App& app);
Work DeclareGrade(CLI::App& app);
Work DeclareMake(CLI::App& app);
Work DeclarePrint(CLI::App& app);

}  // namespace tessel::tools
