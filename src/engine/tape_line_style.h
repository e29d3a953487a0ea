#pragma once

#include <string>
#include <string_view>

#include "controls/text_box.h"

namespace engine {

/// How a line of the tape is drawn: a total stands out, and what takes off is told from what adds.
/// A line that is no amount with its symbol (the header, an error, the record of a loan, words
/// written by hand) is a note.
controls::LineStyle tapeLineStyle(std::string_view line);

/// What a screen reader says of a line that was posted: "12.50 plus", "total 1,592.45", an error as
/// it stands; nothing of other notes.
std::string spokenTapeLine(std::string_view line);

}  // namespace engine
