// Documents, as the printer's library writes them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "paper/sink.h"
#include "tools/output.h"

namespace tessel::tools {

// paper::DateOfDocument; throws WrongOptions when there is none.
std::int64_t DateOfDocument();

using DocumentWriter = std::function<tl::expected<void, std::string>(const paper::Sink&)>;

// Writes a file that is there whole or not at all. Throws Failure, also for the writer's error.
void WriteDocument(const std::string& path, Output::Existing existing, const DocumentWriter& write);

}  // namespace tessel::tools
