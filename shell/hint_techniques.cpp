#include "shell/hint_techniques.h"

#include "shell/hint_fields.h"

namespace tessel {

bool HintTechniques::Find(const Technique* technique) {
  if (technique == nullptr) return false;
  const Layout layout = LayoutOf(state_);
  const auto hint = FirstHint(*technique, {layout, state_.PlayBoard.Board, state_.Candidates});
  if (hint) WriteHintFields(state_, *hint);
  return hint.has_value();
}

}  // namespace tessel
