; Installs Tallyrex for the user who runs it, without administrator's rights.
;   makensis -DVERSION=1.0.0 -DFILES=FOLDER -DICON=FILE -DWIZARD=FILE.bmp -DOUTPUT=FILE [-DSIGN=COMMAND] installer.nsi
; FILES holds what is installed, under the names that it gets. Switches, of the uninstaller too:
;   /S           asks nothing                      /LOG=FILE  adds a line for each step to FILE
;   /CLOSE       with /S: closes the program       /WAIT=60   with /S: how many seconds to wait for it to close
;   /D=FOLDER    where to install (the last one)   /SETTINGS  uninstaller: removes the stored settings
; Exit codes: 0 done, 1 stopped by the user, 2 not done, 3 a newer version is installed, 4 the program is still open.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
; The files have the date of the commit.
SetDateSave on
AllowSkipFiles off

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WordFunc.nsh

!define NAME "Tallyrex"
!define PUBLISHER "The Tallyrex authors"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
; A copy of the program under another name keeps settings of its own beside these.
!define ALL_SETTINGS_KEY "Software\${NAME}"
!define SETTINGS_KEY "${ALL_SETTINGS_KEY}\${NAME}"
; Tapes of runs that did not end normally, which the program offers at its next start.
!define ALL_KEPT_TAPES "$LOCALAPPDATA\${NAME}"
!define KEPT_TAPES "${ALL_KEPT_TAPES}\${NAME}"
!define SHORTCUT "$SMPROGRAMS\${NAME}.lnk"
!define EXIT_NOT_DONE 2
!define EXIT_NEWER_INSTALLED 3
!include log.nsh
!include running_program.nsh

Name "${NAME}"
OutFile "${OUTPUT}"
BrandingText "${NAME} ${VERSION}"
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" InstallLocation

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs ${NAME}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey CompanyName "${PUBLISHER}"
VIAddVersionKey LegalCopyright "Copyright 2026 ${PUBLISHER}"
!ifdef SIGN
  !finalize `${SIGN} "%1"`
  !uninstfinalize `${SIGN} "%1"`
!endif

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${WIZARD}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\${NAME}.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start ${NAME}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
UninstPage custom un.showSettingsPage un.leaveSettingsPage
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Var removeSettings
Var settingsBox

!macro DEFINE_READ_SWITCHES UN
Function ${UN}readSwitches
  StrCpy $closeProgram 0
  StrCpy $waitSeconds 60
  ${GetParameters} $0
  ${GetOptions} $0 "/LOG=" $logFile
  ${If} $logFile == ""
    ; The switch may be quoted as a whole.
    ClearErrors
    ${WordFind2X} $0 '"/LOG=' '"' "E+1" $1
    ${IfNot} ${Errors}
      StrCpy $logFile $1
    ${EndIf}
  ${EndIf}
  ${If} $logFile != ""
    System::Call 'kernel32::GetFullPathNameW(w "$logFile", i ${NSIS_MAX_STRLEN}, w .r1, p 0)'
    StrCpy $logFile $1
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/WAIT=" $1
  ${IfNot} ${Errors}
    StrCpy $waitSeconds $1
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/CLOSE" $1
  ${IfNot} ${Errors}
    StrCpy $closeProgram 1
  ${EndIf}
FunctionEnd
!macroend
!insertmacro DEFINE_READ_SWITCHES ""
!insertmacro DEFINE_READ_SWITCHES "un."

Function .onInit
  Call readSwitches
  ${Log} "Installing ${NAME} ${VERSION}"
  Call refuseDowngrade
FunctionEnd

; An entry whose program is missing came with a roaming profile from another computer.
Function refuseDowngrade
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" InstallLocation
  ${IfNot} ${FileExists} "$0\${NAME}.exe"
    Return
  ${EndIf}
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" DisplayVersion
  ${VersionCompare} $0 "${VERSION}" $1
  ${If} $1 = 1
    ${Log} "${NAME} $0 is installed, which is newer: exit code ${EXIT_NEWER_INSTALLED}"
    MessageBox MB_OK|MB_ICONEXCLAMATION "${NAME} $0 is installed, which is newer than ${VERSION}. To go back to \
${VERSION}, uninstall it first; your settings can be kept." /SD IDOK
    SetErrorLevel ${EXIT_NEWER_INSTALLED}
    Quit
  ${EndIf}
FunctionEnd

Function .onInstSuccess
  ${Log} "Done"
