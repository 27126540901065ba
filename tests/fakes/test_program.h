// The whole program with fakes behind its ports, started.
#pragma once

#include <memory>
#include <utility>

#include "core/random_source.h"
#include "shell/tessel_main.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_sound_player.h"
#include "tests/fakes/recording_view.h"
#include "tests/fakes/state_probe.h"
#include "tests/fakes/temporary_folder.h"
#include "tests/fakes/unthreaded_calls.h"

namespace tessel {

struct TestProgram {
  // A later program in the folder of another shares its home.
  explicit TestProgram(
      std::uint64_t firstSeed = 1, SystemCalls& system = UnthreadedCalls::Shared(),
      std::shared_ptr<const TemporaryFolder> itsHome = std::make_shared<const TemporaryFolder>())
      : home(std::move(itsHome)),
        clock(firstSeed),
        main(view, player, clock, random, folder.Path().string(), system) {
    main.Form_Load();
  }

  const Form& Display() const { return main.Display(); }
  const GameState& State() const { return main.State(); }
  GameState& Probe() { return StateProbe::Of(main); }

  void Tick(CheckBox box, bool checked = true) {
    if (Display().Checked(box) != checked) main.Toggle(box);
  }
  // Clicks the centre of a digit's mark.
  void ClickMark(int cell, int digit, MouseButton button) {
    const CellPosition at = MarkCentre(digit);
    main.Grid_MouseUp(cell, button, 0, at.x, at.y);
  }
  // Saw, Fill and Conceal.
  void MakePuzzle() {
    main.Click(Button::CommandSaw);
    main.Click(Button::CommandGo);
    main.Click(Button::CommandConceal);
  }

  const std::shared_ptr<const TemporaryFolder> home;
  const TemporaryFolder& folder = *home;
  FakeClock clock;
  FakeSoundPlayer player;
  RecordingView view;
  SeededRandom random;
  Tessel_Main main;
};

}  // namespace tessel
