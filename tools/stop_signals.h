// SIGINT and SIGTERM as a wish to stop, for work that must end after something whole.
#pragma once

#include <exception>

namespace tessel::tools {

// From here on SIGINT and SIGTERM only set a flag. A second one of a kind ends the program at once.
void HeedStopSignals();
// The first signal that asked to stop; 0: none.
int StopSignal();

// Ends work that nothing whole is left of. Only the program's main function catches it.
class Stopped : public std::exception {};
// Throws Stopped when a signal has asked to stop.
void StopIfAsked();

}  // namespace tessel::tools
