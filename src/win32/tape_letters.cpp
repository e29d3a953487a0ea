#include "win32/tape_letters.h"

#include <algorithm>
#include <vector>

#include "win32/ruler.h"

namespace win32 {
namespace {

// The largest magnification of the designed font.
constexpr int kLargest = 3;
constexpr int kTabStop = 8;
// The system measures and draws 8192 units of a text at once.
constexpr std::size_t kLongestPiece = 1024;

int cellOf(HFONT font) {
  return std::max(1, Ruler(font).widthOf(L"0"));
}

bool isTab(std::wstring_view text) {
  return text.front() == L'\t';
}

// A piece ends before a tab, and not inside a surrogate pair.
std::size_t pieceLength(std::wstring_view text) {
  if (isTab(text)) return 1;
  const std::size_t length = std::min(text.find(L'\t'), text.size());
  if (length <= kLongestPiece) return length;
  return IS_HIGH_SURROGATE(text[kLongestPiece - 1]) ? kLongestPiece - 1 : kLongestPiece;
}

}  // namespace

void TapeLetters::fit(const Fonts& fonts, const controls::FontLayout& font, int columns,
                      int width) {
  const int smallest = fonts.heightOf(font);
  int fitting = smallest;
  int tooLarge = columns > 0 ? kLargest * smallest + 1 : smallest + 1;
  while (fitting + 1 < tooLarge) {
    const int height = (fitting + tooLarge) / 2;
    (columns * cellAt(fonts, font, height) <= width ? fitting : tooLarge) = height;
  }
  setHeight(fonts, font, fitting);
}

int TapeLetters::cellAt(const Fonts& fonts, const controls::FontLayout& font, int height) const {
  return height == height_ ? cell_ : cellOf(fonts.make(font, height, false).get());
}

void TapeLetters::setHeight(const Fonts& fonts, const controls::FontLayout& font, int height) {
  if (height == height_) return;
  height_ = height;
  regular_ = fonts.make(font, height, false);
  bold_ = fonts.make(font, height, true);
  cell_ = cellOf(regular_.get());
  const TEXTMETRICW metrics = Ruler(regular_.get()).metrics();
  fixedPitch_ = (metrics.tmPitchAndFamily & TMPF_FIXED_PITCH) == 0;
  // A quarter of the font height between lines makes the column easier to read.
  spaceAbove_ = (height + 7) / 8;
  lineHeight_ = metrics.tmHeight + 2 * spaceAbove_;
}

template <class Visit>
void TapeLetters::eachPiece(std::wstring_view line, const Visit& visit) const {
  int left = 0;
  for (std::size_t start = 0; start < line.size();) {
    const std::wstring_view rest = line.substr(start);
    const std::wstring_view text = rest.substr(0, pieceLength(rest));
    const int stop = kTabStop * cell_;
    const int width = isTab(text) ? stop - left % stop : widthOfPiece(text);
    visit(Piece{start, text, left, width});
    left += width;
    start += text.size();
  }
}

// ASCII characters need not be measured.
bool TapeLetters::standsInCells(std::wstring_view text) const {
  return fixedPitch_ && std::all_of(text.begin(), text.end(),
                                    [](wchar_t unit) { return unit >= L' ' && unit <= L'~'; });
}

int TapeLetters::widthOfPiece(std::wstring_view text) const {
  if (standsInCells(text)) return static_cast<int>(text.size()) * cell_;
  return Ruler(regular_.get()).widthOf(text);
}

int TapeLetters::leftOf(std::wstring_view line, std::size_t character) const {
  int left = 0;
  eachPiece(line.substr(0, character), [&left](const Piece& piece) { left += piece.width; });
  return left;
}

std::size_t TapeLetters::charactersBefore(std::wstring_view line, int x) const {
  std::size_t characters = 0;
  eachPiece(line, [&](const Piece& piece) {
    if (piece.left <= x) characters = piece.start + charactersBefore(piece, x - piece.left);
  });
  return characters;
}

std::size_t TapeLetters::charactersBefore(const Piece& piece, int x) const {
  const std::size_t length = piece.text.size();
  if (x >= piece.width) return length;
  if (isTab(piece.text)) return 2 * x > piece.width ? 1 : 0;
  if (standsInCells(piece.text)) return static_cast<std::size_t>((x + cell_ / 2) / cell_);
  const Ruler ruler(regular_.get());
  std::vector<int> ends(length);
  SIZE size = {};
  GetTextExtentExPointW(ruler.context(), piece.text.data(), static_cast<int>(length), 0, nullptr,
                        ends.data(), &size);
  const auto end = std::upper_bound(ends.begin(), ends.end(), x);
  if (end == ends.end()) return length;
  const int before = end == ends.begin() ? 0 : *(end - 1);
  const auto whole = static_cast<std::size_t>(end - ends.begin());
  return 2 * x > before + *end ? whole + 1 : whole;
}

void TapeLetters::draw(HDC context, POINT start, const RECT& area, std::wstring_view line,
                       bool bold) const {
  const HGDIOBJ before = SelectObject(context, bold ? bold_.get() : regular_.get());
  std::vector<int> cells;
  eachPiece(line, [&](const Piece& piece) {
    const int left = static_cast<int>(start.x) + piece.left;
    if (isTab(piece.text) || left >= area.right || left + piece.width <= area.left) return;
    const bool inCells = standsInCells(piece.text);
    if (inCells && cells.size() < piece.text.size()) cells.resize(piece.text.size(), cell_);
    ExtTextOutW(context, left, start.y, ETO_CLIPPED, &area, piece.text.data(),
                static_cast<UINT>(piece.text.size()), inCells ? cells.data() : nullptr);
  });
  SelectObject(context, before);
}

}  // namespace win32
