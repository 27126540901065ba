// Where the bytes of a file go.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <tl/expected.hpp>

namespace tessel::paper {

// Takes the next bytes of the file; false if it cannot.
using Sink = std::function<bool(std::span<const unsigned char>)>;

}  // namespace tessel::paper
