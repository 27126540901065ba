#include "tools/manifest.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "core/version.h"
#include "tools/failure.h"
#include "tools/output.h"

namespace tessel::tools {

namespace {

using Json = nlohmann::ordered_json;
using grade::kStepKinds;
namespace fs = std::filesystem;

constexpr std::array kLayoutNames{"random", "rotational", "regular"};

std::string LevelName(std::size_t number) {
  return std::string(grade::NameOf(static_cast<grade::Level>(number + 1)));
}

std::string StepName(std::size_t number) {
  return std::string(kStepKinds[number].key);
}

Json WishAsJson(const maker::Wish& wish) {
  Json json = Json::object();
  const maker::Wish any;
  if (wish.easiest != any.easiest || wish.hardest != any.hardest) {
    json["level"] = {static_cast<int>(wish.easiest), static_cast<int>(wish.hardest)};
  }
  if (wish.lowestScore != any.lowestScore || wish.highestScore != any.highestScore) {
    json["score"] = {wish.lowestScore, wish.highestScore};
  }
  if (wish.step) json["step"] = grade::FactsOf(*wish.step).key;
  if (wish.mostGivens) json["givens"] = *wish.mostGivens;
  return json;
}

// Counts by the names that `nameOf` gives to their indices.
template <typename Counts, typename NameOf>
Json CountsAsJson(const Counts& counts, NameOf nameOf) {
  Json json;
  for (std::size_t i = 0; i < counts.size(); ++i) json[nameOf(i)] = counts[i];
  return json;
}

template <typename Counts, typename NameOf>
Counts CountsIn(const Json& json, NameOf nameOf) {
  Counts counts;
  for (std::size_t i = 0; i < counts.size(); ++i) counts[i] = json.at(nameOf(i));
  return counts;
}

Json AsJson(const Tally& tally, std::uint64_t first) {
  return {{"first", first},
          {"next", tally.next},
          {"tries", tally.next - first},
          {"accepted", tally.accepted},
          {"repeats", tally.repeats},
          {"levels", CountsAsJson(tally.levels, LevelName)},
          {"puzzles_with", CountsAsJson(tally.puzzles, StepName)},
          {"processor_seconds", tally.processorSeconds},
          {"wall_seconds", tally.wallSeconds}};
}

Tally TallyIn(const Json& json) {
  Tally tally;
  tally.next = json.at("next");
  tally.accepted = json.at("accepted");
  tally.repeats = json.at("repeats");
  tally.levels = CountsIn<decltype(tally.levels)>(json.at("levels"), LevelName);
  tally.puzzles = CountsIn<decltype(tally.puzzles)>(json.at("puzzles_with"), StepName);
  tally.processorSeconds = json.at("processor_seconds");
  tally.wallSeconds = json.at("wall_seconds");
  return tally;
}

Json OutputAsJson(const Manifest& manifest) {
  return {{"file", manifest.outputFile},
          {"offset", manifest.output.offset},
          {"bytes", manifest.output.bytes},
          {"sha256", manifest.output.sha256}};
}

Json AsJson(const Manifest& manifest) {
  Json json;
  json["program"] = "tessel";
  json["version"] = Version();
  json["run"] = Json::parse(manifest.run);
  if (manifest.shard) json["shard"] = {manifest.shard->number, manifest.shard->count};
  json["complete"] = manifest.complete;
  json["made"] = AsJson(manifest.tally, manifest.first);
  json["output"] = OutputAsJson(manifest);
  return json;
}

Manifest ManifestIn(const Json& json) {
  Manifest manifest;
  manifest.run = json.at("run").dump();
  if (json.contains("shard")) manifest.shard = {json["shard"].at(0), json["shard"].at(1)};
  manifest.complete = json.at("complete");
  manifest.first = json.at("made").at("first");
  manifest.tally = TallyIn(json.at("made"));
  const Json& output = json.at("output");
  manifest.outputFile = output.at("file");
  manifest.output = {output.at("offset"), output.at("bytes"), output.at("sha256")};
  return manifest;
}

}  // namespace

void Tally::Count(const grade::Grade& grade) {
  ++levels[static_cast<std::size_t>(grade.level) - 1];
  for (std::size_t i = 0; i < puzzles.size(); ++i) puzzles[i] += grade.steps[i] > 0 ? 1 : 0;
}

void Tally::Add(const Tally& part) {
  next = std::max(next, part.next);
  accepted += part.accepted;
  repeats += part.repeats;
  for (std::size_t i = 0; i < levels.size(); ++i) levels[i] += part.levels[i];
  for (std::size_t i = 0; i < puzzles.size(); ++i) puzzles[i] += part.puzzles[i];
  processorSeconds += part.processorSeconds;
  wallSeconds = std::max(wallSeconds, part.wallSeconds);
}

std::string RunOf(const MakeOptions& options) {
  const maker::Recipe& recipe = options.order.recipe;
  Json run;
  run["stream"] = maker::kStream;
  run["seed"] = options.order.seed;
  run["first"] = options.first;
  if (options.want) {
    run["want"] = *options.want;
  } else {
    run["tries"] = options.tries;
  }
  run["layout"] = kLayoutNames[static_cast<std::size_t>(recipe.layout)];
  run["conceal"] = recipe.conceal == solver::ConcealRule::kPairs ? "pairs" : "single";
  run["givens"] = recipe.givens;
  run["filters"] = WishAsJson(options.order.wish);
  run["unique"] = options.unique;
  run["graded"] = options.order.graded || options.order.wish.LooksAtGrade();
  run["format"] = options.format.Base().name;
  if (!options.format.ColumnNames().empty()) run["columns"] = options.format.ColumnNames();
  return run.dump();
}

Manifest ManifestOf(const MakeOptions& options, const Tally& tally,
                    const RecordOutput::Done& output, bool complete) {
  return {RunOf(options), options.shard,
          complete,       options.Indices().first,
          tally,          OutputFileBeside(options.manifest, options.output),
          output};
}

Manifest ReadManifest(const std::string& path) try {
  std::ifstream file(path);
  if (!file) throw SystemFailure("cannot read " + path);
  return ManifestIn(Json::parse(file));
} catch (const Json::exception& error) {
  throw Failure(path + " is no manifest of a run: " + error.what());
}

void WriteManifest(const std::string& path, const Manifest& manifest) {
  Output file(path, Output::Existing::kReplaced);
  file.Write(AsJson(manifest).dump(2) + "\n");
  file.Finish();
}

std::string OutputFileBeside(const std::string& manifest, const std::string& output) {
  if (output == "-") return "";
  const fs::path folder = fs::absolute(manifest.empty() ? output : manifest).parent_path();
  return fs::absolute(output).lexically_proximate(folder).string();
}

void RefuseExisting(const std::string& path) {
  std::error_code ignored;
  if (fs::is_regular_file(path, ignored)) throw Failure(path + " exists already");
}

}  // namespace tessel::tools
