#include "shell/help_file.h"

namespace shell {

std::string findHelpFile(controls::Desktop& desktop) {
  const std::string folder = desktop.programFolder();
  const std::string file = desktop.programName() + ".hlp";
  // Only a drive's root ends in a backslash.
  if (folder.size() == 3) return folder + file;
  const std::string inHelpFolder = folder + "\\help\\" + file;
  return desktop.fileExists(inHelpFolder) ? inHelpFolder : folder + "\\" + file;
}

}  // namespace shell
