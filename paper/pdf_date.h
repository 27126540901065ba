// Dates as the PDF surface takes them.
#pragma once

#include <cstdint>
#include <string>

namespace tessel::paper {

// Seconds since 1970 as "2024-02-29T12:34:56Z".
std::string PdfDate(std::int64_t seconds);

}  // namespace tessel::paper
