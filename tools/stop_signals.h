// SIGINT and SIGTERM as a wish to stop, for work that must end after something whole.
#pragma once

namespace tessel::tools {

// From here on SIGINT and SIGTERM only set a flag. A second one of a kind ends the program at once.
void HeedStopSignals();
// The first signal that asked to stop; 0: none.
int StopSignal();

}  // namespace tessel::tools
