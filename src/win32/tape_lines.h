#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace win32 {

/// A text and where its lines begin. Appending costs the same however long the text is; a line ends
/// at a line feed, which a carriage return may precede.
class TapeLines {
 public:
  const std::wstring& text() const { return text_; }
  int length() const { return static_cast<int>(text_.size()); }
  std::wstring_view part(int start, int length) const;

  int count() const { return static_cast<int>(starts_.size()); }
  int start(int line) const { return starts_[static_cast<std::size_t>(line)]; }
  /// Behind the last character of the line, in front of its line end.
  int end(int line) const;
  std::wstring_view line(int line) const { return part(start(line), end(line) - start(line)); }
  /// The line that a place in the text is on.
  int lineOf(int place) const;

  /// How many columns the longest line takes at most, a tab and a wide character counted in full.
  int columns() const { return columns_.empty() ? 0 : columns_.rbegin()->first; }

  /// The place itself, or the one behind the character that it is inside of.
  int whole(int place) const { return isInside(place) ? place + 1 : place; }
  /// The place one character further on or back: a line end is one character, and so is one that
  /// takes two units.
  int next(int place) const;
  int previous(int place) const;
  /// The start of the word behind a place, or in front of it.
  int nextWord(int place) const;
  int previousWord(int place) const;
  /// Where the word begins that a place is in, and where it ends, with the blanks behind it; both
  /// are on the line of the place.
  int wordStart(int place) const;
  int wordEnd(int place) const;

  void replace(int start, int length, std::wstring_view text);

 private:
  wchar_t at(int place) const { return text_[static_cast<std::size_t>(place)]; }
  bool isInside(int place) const;
  int columnsOf(int line) const;
  void count(int firstLine, int lastLine, int by);

  std::wstring text_;
  std::vector<int> starts_ = {0};
  // How many lines take so many columns.
  std::map<int, int> columns_ = {{0, 1}};
};

}  // namespace win32
