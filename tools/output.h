// What a command writes: to standard output as it comes, or a file that is there whole or not at
// all.
#pragma once

#include <string>
#include <string_view>

namespace tessel::tools {

class Output {
 public:
  enum class Existing { kRefused, kReplaced };

  // "-" is standard output. Throws Failure when the file exists and is not to be replaced, or
  // cannot be made. What is no regular file, as a pipe or /dev/null, is written to as it is.
  explicit Output(std::string path, Existing existing = Existing::kRefused);
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  // Without Finish, a file is as it was before.
  ~Output();

  // Throws Failure, or ReaderGone.
  void Write(std::string_view bytes);
  // Has everything on disk under its name.
  void Finish();

 private:
  void OpenTemporary();
  void Flush();
  void PutInPlace();

  std::string path_;
  Existing existing_;
  std::string temporary_;  // empty: written to as it is
  int file_ = -1;
  std::string buffer_;
};

// Removes the temporary files that killed programs left of `path`: every file of that name with a
// point and six more characters.
void RemoveTemporariesOf(const std::string& path);

}  // namespace tessel::tools
