// The main window: the logic's view, made of Qt widgets.
#pragma once

#include <QWidget>
#include <bitset>
#include <optional>

#include "core/view.h"
#include "shell/qt/board_widget.h"
#include "shell/qt/control_panel.h"
#include "shell/qt/event_pump.h"
#include "shell/qt/foot_line.h"
#include "shell/qt/game_actions.h"
#include "shell/qt/help_actions.h"
#include "shell/qt/menu_bar.h"
#include "shell/qt/preferences.h"
#include "shell/qt/puzzle_actions.h"
#include "shell/qt/puzzle_grade.h"
#include "shell/qt/sound_switch.h"
#include "shell/qt/window_layout.h"
#include "shell/qt/work_show.h"
#include "shell/tessel_main.h"

namespace tessel {

class TesselWindow final : public QWidget, public View {
  Q_OBJECT

 public:
  // What the player chooses is kept in that file, or nowhere.
  explicit TesselWindow(const QString& preferencesFile = {}, FrameClock& clock = RealFrameClock());

  // Before Attach: what the entry Sounds switches.
  void SwitchSounds(SoundSwitch& sounds) { sounds_ = &sounds; }
  // Once, before the logic's Form_Load; the logic must live as long as the window gets events.
  void Attach(Tessel_Main& logic);

  void Show() override;
  std::int32_t WindowHandle() override;
  void PumpEvents() override;
  void PumpEventsNow() override;
  bool AskYesNo(const std::string& question, const std::string& title) override;
  void Beep() override;
  void EndProgram() override;
  void FormChanged(FormPart part, int index) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void SetTabOrder();
  void BuildMenus();
  void Press(Button button);
  bool Visualises() const;
  void ShowStep();
  void Sync();
  void SyncControls();
  void ShowFootLine();

  Preferences preferences_;
  SoundSwitch* sounds_ = nullptr;
  Tessel_Main* logic_ = nullptr;
  MenuBar* menu_;
  BoardWidget* board_;
  ControlPanel* panel_;
  FootLine* foot_;
  PuzzleGrade* grade_;
  std::optional<GameActions> gameActions_;
  std::optional<PuzzleActions> puzzleActions_;
  std::optional<HelpActions> helpActions_;

  // What has changed in the form since the last Sync.
  std::bitset<kCellCount> changedCells_;
  bool changedCaptions_ = false;
  bool changedControls_ = false;

  EventPump pump_;
  WindowLayout layout_;
  WorkShow show_;
  LateStops lateStops_;
};

}  // namespace tessel
