#include "tools/record_output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "core/puzzle_record.h"
#include "tools/failure.h"
#include "tools/file_bytes.h"
#include "tools/standard_output.h"

namespace tessel::tools {

namespace {

constexpr mode_t kNewFileMode = 0666;

// Where the next record of a puzzle file goes.
std::uint64_t EndOfRecords(std::uint64_t length) {
  return static_cast<std::uint64_t>(RecordsIn(static_cast<std::int64_t>(length))) *
         sizeof(PuzzleRecord);
}

bool IsOtherThanFile(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

}  // namespace

RecordOutput::RecordOutput(const std::string& path, Sharing sharing)
    : path_(path == "-" ? "standard output" : path), isShared_(sharing == Sharing::kPuzzleFile) {
  if (path == "-") {
    file_ = STDOUT_FILENO;
    return;
  }
  if (!OpenNew()) {
    throw errno == EEXIST ? Failure(path_ + " exists already")
                          : SystemFailure("cannot write " + path_);
  }
  if (!isFile_ || !isShared_) return;
  const FileLock lock(file_, path_);
  offset_ = EndOfRecords(LengthOf(file_, path_));
}

RecordOutput::RecordOutput(const std::string& path, Sharing sharing, const Done& done)
    : path_(path), isShared_(sharing == Sharing::kPuzzleFile) {
  if (!Open(O_RDWR)) throw SystemFailure("cannot go on with " + path_);
  if (!isFile_) throw Failure(path_ + " is no file to go on with");
  CheckEarlier(done);
}

RecordOutput::~RecordOutput() {
  if (file_ >= 0 && file_ != STDOUT_FILENO) close(file_);
}

// A device or a pipe is written to as it comes.
bool RecordOutput::OpenNew() {
  if (IsOtherThanFile(path_)) return Open(O_WRONLY);
  return Open(isShared_ ? O_RDWR | O_CREAT : O_RDWR | O_CREAT | O_EXCL);
}

bool RecordOutput::Open(int flags) {
  file_ = open(path_.c_str(), flags | O_CLOEXEC, kNewFileMode);
  struct stat status {};
  if (file_ < 0 || fstat(file_, &status) != 0) return false;
  isFile_ = S_ISREG(status.st_mode);
  return true;
}

void RecordOutput::ReadEarlier(std::uint64_t end) {
  constexpr std::size_t step = std::size_t{1} << 20;
  while (bytes_ < end) {
    const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(step, end - bytes_));
    const std::string bytes = ReadAt(file_, offset_ + bytes_, size, path_);
    hash_.Add(bytes);
    bytes_ += bytes.size();
    if (bytes.size() < size) return;
  }
}

void RecordOutput::CheckEarlier(const Done& done) {
  offset_ = done.offset;
  ReadEarlier(done.bytes);
  if (bytes_ != done.bytes || hash_.Hex() != done.sha256) {
    throw Failure(path_ + " does not hold what this run has written so far");
  }
  meetsEarlier_ = true;
}

void RecordOutput::Write(std::string_view records) {
  if (records.empty()) return;
  Append(WithoutWhatStands(records));
  hash_.Add(records);
  bytes_ += records.size();
}

// A run that was killed may have written more than it could tell of: the next records, up to the
// middle of one. They are made again, and compared.
std::string_view RecordOutput::WithoutWhatStands(std::string_view records) {
  if (!meetsEarlier_) return records;
  const std::string there = ReadAt(file_, offset_ + bytes_, records.size(), path_);
  if (!records.starts_with(there)) {
    throw Failure(path_ + " holds other records than those of this run from byte " +
                  std::to_string(offset_ + bytes_) + " on");
  }
  meetsEarlier_ = there.size() == records.size();
  return records.substr(there.size());
}

void RecordOutput::Append(std::string_view records) {
  if (records.empty()) return;
  if (!isFile_) {
    WriteAll(file_, records, path_);
  } else if (isShared_) {
    AppendUnderLock(records);
  } else {
    WriteAtEnd(file_, LengthOf(file_, path_), records, path_);
  }
}

// Others may have appended since the last time. Records that begin in the middle of one go on with
// a fragment of our own at the end of the file.
void RecordOutput::AppendUnderLock(std::string_view records) {
  const FileLock lock(file_, path_);
  const std::uint64_t length = LengthOf(file_, path_);
  const bool completes = records.size() % sizeof(PuzzleRecord) != 0;
  WriteAtEnd(file_, completes ? length : EndOfRecords(length), records, path_);
}

void RecordOutput::Sync() {
  if (isFile_ && fsync(file_) != 0) throw SystemFailure("cannot write " + path_);
}

}  // namespace tessel::tools
