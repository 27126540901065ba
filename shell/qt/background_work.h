// Work that takes longer than a blink, beside a window that goes on answering.
#pragma once

#include <QString>
#include <atomic>
#include <functional>

#include "shell/puzzle_export.h"

class QWidget;

namespace tessel {

// What was written, or why not; the work looks at `cancelled` where it can.
using BackgroundWork = std::function<Export(const std::atomic<bool>& cancelled)>;

// Runs the work on a thread of its own and returns its result. When that takes longer than a blink,
// a dialog over `window` tells `label`, and its Cancel sets `cancelled`.
Export RunInBackground(QWidget* window, const QString& label, const BackgroundWork& work);

}  // namespace tessel
