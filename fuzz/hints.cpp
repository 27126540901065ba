// Bytes to a board and candidate masks, on which the techniques, the special pass and the hint
// button must do what the literal ones do.
//
// Byte 0: what is called. Byte 1: the layout. Byte 2: the hint fields of before. Two bytes for each
// cell: a mask, how it is corrected, and the digit on the board.
#include <optional>

#include "core/texts.h"
#include "fuzz/input.h"
#include "shell/hint_button.h"
#include "shell/hint_techniques.h"
#include "shell/special_pass.h"
#include "tests/fakes/fake_sound_player.h"
#include "tests/fakes/recording_view.h"
#include "tests/oracle/hints/comparison.h"
#include "tests/oracle/hints/literal_click.h"

namespace tessel::fuzz {
namespace {

using literal::Bit;
using literal::LiteralClick;
using literal::LiteralHints;
using literal::Scene;
using literal::SolvedLayout;

enum Call : std::uint8_t {
  kNakedSingle,
  kHiddenSingle,
  kPointingPair,
  kBoxLine,
  kXWing,
  kSwordFish,
  kSpHiddenSingle,
  kSpNakedSingle,
  kSpPointingPair,
  kSpBoxLine,
  kSubsets,  // naked and hidden of sizes 0..7
  kSpSubsets = kSubsets + 16,
  kClicks = kSpSubsets + 16,  // the hint button, in all of its states
  kCalls = kClicks + 16
};

const SolvedLayout& DrawLayout(Input& input) {
  static const std::vector<SolvedLayout> layouts = [] {
    SeededRandom random(1);
    std::vector<SolvedLayout> made{literal::RegularSolved(random)};
    while (made.size() < 16) made.push_back(literal::IrregularSolved(random));
    return made;
  }();
  return layouts[static_cast<std::size_t>(input.Byte()) % layouts.size()];
}

int FreeAt(const Scene& scene, int cell) {
  int free = 511;
  for (int other = 0; other < 81; ++other) {
    const bool peer =
        other / 9 == cell / 9 || other % 9 == cell % 9 || scene.cages[other] == scene.cages[cell];
    if (peer && scene.board[other] != 0) free &= ~Bit(scene.board[other]);
  }
  return free;
}

Scene DrawScene(const SolvedLayout& layout, Input& input) {
  Scene scene{layout.cages, layout.solution, {}, {}};
  std::array<int, 81> corrections{};
  for (int cell = 0; cell < 81; ++cell) {
    const int word = input.Word();
    scene.marks[cell] = word & 511;
    const int digit = word >> 9 & 15;
    scene.board[cell] = digit > 12 ? layout.solution[cell] : digit > 9 ? 0 : digit;
    corrections[cell] = word >> 13;
  }
  for (int cell = 0; cell < 81; ++cell) {
    int& mask = scene.marks[cell];
    if (corrections[cell] > 3)
      scene.board[cell] = corrections[cell] == 4 ? 0 : scene.solution[cell];
    if (corrections[cell] > 1 && scene.board[cell] != 0) mask = 0;
  }
  for (int cell = 0; cell < 81; ++cell) {
    int& mask = scene.marks[cell];
    if (corrections[cell] % 2 != 0 && scene.board[cell] == 0) {
      mask = (mask & FreeAt(scene, cell)) | Bit(scene.solution[cell]);
    }
  }
  return scene;
}

class Program {
 public:
  Program() {
    FillTables(state_);
    state_.ProgramPath = "sounds/";
    sounds_.Init_Sound();
  }

  void Try(Input& input) {
    const int call = input.Draw(kCalls);
    const SolvedLayout& layout = DrawLayout(input);
    const int fields = input.Byte();
    const Scene scene = DrawScene(layout, input);
    Load(scene, state_);
    state_.SpecialMarks = call >= kClicks ? MaskBoard{} : state_.Candidates;
    SetFields({fields % 18, fields % 81, 1 + fields % 9, fields % 9, fields % 7, 1 + fields % 8},
              state_);
    if (call >= kClicks) return CompareClicks(call - kClicks);
    LiteralHints expected = literal::CopyOf(state_);
    const bool found = CallLiteral(call, expected);
    Require(CallOurs(call) == found, "finds the same");
    RequireSame(expected);
  }

