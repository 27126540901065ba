#include "paper/sink_stream.h"

namespace tessel::paper {

tl::expected<void, std::string> SinkStream::Result(cairo_status_t status) const {
  if (refused_) return tl::unexpected(std::string("the output cannot be written"));
  if (status == CAIRO_STATUS_SUCCESS) return {};
  return tl::unexpected(std::string(cairo_status_to_string(status)));
}

cairo_status_t SinkStream::Write(void* stream, const unsigned char* bytes, unsigned int count) {
  SinkStream& self = *static_cast<SinkStream*>(stream);
  self.refused_ = self.refused_ || !self.sink_({bytes, count});
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace tessel::paper
