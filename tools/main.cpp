// tessel: sudoku on the command line. Finds the subcommand, and tells the caller how it went.
#include <algorithm>
#include <csignal>
#include <iostream>
#include <memory>
#include <new>
#include <vector>

#include "core/version.h"
#include "tools/failure.h"
#include "tools/standard_output.h"
#include "tools/stop_signals.h"
#include "tools/subcommand.h"

namespace {

using namespace tessel::tools;

constexpr int kSignalBase = 128;

// One line, whatever the message holds.
int Complain(const std::string& who, std::string message, int code) {
  std::ranges::replace(message, '\n', ' ');
  std::cerr << who << ": " << message << "\n";
  return code;
}

std::string NameOf(const CLI::App& app) {
  const auto chosen = app.get_subcommands();
  return chosen.empty() ? app.get_name() : app.get_name() + " " + chosen.front()->get_name();
}

int Run(const std::string& who, const Work& work) {
  try {
    const int code = work();
    return StopSignal() != 0 ? kSignalBase + StopSignal() : code;
  } catch (const WrongOptions& wrong) {
    return Complain(who, wrong.what(), kWrongOptions);
  } catch (const Stopped&) {
    return kSignalBase + StopSignal();
  } catch (const ReaderGone&) {
    return kSignalBase + SIGPIPE;
  } catch (const std::bad_alloc&) {
    return Complain(who, "out of memory", kFailed);
  } catch (const std::exception& failure) {
    return Complain(who, failure.what(), kFailed);
  }
}

// Help and version, which go to standard output.
int TellWhatWasAsked(const CLI::App& app, const CLI::ParseError& error) {
  return Run(NameOf(app), [&] {
    std::ostringstream text;
    app.exit(error, text, text);
    WriteToStandardOutput(text.str());
    return kDone;
  });
}

int TellParsing(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
    return TellWhatWasAsked(app, error);
  }
  const std::string name = NameOf(app);
  if (app.get_subcommands().empty() && !app.remaining().empty()) {
    return Complain(
        name, "there is no command '" + app.remaining().front() + "' (tessel --help lists them)",
        kWrongOptions);
  }
  return Complain(name, std::string(error.what()) + " (" + name + " --help tells the options)",
                  kWrongOptions);
}

int Main(int argc, const char* const* argv) {
  CLI::App app("Irregular sudoku on the command line.", "tessel");
  app.set_version_flag("--version", std::string("tessel ") + tessel::Version());
  app.require_subcommand(1);
  app.failure_message(CLI::FailureMessage::simple);
  Work chosen;
  for (const Subcommand& subcommand : AllSubcommands()) {
    CLI::App* const options = app.add_subcommand(subcommand.name, subcommand.summary);
    const Work work = subcommand.declare(*options);
    options->callback([&chosen, work] { chosen = work; });
  }
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return TellParsing(app, error);
  }
  return Run(NameOf(app), chosen);
}

}  // namespace

int main(int argc, char** argv) {
  // A closed pipe is met where it is written to, so that files are put in order first.
  std::signal(SIGPIPE, SIG_IGN);
  // So is a limit of the size of files.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return Main(argc, argv);
  } catch (const std::exception& error) {
    return Complain("tessel", error.what(), kFailed);
  }
}
