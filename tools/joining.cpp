#include "tools/joining.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tools/failure.h"
#include "tools/manifest.h"
#include "tools/output.h"
#include "tools/stop_signals.h"

namespace tessel::tools {

namespace {

struct ShardFile {
  std::string manifestPath;
  Manifest manifest;
  std::uint64_t number = 0;
  std::uint64_t count = 0;
};

ShardFile ReadShard(const std::string& path) {
  ShardFile shard{path, ReadManifest(path)};
  if (!shard.manifest.shard) throw Failure(path + " does not tell of a shard");
  if (!shard.manifest.complete) throw Failure("the shard of " + path + " is unfinished");
  shard.number = shard.manifest.shard->number;
  shard.count = shard.manifest.shard->count;
  return shard;
}

std::vector<ShardFile> ReadShards(const std::vector<std::string>& paths) {
  std::vector<ShardFile> shards;
  for (const std::string& path : paths) shards.push_back(ReadShard(path));
  std::ranges::sort(shards, {}, &ShardFile::number);
  return shards;
}

void RequireSameRun(const ShardFile& a, const ShardFile& b) {
  if (a.manifest.run == b.manifest.run && a.count == b.count) return;
  throw Failure(a.manifestPath + " and " + b.manifestPath + " belong to different runs");
}

void RequireOtherShard(const ShardFile& a, const ShardFile& b) {
  if (a.number != b.number) return;
  throw Failure(a.manifestPath + " and " + b.manifestPath + " tell of the same shard");
}

void RequireAll(const std::vector<ShardFile>& shards, std::uint64_t count) {
  for (std::uint64_t number = 0; number < count; ++number) {
    if (number < shards.size() && shards[number].number == number) continue;
    throw Failure("shard " + std::to_string(number) + " of " + std::to_string(count) +
                  " is missing");
  }
}

void RequireOneWholeRun(const std::vector<ShardFile>& shards) {
  const ShardFile& first = shards.front();
  for (std::size_t i = 0; i < shards.size(); ++i) {
    RequireSameRun(shards[i], first);
    if (i > 0) RequireOtherShard(shards[i], shards[i - 1]);
    if (shards[i].number != i) break;
  }
  RequireAll(shards, first.count);
}

// Beside its manifest, as the run has told.
std::string OutputOf(const ShardFile& shard) {
  if (shard.manifest.outputFile.empty()) {
    throw Failure(shard.manifestPath + " tells of no output file");
  }
  const auto folder = std::filesystem::path(shard.manifestPath).parent_path();
  return (folder / shard.manifest.outputFile).lexically_normal().string();
}

// Copies what the shard's run has written, and checks it on the way.
void Append(const ShardFile& shard, Output& output, Sha256& whole) {
  const std::string path = OutputOf(shard);
  std::ifstream file(path, std::ios::binary);
  if (!file) throw SystemFailure("cannot read " + path);
  file.seekg(static_cast<std::streamoff>(shard.manifest.output.offset));
  Sha256 hash;
  std::vector<char> buffer(std::size_t{1} << 16);
  for (std::uint64_t left = shard.manifest.output.bytes; left > 0;) {
    StopIfAsked();
    file.read(buffer.data(),
              static_cast<std::streamsize>(std::min<std::uint64_t>(left, buffer.size())));
    const std::string_view bytes(buffer.data(), static_cast<std::size_t>(file.gcount()));
    if (bytes.empty()) break;
    left -= bytes.size();
    hash.Add(bytes);
    whole.Add(bytes);
    output.Write(bytes);
  }
  if (hash.Hex() != shard.manifest.output.sha256) {
    throw Failure(path + " is not what " + shard.manifestPath + " tells of");
  }
}

// Shards that are not known to be whole must not reach standard output: nothing takes it back.
void CheckAll(const std::vector<ShardFile>& shards) {
  Output nowhere("/dev/null");
  Sha256 ignored;
  for (const ShardFile& shard : shards) Append(shard, nowhere, ignored);
}

// Without the output's name and hash.
Manifest ManifestOfAll(const std::vector<ShardFile>& shards) {
  Manifest whole = shards.front().manifest;
  whole.shard.reset();
  whole.tally = {};
  whole.output = {};
  for (const ShardFile& shard : shards) {
    whole.tally.Add(shard.manifest.tally);
    whole.output.bytes += shard.manifest.output.bytes;
  }
  return whole;
}

}  // namespace

void Join(const JoinOptions& options) {
  const std::vector<ShardFile> shards = ReadShards(options.manifests);
  RequireOneWholeRun(shards);
  RefuseExisting(options.manifest);
  if (options.output == "-") CheckAll(shards);
  Output output(options.output);
  Sha256 hash;
  for (const ShardFile& shard : shards) Append(shard, output, hash);
  Manifest whole = ManifestOfAll(shards);
  whole.output.sha256 = hash.Hex();
  whole.outputFile = OutputFileBeside(options.manifest, options.output);
  output.Finish();
  if (!options.manifest.empty()) WriteManifest(options.manifest, whole);
}

}  // namespace tessel::tools
