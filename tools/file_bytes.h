// Bytes at places of an open file. Signals do not end these calls half-way; all of them throw
// Failure, naming `path`, when the system refuses.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessel::tools {

std::uint64_t LengthOf(int file, const std::string& path);

// Fewer than `size` bytes at the end of the file.
std::string ReadAt(int file, std::uint64_t offset, std::size_t size, const std::string& path);

// All of the bytes, or none: a part that could be written is cut off again. `offset` is the end of
// the file, or behind it.
void WriteAtEnd(int file, std::uint64_t offset, std::string_view bytes, const std::string& path);

// Holds the lock that programs which append to the same file take in turns. Throws Stopped when a
// signal asks to stop while another program has it.
class FileLock {
 public:
  FileLock(int file, const std::string& path);
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

 private:
  int file_;
};

}  // namespace tessel::tools
