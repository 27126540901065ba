// Dates of documents.
#pragma once

#include <cstdint>
#include <string>
#include <tl/expected.hpp>

namespace tessel::paper {

// Seconds since 1970 as "2024-02-29T12:34:56Z".
std::string PdfDate(std::int64_t seconds);

// The moment that a document tells as its date, in seconds since 1970: SOURCE_DATE_EPOCH of the
// environment, so that the document can be made again byte for byte, else now. The error says that
// it is no number.
tl::expected<std::int64_t, std::string> DateOfDocument();

}  // namespace tessel::paper
