#include "shell/qt/background_work.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <future>

namespace tessel {

namespace {

constexpr std::chrono::milliseconds kBlink{100};
constexpr std::chrono::milliseconds kPause{10};

}  // namespace

Export RunInBackground(QWidget* window, const QString& label, const BackgroundWork& work) {
  std::atomic<bool> cancelled = false;
  auto result = std::async(std::launch::async, [&] { return work(cancelled); });
  if (result.wait_for(kBlink) == std::future_status::ready) return result.get();
  QProgressDialog dialog(label, "Cancel", 0, 0, window);
  dialog.setObjectName("Working");
  dialog.setWindowTitle("Tessel Sudoku");
  dialog.setWindowModality(Qt::ApplicationModal);
  QObject::connect(&dialog, &QProgressDialog::canceled, [&] {
    cancelled = true;
    dialog.setLabelText("Stopping…");
  });
  dialog.setMinimumDuration(0);
  dialog.show();
  while (result.wait_for(kPause) != std::future_status::ready) QCoreApplication::processEvents();
  return result.get();
}

}  // namespace tessel
