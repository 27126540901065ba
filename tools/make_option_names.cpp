// The names, checks and help of the options of tessel make.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <limits>

#include "tools/failure.h"
#include "tools/make_option_parser.h"
#include "tools/number_pair.h"

namespace tessel::tools {

namespace {

// CLI11's own checks of numbers go by way of double, and tell its limits.
CLI::Validator WholeNumberFrom(std::uint64_t least) {
  const auto check = [least](const std::string& text) -> std::string {
    const auto number = NumberIn<std::uint64_t>(text);
    if (number && *number >= least) return "";
    return "'" + text + "' is no whole number from " + std::to_string(least) + " to " +
           std::to_string(std::numeric_limits<std::uint64_t>::max());
  };
  return {check, ""};
}

}  // namespace

MakeOptionParser::MakeOptionParser(CLI::App& app) : app_(app) {
  DeclareRange(app);
  DeclareRecipe(app);
  DeclareWish(app);
  DeclareForm(app);
  DeclareOutput(app);
  DeclareWork(app);
}

void MakeOptionParser::DeclareRange(CLI::App& app) {
  app.add_option("--want", want_, "Make puzzles until M are accepted (default: 1)")
      ->check(WholeNumberFrom(1))
      ->type_name("M");
  app.add_option("--tries", tries_, "Make N puzzles, and write those that are accepted")
      ->check(WholeNumberFrom(1))
      ->type_name("N");
  app.add_option("--seed", seed_, "The seed; the same one gives the same puzzles (default: any)")
      ->check(WholeNumberFrom(0))
      ->type_name("S");
  app.add_option("--first", first_, "The index of the first puzzle (default: 0)")
      ->check(WholeNumberFrom(0))
      ->type_name("I");
  app.add_option("--shard", shard_, "Make only part K, from 0, of N parts of --tries")
      ->type_name("K/N");
}

void MakeOptionParser::DeclareRecipe(CLI::App& app) {
  app.add_option("--layout", layout_, "random, rotational or regular (default: random)")
      ->check(CLI::IsMember({"random", "rotational", "regular"}))
      ->type_name("KIND");
  app.add_option("--conceal", conceal_, "single cells or pairs of facing cells (default: single)")
      ->check(CLI::IsMember({"single", "pairs"}))
      ->type_name("RULE");
  app.add_option("--givens", givens_, "Only puzzles with so many givens (in pairs, or one less)")
      ->check(CLI::Range(1, kCellCount))
      ->type_name("N");
  app.add_flag("--minimal", minimal_, "Conceal until no given can go");
}

void MakeOptionParser::DeclareWish(CLI::App& app) {
  app.add_option("--level", level_, "Only puzzles of level L, 1 to 6, or of levels L-L")
      ->type_name("L[-L]");
  app.add_option("--step", step_, "Only puzzles that need a step of this kind, such as x-wing")
      ->type_name("KIND");
  app.add_option("--score", score_, "Only puzzles with a score from A to B")->type_name("A-B");
  app.add_flag("--unique", unique_, "No puzzle that is another one turned, mirrored or renamed");
}

void MakeOptionParser::DeclareForm(CLI::App& app) {
  app.add_option("--format", format_, "text, sds, csv or jsonl (default: text)")
      ->check(CLI::IsMember({"text", "sds", "csv", "jsonl"}))
      ->type_name("FORMAT");
  app.add_option("--columns", columns_,
                 "The columns of csv and jsonl, parted by commas: " + formats::ColumnNames())
      ->type_name("NAMES");
  app.add_flag("--grade", grade_, "Grade every puzzle, for the columns and the manifest");
}

void MakeOptionParser::DeclareOutput(CLI::App& app) {
  withJoin_.push_back(
      app.add_option("--output", output_, "The file to write; - is standard output (default)")
          ->type_name("FILE"));
  app.add_flag("--resume", resume_, "Go on with the output of a run that was ended");
  withJoin_.push_back(
      app.add_option("--manifest", manifest_, "Write what was made into this JSON file")
          ->type_name("FILE"));
}

void MakeOptionParser::DeclareWork(CLI::App& app) {
  constexpr int mostJobs = 1024;
  app.add_option("--jobs", jobs_, "Threads (default: one for each processor)")
      ->check(CLI::Range(1, mostJobs))
      ->type_name("J");
  withJoin_.push_back(app.add_flag("--quiet", quiet_, "Tell nothing but errors"));
  withJoin_.push_back(
      app.add_option("--join", join_, "Put together the shards that these manifests tell of")
          ->type_name("FILE"));
}

JoinOptions MakeOptionParser::CheckedJoin() const {
  for (const CLI::Option* const option : app_.get_options()) {
    if (option->count() > 0 && std::ranges::find(withJoin_, option) == withJoin_.end()) {
      throw WrongOptions("--join goes with --output and --manifest, not with " +
                         option->get_name());
    }
  }
  return {join_, output_, manifest_};
}

}  // namespace tessel::tools
