// The port to the front end: a window, a test, a tool.
#pragma once

#include <cstdint>
#include <string>

namespace tessel {

enum class FormPart : std::uint8_t {
  kCell,           // index: cell 0..80
  kRowCaption,     // index: row 0..8
  kColumnCaption,  // index: column 0..8
  kButton,         // index: of enum Button
  kCheckBox,       // index: of enum CheckBox
  kWindowCaption,
  kSolveButtons,  // the frame, and which command runs
  kHintText,
  kText1,
  kNotice,
  kNews,
};

// Everything but FormChanged may call back into Tessel_Main before it returns: PumpEvents and
// AskYesNo deliver the events that wait.
class View {
 public:
  virtual ~View() = default;

  // Opens the window; the first call of all.
  virtual void Show() = 0;
  // A number that stands for the window towards the sound player.
  virtual std::int32_t WindowHandle() = 0;
  // Delivers the events that wait; called once a step of long work, so it must be cheap.
  virtual void PumpEvents() = 0;
  // The same for a command that waits: PumpEvents may put events off, this does not.
  virtual void PumpEventsNow() { PumpEvents(); }
  // Returns when the question is answered: true for Yes, false for No or when it was closed.
  virtual bool AskYesNo(const std::string& question, const std::string& title) = 0;
  // Sounds the system's beep and does not wait for its end.
  virtual void Beep() = 0;
  // Ends the program once the running event is over; asks nothing.
  virtual void EndProgram() = 0;
  // The Form shows something else at this place now. Only to be noted: it is no place to act in.
  virtual void FormChanged(FormPart part, int index) = 0;
};

}  // namespace tessel