 private:
  static constexpr auto kSubsetOf = [](int call) {
    return call % 2 == 0 ? Subset::kNaked : Subset::kHidden;
  };

  // The techniques that take no argument; nothing for the calls of the others.
  template <typename Normal, typename Special>
  static std::optional<bool> CallPlain(int call, Normal& normal, Special& special) {
    switch (call) {
      case kNakedSingle:
        return normal.NakedSingle();
      case kHiddenSingle:
        return normal.HiddenSingle();
      case kPointingPair:
        return normal.PointingPair();
      case kBoxLine:
        return normal.BoxLine();
      case kXWing:
        return normal.XWing();
      case kSwordFish:
        return normal.SwordFish();
      case kSpHiddenSingle:
        return special.SpHiddenSingle();
      case kSpNakedSingle:
        return special.SpNakedSingle();
      case kSpPointingPair:
        return special.SpPointingPair();
      case kSpBoxLine:
        return special.SpBoxLine();
    }
    return std::nullopt;
  }

  bool CallOurs(int call) {
    if (const auto found = CallPlain(call, normal_, special_)) return *found;
    if (call < kSpSubsets) {
      return normal_.NakedHidden(kSubsetOf(call), CountSubset{(call - kSubsets) / 2});
    }
    return special_.SpNakedHidden(CountSubset{(call - kSpSubsets) / 2}, kSubsetOf(call));
  }

  static bool CallLiteral(int call, LiteralHints& hints) {
    if (const auto found = CallPlain(call, hints, hints)) return *found;
    if (call < kSpSubsets) return hints.NakedHidden(call % 2 == 0, (call - kSubsets) / 2);
    return hints.SpNakedHidden((call - kSpSubsets) / 2, call % 2 == 0);
  }

  void RequireSame(const LiteralHints& expected) const {
    Require(tessel::FieldsOf(state_) == literal::FieldsOf(expected), "the hint fields");
    Require(state_.SpecialMarks == literal::MasksOf(expected.SpecialMarks), "the special marks");
    Require(state_.Candidates == literal::MasksOf(expected.Candidates), "the player's marks");
    Require(state_.PlayBoard == state_.SavedPuzzle, "the board");
  }

  // Three clicks. Bit 0 of `how`: marks are not updated; bit 1: an assignment is pending.
  void CompareClicks(int how) {
    LiteralClick click;
    click.hints = literal::CopyOf(state_);
    click.PencilmarkMode = how % 2 == 0 ? 2 : 1;
    click.AssignmentPending = how / 2 % 2 == 1;
    state_.PencilmarkMode = how % 2 == 0 ? MarkMode::kAutomatic : MarkMode::kNotUpdated;
    state_.AssignmentPending = click.AssignmentPending ? Bool16::kTrue : Bool16::kFalse;
    form_.SetAllCaptions(kBlack);
    form_.SetTextHint("");
    form_.SetButtonCaption(Button::CommandHint, texts::kHint);
    player_.played.clear();
    for (int i = 0; i < 3; ++i) {
      click.CommandHint_Click();
      button_.CommandHint_Click();
      RequireSame(click.hints);
      RequireSameWindow(click);
    }
  }

  void RequireSameWindow(const LiteralClick& click) const {
    Require(form_.TextHint() == click.textHint, "the sentence");
    Require(form_.Of(Button::CommandHint).caption == click.buttonCaption, "the button's caption");
    Require((state_.AssignmentPending == Bool16::kTrue) == click.AssignmentPending, "pending");
    for (int i = 0; i < 9; ++i) {
      Require((form_.LabelRow(i) == kHighlightRed) == click.redRows[i], "the red rows");
      Require((form_.LabelColumn(i) == kHighlightRed) == click.redColumns[i], "the red columns");
    }
    Require(std::vector<int>(player_.played.begin(), player_.played.end()) == click.sounds,
            "the sounds");
  }

  GameState state_;
  RecordingView view_;
  FakeSoundPlayer player_;
  Form form_{view_};
  Sounds sounds_{state_, player_};
  HintTechniques normal_{state_};
  SpecialPass special_{state_, form_, sounds_};
  HintButton button_{state_, form_, sounds_};
};

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tessel::fuzz::Program program;
  tessel::fuzz::Input input(data, size);
  program.Try(input);
  return 0;
}
