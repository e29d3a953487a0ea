#pragma once

#include <windows.h>

// The program has a message box of this name itself.
#undef MessageBox
