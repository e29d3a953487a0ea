#include "win32/help_viewer.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>

#include "win32/late_function.h"
#include "win32/paths.h"
#include "win32/text.h"

namespace win32 {
namespace {

// Newer systems have a small program of this name that only says that the viewer is missing.
bool hasViewer() {
  constexpr DWORD kSmallestViewer = 100'000;
  for (const auto folder : {GetSystemWindowsDirectoryW, GetSystemDirectoryW}) {
    wchar_t buffer[MAX_PATH] = {};
    folder(buffer, MAX_PATH);
    const std::wstring viewer = buffer + std::wstring(L"\\winhlp32.exe");
    WIN32_FILE_ATTRIBUTE_DATA file = {};
    if (GetFileAttributesExW(viewer.c_str(), GetFileExInfoStandard, &file) &&
        file.nFileSizeLow >= kSmallestViewer)
      return true;
  }
  return false;
}

bool isAscii(std::wstring_view text) {
  return std::ranges::all_of(text, [](wchar_t unit) { return unit < 0x80; });
}

// The viewer only supports ASCII paths. Other folders may have a short name.
std::string pathForViewer(const std::string& file) {
  std::wstring path = wide(file);
  if (!isAscii(path)) {
    std::wstring shortPath(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
    shortPath.resize(
        GetShortPathNameW(path.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size())));
    path = shortPath;
  }
  return isAscii(path) ? narrow(path) : std::string();
}

// The viewer would block its caller if the file did not exist.
bool openInViewer(const controls::HelpRequest& request, HWND owner) {
  if (!isFile(wide(request.file)) || !hasViewer()) return false;
  const std::string path = pathForViewer(request.file);
  return !path.empty() && WinHelpA(owner, path.c_str(), static_cast<UINT>(request.command),
                                   static_cast<ULONG_PTR>(request.data));
}

// The page is in the folder of the viewer's file, or in its help folder.
std::wstring findPage(const std::wstring& file, const std::wstring& name) {
  const std::wstring folder = folderOf(file);
  for (const std::wstring& page : {folder + L"\\" + name, folder + L"\\help\\" + name})
    if (isFile(page)) return page;
  return {};
}

bool openInBrowser(const controls::HelpRequest& request) {
  const std::wstring file = wide(request.file);
  const std::wstring name = baseNameOf(file);
  std::wstring page;
  // The system drops the "#" part of an address, so each topic has its own page.
  if (request.data != 0)
    page = findPage(file, name + L"-" + wide(std::to_string(request.data)) + L".html");
  if (page.empty()) page = findPage(file, name + L".html");
  if (page.empty()) return false;
  const auto shellExecute = lateFunction<decltype(&ShellExecuteW)>(L"shell32.dll", "ShellExecuteW");
  if (!shellExecute) return false;
  const auto result = reinterpret_cast<INT_PTR>(
      shellExecute(nullptr, L"open", page.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
  // Numbers up to this are errors.
  constexpr INT_PTR kLastError = 32;
  return result > kLastError;
}

}  // namespace

bool openHelp(const controls::HelpRequest& request, HWND owner) {
  return openInViewer(request, owner) || openInBrowser(request);
}

std::string whereHelpIs(const std::string& file) {
  const std::wstring path = wide(file);
  const std::wstring page = findPage(path, baseNameOf(path) + L".html");
  if (page.empty())
    return "The help was not found. It belongs beside the program, as " + file + ".";
  return "No program was found that shows the help. It can be read in " + narrow(page) + ".";
}

}  // namespace win32
