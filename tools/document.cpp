#include "tools/document.h"

#include <exception>

#include "paper/pdf_date.h"
#include "tools/failure.h"
#include "tools/stop_signals.h"

namespace tessel::tools {

namespace {

paper::Sink SinkTo(Output& output) {
  return [&output](std::span<const unsigned char> bytes) {
    output.Write({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    return true;
  };
}

// The printer's library must not be left by an exception: what the output throws waits until it is
// back.
class PatientSink {
 public:
  explicit PatientSink(Output& output) : sink_(SinkTo(output)) {}

  paper::Sink AsSink() {
    return [this](std::span<const unsigned char> bytes) {
      try {
        return StopSignal() == 0 && sink_(bytes);
      } catch (...) {
        thrown_ = std::current_exception();
        return false;
      }
    };
  }
  void Rethrow() const {
    if (thrown_) std::rethrow_exception(thrown_);
  }

 private:
  paper::Sink sink_;
  std::exception_ptr thrown_;
};

}  // namespace

std::int64_t DateOfDocument() {
  const auto date = paper::DateOfDocument();
  if (!date) throw WrongOptions(date.error());
  return *date;
}

void WriteDocument(const std::string& path, Output::Existing existing,
                   const DocumentWriter& write) {
  Output output(path, existing);
  PatientSink sink(output);
  const auto written = write(sink.AsSink());
  sink.Rethrow();
  StopIfAsked();
  if (!written) throw Failure("cannot print " + path + ": " + written.error());
  output.Finish();
}

}  // namespace tessel::tools
