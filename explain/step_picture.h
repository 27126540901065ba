// The two pictures of a step.
#pragma once

#include "explain/explanation.h"
#include "paper/board_picture.h"

namespace tessel::explain {

// The position with its candidates as marks.
paper::BoardPicture PictureOf(const Explanation& explanation, const grade::CandidateGrid& position);
// The position that step k was found in: its houses banded, its cells highlighted, the candidates
// that it rests on ringed, those that it removes crossed out.
paper::BoardPicture PictureBefore(const Explanation& explanation, std::size_t k);
// The position after it, with the digit that it placed in a ring.
paper::BoardPicture PictureAfter(const Explanation& explanation, std::size_t k);

}  // namespace tessel::explain
