// The records of a long run: whole ones only, however it ends, and again the same when it goes on.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tools/sha256.h"

namespace tessel::tools {

class RecordOutput {
 public:
  enum class Sharing : std::uint8_t {
    kAlone,       // a new run makes a new file
    kPuzzleFile,  // appended to, under the lock of the puzzle file, as the window and others do
  };
  // Bytes that a run has written for certain, and their place in the file.
  struct Done {
    std::uint64_t offset = 0;  // of the first byte of the run
    std::uint64_t bytes = 0;
    std::string sha256;
  };

  // "-" is standard output. Throws Failure.
  RecordOutput(const std::string& path, Sharing sharing);
  // Goes on after what the run has done. What stands behind that must be what is written next.
  RecordOutput(const std::string& path, Sharing sharing, const Done& done);
  RecordOutput(const RecordOutput&) = delete;
  RecordOutput& operator=(const RecordOutput&) = delete;
  ~RecordOutput();

  // Records, whole ones. Throws Failure when they cannot be written, and then the file ends in a
  // whole record; or when something else stands in their place. Throws ReaderGone or Stopped.
  void Write(std::string_view records);
  // Has everything on disk.
  void Sync();

  bool IsFile() const { return isFile_; }
  Done SoFar() const { return {offset_, bytes_, hash_.Hex()}; }

 private:
  bool OpenNew();
  bool Open(int flags);
  // Takes what the file holds up to the byte `end` of the run for written.
  void ReadEarlier(std::uint64_t end);
  void CheckEarlier(const Done& done);
  std::string_view WithoutWhatStands(std::string_view records);
  void Append(std::string_view records);
  void AppendUnderLock(std::string_view records);

  std::string path_;
  int file_ = -1;
  bool isFile_ = false;
  bool isShared_;
  bool meetsEarlier_ = false;
  std::uint64_t offset_ = 0;
  std::uint64_t bytes_ = 0;
  Sha256 hash_;
};

}  // namespace tessel::tools
