; closeRunningProgram and un.closeRunningProgram: return when nothing holds $INSTDIR\${NAME}.exe any more.
; With a user there it is asked first; a program that does not close ends the installer with exit code 2.

!include WinMessages.nsh
!define QUERY_LIMITED_INFORMATION 0x1000
; Tries of a quarter of a second each.
!define MOST_TRIES 40

!macro DEFINE_CLOSE_RUNNING_PROGRAM UN

; $0 = 1 while the program runs: Windows lets nobody write into a program that does.
Function ${UN}isProgramRunning
  StrCpy $0 0
  ${If} ${FileExists} "$INSTDIR\${NAME}.exe"
    ClearErrors
    FileOpen $1 "$INSTDIR\${NAME}.exe" a
    ${If} ${Errors}
      StrCpy $0 1
    ${Else}
      FileClose $1
    ${EndIf}
  ${EndIf}
FunctionEnd

; $2 = the program that the window $1 belongs to, or empty.
Function ${UN}findProgramOfWindow
  StrCpy $2 ""
  System::Call 'user32::GetWindowThreadProcessId(p r1, *i .r3)'
  System::Call 'kernel32::OpenProcess(i ${QUERY_LIMITED_INFORMATION}, i 0, i r3) p .r4'
  ${If} $4 P<> 0
    System::Call 'kernel32::QueryFullProcessImageNameW(p r4, i 0, w .r2, *i ${NSIS_MAX_STRLEN} r5)'
    System::Call 'kernel32::CloseHandle(p r4)'
  ${EndIf}
FunctionEnd

; A window that is disabled waits for a box of its own, which is closed first.
Function ${UN}askWindowsToClose
  StrCpy $1 0
  ${Do}
    System::Call 'user32::FindWindowExW(p 0, p r1, p 0, p 0) p .r1'
    ${If} $1 P= 0
      ${Break}
    ${EndIf}
    System::Call 'user32::IsWindowVisible(p r1) i .r6'
    System::Call 'user32::IsWindowEnabled(p r1) i .r7'
    ${If} $6 <> 0
    ${AndIf} $7 <> 0
      Call ${UN}findProgramOfWindow
      ${If} $2 == "$INSTDIR\${NAME}.exe"
        System::Call 'user32::PostMessageW(p r1, i ${WM_CLOSE}, p 0, p 0)'
      ${EndIf}
    ${EndIf}
  ${Loop}
FunctionEnd

Function ${UN}closeRunningProgram
  Call ${UN}isProgramRunning
  ${If} $0 = 0
    Return
  ${EndIf}
  MessageBox MB_OKCANCEL|MB_ICONEXCLAMATION "${NAME} is open, with what is on its tape. Close it and go on?" \
    /SD IDOK IDOK close
  SetErrorLevel 1
  Quit
close:
  DetailPrint "Closing ${NAME}"
  ${For} $8 1 ${MOST_TRIES}
    Call ${UN}askWindowsToClose
    Sleep 250
    Call ${UN}isProgramRunning
    ${If} $0 = 0
      Return
    ${EndIf}
  ${Next}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME} does not close. Close it yourself, then try again." \
    /SD IDCANCEL IDRETRY close
  SetErrorLevel 2
  Quit
FunctionEnd

!macroend

!insertmacro DEFINE_CLOSE_RUNNING_PROGRAM ""
!insertmacro DEFINE_CLOSE_RUNNING_PROGRAM "un."
