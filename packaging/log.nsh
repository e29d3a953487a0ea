; ${Log} "text": adds a line with date and time to the file that /LOG names, if any.
!include FileFunc.nsh

Var logFile
Var logText
Var logHandle
Var logDay
Var logMonth
Var logYear
Var logWeekday
Var logHour
Var logMinute
Var logSecond

!macro LOG text
  Push "${text}"
  !ifdef __UNINSTALL__
    Call un.writeLog
  !else
    Call writeLog
  !endif
!macroend
!define Log "!insertmacro LOG"

!macro DEFINE_WRITE_LOG UN
Function ${UN}writeLog
  Pop $logText
  ${If} $logFile == ""
    Return
  ${EndIf}
  ${GetTime} "" "L" $logDay $logMonth $logYear $logWeekday $logHour $logMinute $logSecond
  FileOpen $logHandle "$logFile" a
  FileSeek $logHandle 0 END
  FileWriteUTF16LE /BOM $logHandle "$logYear-$logMonth-$logDay $logHour:$logMinute:$logSecond  $logText$\r$\n"
  FileClose $logHandle
FunctionEnd
!macroend

!insertmacro DEFINE_WRITE_LOG ""
!insertmacro DEFINE_WRITE_LOG "un."
