// The options of tessel make, as they are typed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tools/joining.h"
#include "tools/make_options.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace tessel::tools {

// Declares the options of the command, which fill it once they are parsed.
class MakeOptionParser {
 public:
  explicit MakeOptionParser(CLI::App& app);

  bool Joins() const { return !join_.empty(); }
  JoinOptions CheckedJoin() const;
  // Throws WrongOptions for options that do not fit together.
  MakeOptions Checked() const;

 private:
  void DeclareRange(CLI::App& app);
  void DeclareRecipe(CLI::App& app);
  void DeclareWish(CLI::App& app);
  void DeclareForm(CLI::App& app);
  void DeclareOutput(CLI::App& app);
  void DeclareWork(CLI::App& app);
  void RefuseContradictions() const;
  void RefuseUnfitForShard() const;
  void RefuseUnfitForMinimal() const;
  void RefuseBadRanges() const;
  std::optional<Shard> CheckedShard() const;
  maker::Recipe CheckedRecipe() const;
  maker::Wish CheckedWish() const;
  void SetLevels(maker::Wish& wish) const;
  void SetScores(maker::Wish& wish) const;
  void SetStep(maker::Wish& wish) const;
  bool ShowsGrades() const;

  const CLI::App& app_;
  std::vector<CLI::Option*> withJoin_;  // the options that --join goes with
  std::optional<std::uint64_t> want_;
  std::optional<std::uint64_t> tries_;
  std::optional<std::uint64_t> seed_;
  std::uint64_t first_ = 0;
  std::string shard_;
  std::string layout_ = "random";
  std::string conceal_ = "single";
  std::optional<int> givens_;
  bool minimal_ = false;
  std::string level_;
  std::string step_;
  std::string score_;
  bool unique_ = false;
  bool grade_ = false;
  std::string format_ = "text";
  std::string columns_;
  int jobs_ = 0;
  std::string output_ = "-";
  bool resume_ = false;
  std::string manifest_;
  bool quiet_ = false;
  std::vector<std::string> join_;
};

}  // namespace tessel::tools
