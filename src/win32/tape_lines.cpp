#include "win32/tape_lines.h"

#include <windows.h>

#include <algorithm>
#include <cwctype>

namespace win32 {

std::wstring_view TapeLines::part(int start, int length) const {
  return std::wstring_view(text_).substr(static_cast<std::size_t>(start),
                                         static_cast<std::size_t>(length));
}

int TapeLines::end(int line) const {
  if (line + 1 == count()) return length();
  const int feed = start(line + 1) - 1;
  return feed > start(line) && at(feed - 1) == L'\r' ? feed - 1 : feed;
}

int TapeLines::lineOf(int place) const {
  const auto behind = std::upper_bound(starts_.begin(), starts_.end(), place);
  return static_cast<int>(behind - starts_.begin()) - 1;
}

// Inside a surrogate pair.
bool TapeLines::isInside(int place) const {
  if (place <= 0 || place >= length()) return false;
  const wchar_t before = at(place - 1);
  const wchar_t behind = at(place);
  return (before == L'\r' && behind == L'\n') || IS_SURROGATE_PAIR(before, behind);
}

int TapeLines::next(int place) const {
  place = std::min(place + 1, length());
  return isInside(place) ? place + 1 : place;
}

int TapeLines::previous(int place) const {
  place = std::max(place - 1, 0);
  return isInside(place) ? place - 1 : place;
}

int TapeLines::nextWord(int place) const {
  while (place < length() && !std::iswspace(at(place))) ++place;
  while (place < length() && std::iswspace(at(place))) ++place;
  return place;
}

int TapeLines::previousWord(int place) const {
  while (place > 0 && std::iswspace(at(place - 1))) --place;
  while (place > 0 && !std::iswspace(at(place - 1))) --place;
  return place;
}

int TapeLines::wordStart(int place) const {
  return std::max(previousWord(place), start(lineOf(place)));
}

int TapeLines::wordEnd(int place) const {
  return std::min(nextWord(place), end(lineOf(place)));
}

int TapeLines::columnsOf(int line) const {
  constexpr int kTabStop = 8;
  constexpr wchar_t kFirstWide = 0x1100;
  int columns = 0;
  for (const wchar_t unit : this->line(line))
    columns += unit == L'\t' ? kTabStop : unit < kFirstWide ? 1 : 2;
  return columns;
}

void TapeLines::count(int firstLine, int lastLine, int by) {
  for (int line = firstLine; line <= lastLine; ++line) {
    const auto entry = columns_.try_emplace(columnsOf(line)).first;
    entry->second += by;
    if (entry->second == 0) columns_.erase(entry);
  }
}

void TapeLines::replace(int start, int length, std::wstring_view text) {
  const int firstLine = lineOf(start);
  count(firstLine, lineOf(start + length), -1);
  const auto first = std::upper_bound(starts_.begin(), starts_.end(), start);
  const auto last = std::upper_bound(first, starts_.end(), start + length);
  const int growth = static_cast<int>(text.size()) - length;
  std::for_each(last, starts_.end(), [growth](int& lineStart) { lineStart += growth; });
  std::vector<int> added;
  for (std::size_t at = 0; at < text.size(); ++at)
    if (text[at] == L'\n') added.push_back(start + static_cast<int>(at) + 1);
  starts_.insert(starts_.erase(first, last), added.begin(), added.end());
  text_.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), text);
  count(firstLine, firstLine + static_cast<int>(added.size()), 1);
}

}  // namespace win32