FunctionEnd

Function .onInstFailed
  ${Log} "Not done, in $INSTDIR: exit code ${EXIT_NOT_DONE}"
FunctionEnd

Section "${NAME}" installedFiles
  SetShellVarContext current
  Call removeFromOtherFolder
  StrCpy $programFile "$INSTDIR\${NAME}.exe"
  Call waitForProgram
  ${Log} "Copying files to $INSTDIR"
  SetOutPath "$INSTDIR\help"
  File "${FILES}/help/${NAME}.hlp" "${FILES}/help/${NAME}.html" "${FILES}/help/${NAME}-23.html"
  SetOutPath "$INSTDIR"
  File "${FILES}/${NAME}.exe" "${FILES}/readme.txt" "${FILES}/LICENSE.txt" "${FILES}/THIRD-PARTY-NOTICES.txt"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${Log} "Adding the Start menu entry and the entry in the list of installed apps"
  CreateShortcut "${SHORTCUT}" "$INSTDIR\${NAME}.exe"
  Call writeUninstallEntry
SectionEnd

; One entry in the list of installed apps stands for one folder.
Function removeFromOtherFolder
  ReadRegStr $9 HKCU "${UNINSTALL_KEY}" InstallLocation
  ${If} $9 == ""
  ${OrIf} $9 == $INSTDIR
  ${OrIfNot} ${FileExists} "$9\uninstall.exe"
    Return
  ${EndIf}
  StrCpy $programFile "$9\${NAME}.exe"
  Call waitForProgram
  ${Log} "Removing the version in $9"
  ExecWait '"$9\uninstall.exe" /S _?=$9' $1
  ${If} $1 <> 0
    ${Log} "That failed with exit code $1: exit code ${EXIT_NOT_DONE}"
    SetErrorLevel ${EXIT_NOT_DONE}
    Quit
  ${EndIf}
  Delete "$9\uninstall.exe"
  RMDir "$9"
FunctionEnd

Function writeUninstallEntry
  SectionGetSize ${installedFiles} $0
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayName "${NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" Publisher "${PUBLISHER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\${NAME}.exe,0"
  WriteRegStr HKCU "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" EstimatedSize $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoRepair 1
FunctionEnd

Function un.onInit
  Call un.readSwitches
  ${Log} "Removing ${NAME} ${VERSION} from $INSTDIR"
  StrCpy $removeSettings 0
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/SETTINGS" $1
  ${IfNot} ${Errors}
    StrCpy $removeSettings 1
  ${EndIf}
FunctionEnd

Function un.showSettingsPage
  EnumRegKey $0 HKCU "${SETTINGS_KEY}" 0
  ${If} $0 == ""
    Abort
  ${EndIf}
  !insertmacro MUI_HEADER_TEXT "Your settings" "What ${NAME} remembers from one day to the next"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 24u \
    "${NAME} remembers the places of its windows, modes, decimals, colours and the fields of the financial calculator. They are kept for the next time that you install it."
  Pop $0
  ${NSD_CreateCheckbox} 0 32u 100% 12u "&Remove my settings too"
  Pop $settingsBox
  ${If} $removeSettings = 1
    ${NSD_Check} $settingsBox
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function un.leaveSettingsPage
  ${NSD_GetState} $settingsBox $removeSettings
FunctionEnd

; Removes files by name, never a folder with all that is in it: it may hold a user's own files.
Section Uninstall
  SetShellVarContext current
  StrCpy $programFile "$INSTDIR\${NAME}.exe"
  Call un.waitForProgram
  Delete "$INSTDIR\help\${NAME}.hlp"
  Delete "$INSTDIR\help\${NAME}.html"
  Delete "$INSTDIR\help\${NAME}-23.html"
  RMDir "$INSTDIR\help"
  Delete "$INSTDIR\${NAME}.exe"
  Delete "$INSTDIR\readme.txt"
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\THIRD-PARTY-NOTICES.txt"
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  RMDir "$LOCALAPPDATA\Programs"
  Delete "${SHORTCUT}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ${If} $removeSettings = 1
    DeleteRegKey HKCU "${SETTINGS_KEY}"
    DeleteRegKey /ifempty HKCU "${ALL_SETTINGS_KEY}"
    Delete "${KEPT_TAPES}\*.tape"
    RMDir "${KEPT_TAPES}"
    RMDir "${ALL_KEPT_TAPES}"
  ${EndIf}
  ${Log} "Done"
SectionEnd
