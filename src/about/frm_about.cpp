#include "about/frm_about.h"

#include <array>

namespace about {

using controls::ControlKind;
using controls::ControlLayout;

namespace {

constexpr std::string_view kTitle = "Tallyrex";

constexpr controls::FontLayout kTitleFont = {"MS Sans Serif", 180, true};

constexpr auto kControls = std::to_array<ControlLayout>({
    {.name = "lblTitle", .place = {360, 300, 4680, 480}, .font = kTitleFont},
    {.name = "lblVersion", .place = {360, 840, 4680, 270}},
    {.name = "lblDescription", .place = {360, 1200, 4680, 540}},
    {.kind = ControlKind::Button,
     .name = "cmdOK",
     .caption = "OK",
     .place = {3600, 1980, 1440, 405},
     .cancel = true},
    {.kind = ControlKind::Button,
     .name = "cmdSysInfo",
     .caption = "&System Info...",
     .place = {1980, 1980, 1500, 405}},
});

constexpr controls::WindowLayout kLayout = {
    .name = "frmAbout",
    .caption = "About",
    .place = {1500, 1500, 5520, 3030},
    .controls = kControls,
};

}  // namespace

ProgramVersion programVersion() {
  return {TALLYREX_VERSION_MAJOR, TALLYREX_VERSION_MINOR, TALLYREX_VERSION_REVISION};
}

std::string versionText(const ProgramVersion& version) {
  std::string text =
      "Software Version:  " + std::to_string(version.major) + "." + std::to_string(version.minor);
  if (version.revision != 0) text += "   Revision " + std::to_string(version.revision);
  return text;
}

frmAbout::frmAbout(controls::Desktop& desktop, const ProgramVersion& version,
                   std::function<void()> unload)
    : desktop_(desktop), window_(desktop.createWindow(kLayout)) {
  window_->onClose = unload;
  window_->button("cmdOK").onClick = std::move(unload);
  window_->button("cmdSysInfo").onClick = [this] { showSystemInformation(); };
  writeTexts(version);
}

void frmAbout::writeTexts(const ProgramVersion& version) {
  window_->setCaption("About " + std::string(kTitle));
  window_->control("lblTitle").setCaption(kTitle);
  window_->control("lblVersion").setCaption(versionText(version));
  const controls::VersionNotes notes = desktop_.versionNotes();
  window_->control("lblDescription").setCaption(notes.legalNotice + "  " + notes.company);
}

void frmAbout::showSystemInformation() {
  if (!startSystemInformation())
    desktop_.showMessage(
        {.text = "Cannot Find The External Program For System Information (MSINFO32.EXE)"});
}

// The registry contains the path of the program, or of its folder.
bool frmAbout::startSystemInformation() {
  if (const auto path = desktop_.registryValue("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH"))
    return desktop_.startProgram(*path);
  const auto folder =
      desktop_.registryValue("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
  if (!folder) return false;
  const std::string path = *folder + "\\MSINFO32.EXE";
  return desktop_.fileExists(path) && desktop_.startProgram(path);
}

}  // namespace about
