#include "tools/make_option_parser.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <limits>
#include <random>
#include <thread>

#include "tools/failure.h"
#include "tools/number_pair.h"

namespace tessel::tools {

namespace {

// From the system's entropy: nobody asked for a certain seed. Short enough to be typed again.
std::uint64_t OwnSeed() {
  return std::random_device{}();
}

int JobsOnThisMachine() {
  return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

}  // namespace

void MakeOptionParser::RefuseContradictions() const {
  if (want_ && tries_) throw WrongOptions("--want and --tries exclude each other");
  if (!shard_.empty()) RefuseUnfitForShard();
  if (minimal_) RefuseUnfitForMinimal();
  if (resume_ && output_ == "-") throw WrongOptions("--resume needs --output FILE");
  if (resume_ && !seed_) throw WrongOptions("--resume needs the --seed of the run");
  if (format_ == "sds" && output_ == "-" && isatty(STDOUT_FILENO) != 0) {
    throw WrongOptions("--format sds is not for a terminal: name an --output");
  }
}

void MakeOptionParser::RefuseUnfitForShard() const {
  if (!tries_) throw WrongOptions("--shard takes a slice of --tries");
  if (!seed_) throw WrongOptions("--shard needs the --seed of all the shards");
  if (unique_) {
    throw WrongOptions("--unique and --shard exclude each other: a shard cannot see the others");
  }
}

void MakeOptionParser::RefuseUnfitForMinimal() const {
  if (givens_) throw WrongOptions("--givens and --minimal exclude each other");
  if (conceal_ == "pairs") {
    throw WrongOptions("--minimal takes cells one by one, and does not go with --conceal pairs");
  }
}

void MakeOptionParser::RefuseBadRanges() const {
  if (tries_ && first_ > std::numeric_limits<std::uint64_t>::max() - *tries_) {
    throw WrongOptions("--first and --tries lead beyond the largest index");
  }
}

std::optional<Shard> MakeOptionParser::CheckedShard() const {
  if (shard_.empty()) return std::nullopt;
  const auto pair = NumberPairIn<std::uint64_t>(shard_, '/');
  if (!pair || pair->first >= pair->second) {
    throw WrongOptions("--shard takes K/N with K from 0 to N-1, not '" + shard_ + "'");
  }
  return Shard{pair->first, pair->second};
}

maker::Recipe MakeOptionParser::CheckedRecipe() const {
  maker::Recipe recipe;
  if (layout_ == "rotational") recipe.layout = maker::LayoutKind::kRotational;
  if (layout_ == "regular") recipe.layout = maker::LayoutKind::kRegular;
  if (conceal_ == "pairs") recipe.conceal = solver::ConcealRule::kPairs;
  if (minimal_) recipe.givens = solver::kMinimalGivens;
  if (givens_) recipe.givens = *givens_;
  return recipe;
}

void MakeOptionParser::SetLevels(maker::Wish& wish) const {
  if (level_.empty()) return;
  const auto one = NumberIn<int>(level_);
  const auto levels = one ? std::pair(*one, *one) : NumberPairIn<int>(level_, '-');
  if (!levels || levels->first < 1 || levels->first > levels->second ||
      levels->second > grade::kLevelCount) {
    throw WrongOptions("--level takes a level from 1 to 6, or two as in 2-4, not '" + level_ + "'");
  }
  wish.easiest = static_cast<grade::Level>(levels->first);
  wish.hardest = static_cast<grade::Level>(levels->second);
}

void MakeOptionParser::SetScores(maker::Wish& wish) const {
  if (score_.empty()) return;
  const auto scores = NumberPairIn<int>(score_, '-');
  if (!scores || scores->first < 0 || scores->first > scores->second) {
    throw WrongOptions("--score takes two numbers as in 300-500, not '" + score_ + "'");
  }
  wish.lowestScore = scores->first;
  wish.highestScore = scores->second;
}

void MakeOptionParser::SetStep(maker::Wish& wish) const {
  if (step_.empty()) return;
  wish.step = grade::StepKindNamed(step_);
  if (wish.step) return;
  std::string keys;
  for (const auto& facts : grade::kStepKinds) keys += " " + std::string(facts.key);
  throw WrongOptions("there is no kind of step '" + step_ + "', but there are:" + keys);
}

maker::Wish MakeOptionParser::CheckedWish() const {
  maker::Wish wish;
  SetLevels(wish);
  SetScores(wish);
  SetStep(wish);
  wish.mostGivens = givens_;
  return wish;
}

bool MakeOptionParser::ShowsGrades() const {
  const std::string list = "," + columns_ + ",";
  return std::ranges::any_of(std::array{",level,", ",hardest,", ",score,", ",rating,"},
                             [&](const char* name) { return list.find(name) != list.npos; });
}

MakeOptions MakeOptionParser::Checked() const {
  RefuseContradictions();
  RefuseBadRanges();
  MakeOptions options;
  options.order = {CheckedRecipe(), CheckedWish(), seed_ ? *seed_ : OwnSeed(),
                   grade_ || ShowsGrades()};
  options.ownSeed = !seed_;
  options.want = tries_ ? std::nullopt : std::optional(want_.value_or(1));
  options.tries = tries_.value_or(0);
  options.first = first_;
  options.shard = CheckedShard();
  options.unique = unique_;
  options.format = RecordFormat(format_, columns_);
  options.jobs = jobs_ == 0 ? JobsOnThisMachine() : jobs_;
  options.output = output_;
  options.resume = resume_;
  options.manifest = manifest_;
  options.quiet = quiet_;
  return options;
}

}  // namespace tessel::tools
