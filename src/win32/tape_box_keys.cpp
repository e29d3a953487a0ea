#include <algorithm>

#include "win32/keys.h"
#include "win32/tape_box.h"

// Keys that move the caret of the tape.
namespace win32 {

void TapeBox::moveCaret(WPARAM key) {
  switch (key) {
    case VK_UP:
      return moveByLines(-1);
    case VK_DOWN:
      return moveByLines(1);
    case VK_PRIOR:
      return moveByLines(-view_.linesInView());
    case VK_NEXT:
      return moveByLines(view_.linesInView());
    default: {
      const int caret = caretAfter(key, isDown(VK_CONTROL));
      view_.select(isDown(VK_SHIFT) ? view_.anchor() : caret, caret);
    }
  }
}

int TapeBox::caretAfter(WPARAM key, bool control) const {
  const TapeLines& lines = view_.lines();
  const int caret = view_.caret();
  const int line = lines.lineOf(caret);
  switch (key) {
    case VK_LEFT:
      return control ? lines.previousWord(caret) : lines.previous(caret);
    case VK_RIGHT:
      return control ? lines.nextWord(caret) : lines.next(caret);
    case VK_HOME:
      return control ? 0 : lines.start(line);
    default:
      return control ? lines.length() : lines.end(line);
  }
}

// Moves to the character above or below; shorter lines in between do not change the preferred
// column.
void TapeBox::moveByLines(int lines) {
  const TapeLines& all = view_.lines();
  const int line = all.lineOf(view_.caret());
  const int wanted = std::clamp(line + lines, 0, all.count() - 1);
  const int x = goalX();
  const POINT below = {x - view_.shift(), view_.pointOf(all.start(wanted)).y};
  const int caret = wanted == line ? view_.caret() : view_.placeAt(below);
  view_.select(isDown(VK_SHIFT) ? view_.anchor() : caret, caret);
  goal_ = {caret, x};
}

int TapeBox::goalX() const {
  if (goal_ && goal_->caret == view_.caret()) return goal_->x;
  return view_.pointOf(view_.caret()).x + view_.shift();
}

}  // namespace win32
