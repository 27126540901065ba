// The generation stages of the program behind ports that cost next to nothing.
#pragma once

#include "core/form.h"
#include "core/game_state.h"
#include "core/random_source.h"
#include "layout/cage_generator.h"
#include "search/conceal.h"
#include "search/exact_cover_search.h"
#include "search/fill.h"
#include "search/try_out.h"
#include "tests/fakes/fake_clock.h"

namespace tessel::bench {

enum class LayoutKind : std::uint8_t { kRandom, kRotational, kRegular };
enum class ConcealKind : std::uint8_t { kSingle, kPairs };

class QuietView final : public View {
 public:
  void Show() override {}
  std::int32_t WindowHandle() override { return 0; }
  void PumpEvents() override { ++pumps; }
  bool AskYesNo(const std::string& /*question*/, const std::string& /*title*/) override {
    return true;
  }
  void Beep() override {}
  void EndProgram() override {}
  void FormChanged(FormPart /*part*/, int /*index*/) override {}

  std::int64_t pumps = 0;
};

// Every stage is seeded on its own, so that a layout does not depend on what was sawn before it.
class Engine {
 public:
  Engine() { FillTables(state); }

  // Keeps the first layout that the walk completes, whether it can be filled or not.
  void SawAnyLayout(LayoutKind kind, std::uint64_t seed) {
    Saw(kind, seed, [] { return true; });
  }
  // The Saw command's work: layouts are sawn until one can be filled.
  void SawFillableLayout(LayoutKind kind, std::uint64_t seed) {
    Saw(kind, seed, [this] { return AdmitsFilling(state, view, search); });
  }
  void Fill(std::uint64_t seed) {
    clock_.nextSeed = seed;
    FillGenerator(state, form, view, random, clock_, search).GenerateTessel();
  }
  // Takes the solution in WorkGrid, which stays, and leaves its givens in Puzzle.
  void Conceal(ConcealKind kind, std::uint64_t seed) {
    form.SetChecked(CheckBox::ConcealRotational, kind == ConcealKind::kPairs);
    clock_.nextSeed = seed;
    Concealer(state, form, view, random, clock_, search).ConcealCells2ValidTessel();
  }

  GameState state;
  QuietView view;
  Form form{view};
  SeededRandom random;
  ExactCoverSearch search{state, view};

 private:
  void Saw(LayoutKind kind, std::uint64_t seed, CageGenerator::AcceptLayout accept) {
    CageGenerator generator(state, form, view, random, clock_, std::move(accept));
    if (kind == LayoutKind::kRegular) return generator.BuildRegularLayout();
    form.SetChecked(CheckBox::Rotational, kind == LayoutKind::kRotational);
    clock_.nextSeed = seed;
    generator.BuildTesselPattern();
  }

  FakeClock clock_;
};

}  // namespace tessel::bench
