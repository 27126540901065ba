// A sink as Cairo writes to it.
#pragma once

#include <string>
#include <tl/expected.hpp>

#include "paper/cairo_handles.h"
#include "paper/sink.h"

namespace tessel::paper {

// Cairo 1.16 crashes when a stream refuses bytes in the middle of a page. So every write succeeds;
// after one that was refused, the rest is dropped, and the refusal is told at the end.
class SinkStream {
 public:
  explicit SinkStream(const Sink& sink) : sink_(sink) {}

  bool Refused() const { return refused_; }
  // What became of the file, once its surface is finished.
  tl::expected<void, std::string> Result(cairo_status_t status) const;

  // Cairo's write function; `stream` is a SinkStream.
  static cairo_status_t Write(void* stream, const unsigned char* bytes, unsigned int count);

 private:
  const Sink& sink_;
  bool refused_ = false;
};

}  // namespace tessel::paper
