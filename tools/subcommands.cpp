#include <array>

#include "tools/subcommand.h"

namespace tessel::tools {

namespace {

constexpr std::array kSubcommands{
    Subcommand{"check", "Tell how many solutions puzzles have", DeclareCheck},
    Subcommand{"convert", "Write puzzles of one format in another", DeclareConvert},
    Subcommand{"explain", "Tell how puzzles are solved, step by step", DeclareExplain},
    Subcommand{"formats", "List the formats that puzzles are read from and written in",
               DeclareFormats},
    Subcommand{"grade", "Tell how hard puzzles are", DeclareGrade},
    Subcommand{"make", "Make puzzles from seeds", DeclareMake},
    Subcommand{"print", "Print a booklet, or pictures of boards", DeclarePrint},
};

}  // namespace

std::span<const Subcommand> AllSubcommands() {
  return kSubcommands;
}

}  // namespace tessel::tools
