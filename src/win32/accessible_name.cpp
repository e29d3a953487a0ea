#include <initguid.h>

#include "win32/accessible_name.h"

#include <oleacc.h>

#include <utility>

#include "win32/late_function.h"
#include "win32/live_region.h"
#include "win32/text.h"

namespace win32 {
namespace {

// CLSID_AccPropServices and IID_IAccPropServices, which some compilers only have in a library.
constexpr CLSID kAccPropServices = {
    0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr IID kIAccPropServices = {
    0x6e26e776, 0x04f0, 0x495d, {0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69}};

// The property LiveSetting of the system's automation.
constexpr MSAAPROPID kLiveSetting = {
    0xC12BCD8E, 0x2A8E, 0x4950, {0x8A, 0xE7, 0x36, 0x25, 0x11, 0x1D, 0x58, 0xEB}};

// Without the service, screen readers know what the windows themselves tell.
template <class Body>
void withProperties(const Body& body) {
  const auto initialize = lateFunction<decltype(&CoInitializeEx)>(L"ole32.dll", "CoInitializeEx");
  const auto create = lateFunction<decltype(&CoCreateInstance)>(L"ole32.dll", "CoCreateInstance");
  const auto uninitialize = lateFunction<decltype(&CoUninitialize)>(L"ole32.dll", "CoUninitialize");
  if (!initialize || !create || !uninitialize) return;
  initialize(nullptr, COINIT_APARTMENTTHREADED);
  IAccPropServices* properties = nullptr;
  if (SUCCEEDED(create(kAccPropServices, nullptr, CLSCTX_INPROC_SERVER, kIAccPropServices,
                       reinterpret_cast<void**>(&properties)))) {
    body(*properties);
    properties->Release();
  }
  uninitialize();
}

}  // namespace

// Where names cannot be announced, a screen reader uses the label before the box, even a hidden
// one. The label is destroyed with the window.
AccessibleName::AccessibleName(HWND box, std::string_view name) : box_(box), name_(wide(name)) {
  if (name_.empty()) return;
  const HWND label = CreateWindowExW(0, L"STATIC", name_.c_str(), WS_CHILD, 0, 0, 0, 0,
                                     GetParent(box), nullptr, GetModuleHandleW(nullptr), nullptr);
  SetWindowPos(box, label, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void AccessibleName::announce() {
  const std::wstring name = std::exchange(name_, {});
  if (name.empty()) return;
  withProperties([&](IAccPropServices& properties) {
    properties.SetHwndPropStr(box_, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                              name.c_str());
  });
}

void announceSpoken(HWND window) {
  // What is new is said when the screen reader has finished what it is saying.
  constexpr LONG kPolite = 1;
  VARIANT value = {};
  value.vt = VT_I4;
  value.lVal = kPolite;
  withProperties([&](IAccPropServices& properties) {
    properties.SetHwndProp(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, kLiveSetting,
                           value);
  });
}

}  // namespace win32
