#include "engine/machine_controls.h"

namespace engine {

MachineControls::MachineControls(const controls::Window& window)
    : desktop(window.desktop()),
      txtEntry(window.textBox("txtEntry")),
      txtTape(window.textBox("txtTape")),
      txtDec(window.textBox("txtDec")),
      chkFloatingDec(window.toggleButton("chkFloatingDec")),
      chkShiftDec(window.toggleButton("chkShiftDec")),
      chkTapeOff(window.toggleButton("chkTapeOff")),
      cmdMemPlus(window.button("cmdMemPlus")),
      mnuWinModes(window.menuItem("mnuWinModes")),
      mnuWinPadTape(window.menuItem("mnuWinPadTape")) {}

}  // namespace engine
