// The whole program behind its real window, with fakes behind the other ports.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QtMath>

#include "core/random_source.h"
#include "shell/qt/tessel_window.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_frame_clock.h"
#include "tests/fakes/fake_sound_player.h"
#include "tests/fakes/state_probe.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel {

struct WindowProgram {
  explicit WindowProgram(QSize size = {}, std::uint64_t firstSeed = 1,
                         const QString& preferencesFile = {})
      : clock(firstSeed), window(preferencesFile, frameClock) {
    if (size.isValid()) window.resize(size);
    window.SwitchSounds(sounds);
    window.Attach(main);
    main.Form_Load();
    QCoreApplication::processEvents();
  }

  const Form& Display() const { return main.Display(); }
  const GameState& State() const { return main.State(); }
  GameState& Probe() { return StateProbe::Of(main); }
  template <typename T>
  T* Find(const char* name) {
    T* const found = window.findChild<T*>(name);
    if (found == nullptr) ADD_FAILURE() << "no control named " << name;
    return found;
  }
  QPushButton* Push(const char* name) { return Find<QPushButton>(name); }
  QCheckBox* Box(const char* name) { return Find<QCheckBox>(name); }
  BoardWidget* Board() { return Find<BoardWidget>("Board"); }

  // Real mouse clicks, in the middle of a button and on the indicator of a box.
  void Click(const char* name) { QTest::mouseClick(Push(name), Qt::LeftButton); }
  void ClickBox(const char* name) {
    QTest::mouseClick(Box(name), Qt::LeftButton, {}, QPoint(8, Box(name)->height() / 2));
  }
  QPoint MarkPoint(int cell, int digit) {
    const QRectF place = Board()->CellRect(cell);
    return {qFloor(place.left() + place.width() * ((digit - 1) % 3 * 2 + 1) / 6),
            qFloor(place.top() + place.height() * ((digit - 1) / 3 * 2 + 1) / 6)};
  }
  void ClickMark(int cell, int digit, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(Board(), button, {}, MarkPoint(cell, digit));
  }
  // To the control of this window that has the focus, whichever window is active.
  void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* const focused = window.focusWidget();
    QTest::keyClick(focused != nullptr ? focused : Board(), static_cast<Qt::Key>(key), modifiers);
  }
  void MakePuzzle() {
    Click("CommandSaw");
    Click("CommandGo");
    Click("CommandConceal");
  }
  void OpenPuzzle() {
    MakePuzzle();
    Click("CommandSolve");
  }
  int FirstEmptyCell(int from = 0) {
    while (State().PlayBoard.Board[static_cast<std::size_t>(from)] != 0) ++from;
    return from;
  }
  int SolutionAt(int cell) { return State().PlayBoard.Solution[static_cast<std::size_t>(cell)]; }

  TemporaryFolder folder;
  FakeClock clock;
  FakeSoundPlayer player;
  SoundSwitch sounds{player};
  SeededRandom random;
  FakeFrameClock frameClock;
  TesselWindow window;
  Tessel_Main main{window, sounds, clock, random, folder.Path().string()};
};

}  // namespace tessel
