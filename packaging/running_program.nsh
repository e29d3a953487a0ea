; waitForProgram and un.waitForProgram: return when $programFile is not running any more.
; With a user there, the installer asks and closes the program. With /S it waits until the user has closed the
; program, since nobody was asked about the tape; /CLOSE closes it at once. Exit code 4 where it stays open.

!include WinMessages.nsh
!define QUERY_LIMITED_INFORMATION 0x1000
!define GENERIC_WRITE 0x40000000
!define SHARE_ALL 7
!define OPEN_EXISTING 3
!define SHARING_VIOLATION 32
!define TRIES_A_SECOND 4
!define SECONDS_TO_CLOSE 10
!define EXIT_STOPPED 1
!define EXIT_STILL_OPEN 4

Var programFile
Var waitSeconds
Var closeProgram

!macro DEFINE_WAIT_FOR_PROGRAM UN

; $0 = 1 while the program runs: Windows lets nobody write into a program that does.
Function ${UN}isProgramRunning
  System::Call 'kernel32::CreateFileW(w "$programFile", i ${GENERIC_WRITE}, i ${SHARE_ALL}, p 0, i ${OPEN_EXISTING}, i 0, p 0) p .r1 ?e'
  Pop $0
  ${If} $1 P<> -1
    System::Call 'kernel32::CloseHandle(p r1)'
    StrCpy $0 0
  ${ElseIf} $0 = ${SHARING_VIOLATION}
    StrCpy $0 1
  ${Else}
    StrCpy $0 0
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

; A disabled window waits for a dialog of its own, which is closed first.
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
      ${If} $2 == $programFile
        System::Call 'user32::PostMessageW(p r1, i ${WM_CLOSE}, p 0, p 0)'
      ${EndIf}
    ${EndIf}
  ${Loop}
FunctionEnd

; Waits for as many seconds as $waitSeconds says; $0 = 0 when the program has ended.
Function ${UN}waitUntilClosed
  IntOp $8 $waitSeconds * ${TRIES_A_SECOND}
  ${Do}
    ${If} $closeProgram = 1
      Call ${UN}askWindowsToClose
    ${EndIf}
    Call ${UN}isProgramRunning
    ${If} $0 = 0
    ${OrIf} $8 <= 0
      ${Break}
    ${EndIf}
    IntOp $8 $8 - 1
    Sleep 250
  ${Loop}
FunctionEnd

Function ${UN}waitForProgram
  Call ${UN}isProgramRunning
  ${If} $0 = 0
    Return
  ${EndIf}
  ${IfNot} ${Silent}
    ${Log} "Asking whether to close $programFile"
    ${If} ${Cmd} `MessageBox MB_OKCANCEL|MB_ICONEXCLAMATION "${NAME} is open, with what is on its tape. Close it and go on?" IDCANCEL`
      ${Log} "Stopped by the user: exit code ${EXIT_STOPPED}"
      SetErrorLevel ${EXIT_STOPPED}
      Quit
    ${EndIf}
    StrCpy $closeProgram 1
    StrCpy $waitSeconds ${SECONDS_TO_CLOSE}
  ${EndIf}
retry:
  ${Log} "Waiting up to $waitSeconds seconds for $programFile to close"
  Call ${UN}waitUntilClosed
  ${If} $0 = 0
    ${Log} "It is closed"
    Return
  ${EndIf}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME} does not close. Close it yourself, then try again." \
    /SD IDCANCEL IDRETRY retry
  ${Log} "It is still open: exit code ${EXIT_STILL_OPEN}"
  SetErrorLevel ${EXIT_STILL_OPEN}
  Quit
FunctionEnd

!macroend

!insertmacro DEFINE_WAIT_FOR_PROGRAM ""
!insertmacro DEFINE_WAIT_FOR_PROGRAM "un."
