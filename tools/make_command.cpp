// tessel make: puzzles from seeds.
#include <iostream>
#include <memory>

#include "tools/joining.h"
#include "tools/make_option_parser.h"
#include "tools/making.h"
#include "tools/stop_signals.h"
#include "tools/subcommand.h"

namespace tessel::tools {

namespace {

void Make(const MakeOptions& options) {
  if (options.ownSeed && !options.quiet) std::cerr << "seed " << options.order.seed << "\n";
  Making(options).Run();
}

}  // namespace

Work DeclareMake(CLI::App& app) {
  const auto parser = std::make_shared<MakeOptionParser>(app);
  return [parser] {
    HeedStopSignals();
    if (parser->Joins()) {
      Join(parser->CheckedJoin());
    } else {
      Make(parser->Checked());
    }
    return kDone;
  };
}

}  // namespace tessel::tools
