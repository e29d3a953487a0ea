#include "support/kept_state.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "support/input.h"
#include "support/kept_clipboard.h"
#include "support/registry_key.h"

namespace support {
namespace {

constexpr wchar_t kRecord[] = L"Software\\TallyrexTests";
// The desktop and its colors end with the user's session; so does their record, which no disk sees.
constexpr wchar_t kDesktop[] = L"Desktop";
constexpr wchar_t kColors[] = L"Colors";
constexpr wchar_t kValues[] = L"Values";
constexpr wchar_t kClipboard[] = L"Clipboard";
// Written last: nothing changes before.
constexpr wchar_t kWhole[] = L"Whole";
// A recorded value of the registry: where it is, and what it was.
constexpr wchar_t kRoot[] = L"Root";
constexpr wchar_t kKey[] = L"Key";
constexpr wchar_t kName[] = L"Name";
constexpr wchar_t kBefore[] = L"Before";
constexpr wchar_t kKeyWasMissing[] = L"KeyWasMissing";

RegistryKey makePart(const wchar_t* part, DWORD options) {
  const RegistryKey record = RegistryKey::make(HKEY_CURRENT_USER, kRecord);
  return RegistryKey::make(record.get(), part, options);
}

RegistryKey openPart(const std::wstring& part) {
  return RegistryKey::open(HKEY_CURRENT_USER, kRecord + (L"\\" + part));
}

// The record itself goes with its last part.
void forgetPart(const std::wstring& part) {
  RegDeleteTreeW(HKEY_CURRENT_USER, (kRecord + (L"\\" + part)).c_str());
  RegDeleteKeyW(HKEY_CURRENT_USER, kRecord);
}

// A test that is killed leaves keys down.
void releaseKeys() {
  constexpr std::array kHeld = {VK_SHIFT, VK_CONTROL, VK_MENU};
  Inputs inputs;
  for (const int key : kHeld)
    if (GetAsyncKeyState(key) < 0) keyUp(inputs, static_cast<WORD>(key));
  if (GetAsyncKeyState(VK_LBUTTON) < 0) inputs.push_back(mouseInput(MOUSEEVENTF_LEFTUP));
  if (!inputs.empty()) send(std::move(inputs));
}

HKEY rootOf(const RegistryKey& record) {
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(record.readNumber(kRoot))));
}

// False if this user may not write there.
bool putBackValue(const RegistryKey& record) {
  if (record.readNumber(kWhole) == 0) return true;
  const std::wstring key = record.readText(kKey).value_or(L"");
  const std::wstring name = record.readText(kName).value_or(L"");
  if (record.readNumber(kKeyWasMissing) != 0) {
    RegDeleteKeyW(rootOf(record), key.c_str());
    return !RegistryKey::open(rootOf(record), key);
  }
  const RegistryKey open = RegistryKey::open(rootOf(record), key, KEY_READ | KEY_WRITE);
  if (auto before = record.read(kBefore)) {
    before->name = name;
    return open.write(*before);
  }
  open.remove(name);
  return open && !open.read(name);
}

}  // namespace

void keepDesktop() {
  const RegistryKey desktop = makePart(kDesktop, REG_OPTION_VOLATILE);
  writeClipboardTo(RegistryKey::make(desktop.get(), kClipboard, REG_OPTION_VOLATILE));
  desktop.write(registryNumber(kWhole, 1));
}

void putBackDesktop() {
  const RegistryKey desktop = openPart(kDesktop);
  if (desktop.readNumber(kWhole) != 0) {
    releaseKeys();
    readClipboardFrom(RegistryKey::open(desktop.get(), kClipboard));
  }
  forgetPart(kDesktop);
}

void keepSystemColor(int index) {
  const RegistryKey colors = makePart(kColors, REG_OPTION_VOLATILE);
  const std::wstring name = std::to_wstring(index);
  if (!colors.read(name)) colors.write(registryNumber(name, GetSysColor(index)));
}

void putBackSystemColors() {
  const RegistryKey colors = openPart(kColors);
  if (!colors) return;
  for (const RegistryValue& value : colors.values()) {
    const int index = std::stoi(value.name);
    const COLORREF color = colors.readNumber(value.name);
    SetSysColors(1, &index, &color);
  }
  forgetPart(kColors);
}

void keepRegistryValue(HKEY root, const std::wstring& key, const std::wstring& name) {
  const RegistryKey values = makePart(kValues, 0);
  std::wstring place = key + L"/" + name;
  std::ranges::replace(place, L'\\', L'/');
  if (RegistryKey::open(values.get(), place)) return;
  const RegistryKey record = RegistryKey::make(values.get(), place);
  const RegistryKey open = RegistryKey::open(root, key);
  record.write(registryNumber(kKeyWasMissing, !open));
  if (auto before = open.read(name)) {
    before->name = kBefore;
    record.write(*before);
  }
  record.write(registryNumber(kRoot, static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(root))));
  record.write(registryText(kKey, key));
  record.write(registryText(kName, name));
  record.write(registryNumber(kWhole, 1));
}

void putBackRegistryValues() {
  const RegistryKey values = openPart(kValues);
  if (!values) return;
  for (const std::wstring& place : values.keys()) {
    const RegistryKey record = RegistryKey::open(values.get(), place);
    if (!putBackValue(record))
      throw std::runtime_error("only an administrator can put back a value of the registry");
    RegDeleteKeyW(values.get(), place.c_str());
  }
  forgetPart(kValues);
}

void putBackEverything() {
  putBackRegistryValues();
  putBackSystemColors();
  putBackDesktop();
}

bool isAnythingKept() {
  return static_cast<bool>(RegistryKey::open(HKEY_CURRENT_USER, kRecord));
}

}  // namespace support
