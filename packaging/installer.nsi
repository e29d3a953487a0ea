; Installs Tallyrex for the user who runs it, without any administrator's rights.
;   makensis -DVERSION=1.0.0 -DPROGRAM=FILE -DHELP=FOLDER -DREADME=FILE -DICON=FILE
;            -DWIZARD=FILE.bmp -DOUTPUT=FILE installer.nsi
; Switches: /S asks nothing, /D=FOLDER (the last one) chooses the folder. The uninstaller knows /S too,
; and /SETTINGS, which removes the stored settings without asking.
; Exit codes: 1 stopped by the user, 2 not done.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
; Dates of the building machine would make every build another one.
SetDateSave off
AllowSkipFiles off

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh

!define NAME "Tallyrex"
!define PUBLISHER "The Tallyrex developers"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
; A copy of the program under another name keeps settings of its own beside these.
!define ALL_SETTINGS_KEY "Software\${NAME}"
!define SETTINGS_KEY "${ALL_SETTINGS_KEY}\${NAME}"
!define SHORTCUT "$SMPROGRAMS\${NAME}.lnk"
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
VIAddVersionKey LegalCopyright "${PUBLISHER}"

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

Section "${NAME}" installedFiles
  SetShellVarContext current
  Call removeFromOtherFolder
  Call closeRunningProgram
  SetOutPath "$INSTDIR\help"
  File "${HELP}\${NAME}.hlp" "${HELP}\${NAME}.html" "${HELP}\${NAME}-23.html"
  SetOutPath "$INSTDIR"
  File "/oname=${NAME}.exe" "${PROGRAM}"
  File "/oname=readme.txt" "${README}"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "${SHORTCUT}" "$INSTDIR\${NAME}.exe"
  Call writeUninstallEntry
SectionEnd

; One entry in the system's list stands for one folder.
Function removeFromOtherFolder
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" InstallLocation
  ${If} $0 != ""
  ${AndIf} $0 != $INSTDIR
  ${AndIf} ${FileExists} "$0\uninstall.exe"
    ExecWait '"$0\uninstall.exe" /S _?=$0' $1
    ${If} $1 <> 0
      SetErrorLevel 2
      Quit
    ${EndIf}
    Delete "$0\uninstall.exe"
    RMDir "$0"
  ${EndIf}
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

; Removes what was installed by name, never a folder with all that is in it: it may hold a user's own files.
Section Uninstall
  SetShellVarContext current
  Call un.closeRunningProgram
  Delete "$INSTDIR\help\${NAME}.hlp"
  Delete "$INSTDIR\help\${NAME}.html"
  Delete "$INSTDIR\help\${NAME}-23.html"
  RMDir "$INSTDIR\help"
  Delete "$INSTDIR\${NAME}.exe"
  Delete "$INSTDIR\readme.txt"
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  RMDir "$LOCALAPPDATA\Programs"
  Delete "${SHORTCUT}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ${If} $removeSettings = 1
    DeleteRegKey HKCU "${SETTINGS_KEY}"
    DeleteRegKey /ifempty HKCU "${ALL_SETTINGS_KEY}"
  ${EndIf}
SectionEnd
