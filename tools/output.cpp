#include "tools/output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "tools/failure.h"
#include "tools/standard_output.h"

namespace tessel::tools {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPlaceholders = "XXXXXX";  // where mkostemp makes the name a new one
constexpr std::size_t kBufferBytes = std::size_t{1} << 16;
constexpr mode_t kNewFileMode = 0666;

mode_t Umask() {
  const mode_t mask = umask(0);
  umask(mask);
  return mask;
}

Failure AlreadyThere(const std::string& path) {
  return Failure(path + " exists already (--force replaces it)");
}

void SyncFolderOf(const std::string& path) {
  const fs::path folder = fs::path(path).parent_path();
  const int file = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) return;
  fsync(file);
  close(file);
}

}  // namespace

Output::Output(std::string path, Existing existing) : path_(std::move(path)), existing_(existing) {
  if (path_ == "-") {
    path_ = "standard output";
    file_ = STDOUT_FILENO;
    return;
  }
  std::error_code ignored;
  const fs::file_status status = fs::status(path_, ignored);
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    file_ = open(path_.c_str(), O_WRONLY | O_CLOEXEC);
    if (file_ < 0) throw SystemFailure("cannot write " + path_);
    return;
  }
  if (fs::exists(status) && existing_ == Existing::kRefused) throw AlreadyThere(path_);
  // A link stays, and what it points to is replaced.
  if (fs::exists(status)) path_ = fs::canonical(path_).string();
  OpenTemporary();
}

Output::~Output() {
  if (file_ >= 0 && file_ != STDOUT_FILENO) close(file_);
  if (!temporary_.empty()) unlink(temporary_.c_str());
}

void Output::Write(std::string_view bytes) {
  buffer_ += bytes;
  if (buffer_.size() >= kBufferBytes) Flush();
}

void Output::Finish() {
  Flush();
  if (!temporary_.empty()) PutInPlace();
}

void Output::OpenTemporary() {
  std::string name = path_ + "." + std::string(kPlaceholders);
  file_ = mkostemp(name.data(), O_CLOEXEC);
  if (file_ < 0) throw SystemFailure("cannot write " + path_);
  temporary_ = name;
  fchmod(file_, kNewFileMode & ~Umask());
}

void Output::Flush() {
  WriteAll(file_, buffer_, path_);
  buffer_.clear();
}

void Output::PutInPlace() {
  if (fsync(file_) != 0) throw SystemFailure("cannot write " + path_);
  const unsigned flags = existing_ == Existing::kRefused ? RENAME_NOREPLACE : 0;
  int failed = renameat2(AT_FDCWD, temporary_.c_str(), AT_FDCWD, path_.c_str(), flags);
  // Not every file system knows how to refuse. It was seen at the start that nothing is there.
  if (failed != 0 && errno == EINVAL) failed = rename(temporary_.c_str(), path_.c_str());
  if (failed != 0 && errno == EEXIST) throw AlreadyThere(path_);
  if (failed != 0) throw SystemFailure("cannot write " + path_);
  temporary_.clear();
  SyncFolderOf(path_);
}

void RemoveTemporariesOf(const std::string& path) {
  const std::string stem = fs::path(path).filename().string() + ".";
  std::error_code ignored;
  for (const auto& file : fs::directory_iterator(fs::absolute(path).parent_path(), ignored)) {
    const std::string name = file.path().filename().string();
    if (name.starts_with(stem) && name.size() == stem.size() + kPlaceholders.size()) {
      unlink(file.path().c_str());
    }
  }
}

}  // namespace tessel::tools
