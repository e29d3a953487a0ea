#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace win32 {

/// A text with an index of its lines. The cost of appending does not depend on the length of the
/// text; a line ends at a line feed, with an optional carriage return before it.
class TapeLines {
 public:
  const std::wstring& text() const { return text_; }
  int length() const { return static_cast<int>(text_.size()); }
  std::wstring_view part(int start, int length) const;

  int count() const { return static_cast<int>(starts_.size()); }
  int start(int line) const { return starts_[static_cast<std::size_t>(line)]; }
  /// The end of the line, before its line break.
  int end(int line) const;
  std::wstring_view line(int line) const { return part(start(line), end(line) - start(line)); }
  /// The line of a position in the text.
  int lineOf(int place) const;

  /// An upper limit of the columns in the longest line, with tabs and wide characters counted in
  /// full.
  int columns() const { return columns_.empty() ? 0 : columns_.rbegin()->first; }

  /// The position itself, or the end of the character that it is inside.
  int whole(int place) const { return isInside(place) ? place + 1 : place; }
  /// The next or previous character position; a line break or a surrogate pair counts as one
  /// character.
  int next(int place) const;
  int previous(int place) const;
  /// The start of the next or previous word.
  int nextWord(int place) const;
  int previousWord(int place) const;
  /// The start of the word at a position, and its end including trailing blanks; both on the same
  /// line.
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
  // The number of lines for each number of columns.
  std::map<int, int> columns_ = {{0, 1}};
};

}  // namespace win32
