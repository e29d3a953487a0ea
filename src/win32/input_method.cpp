#include "win32/input_method.h"

#include <imm.h>

#include "win32/late_function.h"

namespace win32 {
namespace {

constexpr wchar_t kLibrary[] = L"imm32.dll";

}  // namespace

void switchOffComposition(HWND window) {
  static const auto associate =
      lateFunction<decltype(&ImmAssociateContextEx)>(kLibrary, "ImmAssociateContextEx");
  if (associate) associate(window, nullptr, 0);
}

void composeAt(HWND window, POINT place, HFONT font) {
  const auto context = lateFunction<decltype(&ImmGetContext)>(kLibrary, "ImmGetContext");
  const auto release = lateFunction<decltype(&ImmReleaseContext)>(kLibrary, "ImmReleaseContext");
  const auto setPlace =
      lateFunction<decltype(&ImmSetCompositionWindow)>(kLibrary, "ImmSetCompositionWindow");
  const auto setFont =
      lateFunction<decltype(&ImmSetCompositionFontW)>(kLibrary, "ImmSetCompositionFontW");
  if (!context || !release || !setPlace || !setFont) return;
  const HIMC composition = context(window);
  if (!composition) return;
  COMPOSITIONFORM form = {};
  form.dwStyle = CFS_POINT;
  form.ptCurrentPos = place;
  setPlace(composition, &form);
  LOGFONTW letters = {};
  if (GetObjectW(font, sizeof letters, &letters) != 0) setFont(composition, &letters);
  release(window, composition);
}

}  // namespace win32
