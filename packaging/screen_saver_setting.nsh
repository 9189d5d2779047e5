# The user's screen-saver setting: taken over by the installer, given back by the uninstaller. What was there
# before Lumora stands in APP_KEY as PreviousScreenSaver, PreviousActive and PreviousTimeOut, each empty when there
# was none, behind the mark PreviousKnown.
!define DESKTOP_KEY "Control Panel\Desktop"
!define SPI_SETSCREENSAVETIMEOUT 15
!define SPI_SETSCREENSAVEACTIVE 17
!define SPIF_UPDATE_AND_TELL 3
# Seconds without input until the show starts, where the user has no time-out.
!define FIRST_TIME_OUT 600

!macro TELL_SYSTEM action value
  System::Call "user32::SystemParametersInfoW(i ${action}, i ${value}, p 0, i ${SPIF_UPDATE_AND_TELL})"
!macroend

!macro IS_SCREEN_SAVER un
# "yes" in $R0 when the setting names this Lumora, however the path is written.
Function ${un}IsScreenSaver
  Push $0
  Push $1
  StrCpy $R0 no
  ReadRegStr $0 HKCU "${DESKTOP_KEY}" "SCRNSAVE.EXE"
  ${If} $0 != ""
    ${If} $0 == "$INSTDIR\${PROGRAM}"
      StrCpy $R0 yes
    ${Else}
      # Both are empty when the file is gone.
      GetFullPathName /SHORT $0 "$0"
      GetFullPathName /SHORT $1 "$INSTDIR\${PROGRAM}"
      ${If} $0 == $1
      ${AndIf} $0 != ""
        StrCpy $R0 yes
      ${EndIf}
    ${EndIf}
  ${EndIf}
  Pop $1
  Pop $0
FunctionEnd
!macroend
!insertmacro IS_SCREEN_SAVER ""
!insertmacro IS_SCREEN_SAVER "un."

# Makes Lumora the user's screen saver.
Function UseAsScreenSaver
  Push $0
  Push $1
  Call IsScreenSaver
  ReadRegStr $0 HKCU "${DESKTOP_KEY}" "ScreenSaveTimeOut"
  ${If} $R0 != "yes"
    ReadRegStr $1 HKCU "${DESKTOP_KEY}" "SCRNSAVE.EXE"
    WriteRegStr HKCU "${APP_KEY}" "PreviousScreenSaver" "$1"
    ReadRegStr $1 HKCU "${DESKTOP_KEY}" "ScreenSaveActive"
    WriteRegStr HKCU "${APP_KEY}" "PreviousActive" "$1"
    WriteRegDWORD HKCU "${APP_KEY}" "PreviousKnown" 1

    # A path with a blank goes in as its short form: nobody promises that every Windows puts this path in quotes
    # before it starts the program.
    Push "$INSTDIR\${PROGRAM}"
    Call HasBlank
    Pop $R0
    StrCpy $1 "$INSTDIR\${PROGRAM}"
    ${If} $R0 == "yes"
      GetFullPathName /SHORT $1 "$1"
    ${EndIf}
    WriteRegStr HKCU "${DESKTOP_KEY}" "SCRNSAVE.EXE" "$1"
  ${EndIf}
  !insertmacro TELL_SYSTEM ${SPI_SETSCREENSAVEACTIVE} 1
  WriteRegStr HKCU "${DESKTOP_KEY}" "ScreenSaveActive" "1"
  ${If} $0 == ""
  ${OrIf} $0 == "0"
    WriteRegStr HKCU "${APP_KEY}" "PreviousTimeOut" "$0"
    WriteRegDWORD HKCU "${APP_KEY}" "TimeOutIsOurs" 1
    !insertmacro TELL_SYSTEM ${SPI_SETSCREENSAVETIMEOUT} ${FIRST_TIME_OUT}
    WriteRegStr HKCU "${DESKTOP_KEY}" "ScreenSaveTimeOut" "${FIRST_TIME_OUT}"
  ${EndIf}
  Pop $1
  Pop $0
FunctionEnd

# On the stack: a text; then "yes" when there is a blank in it, else "no".
Function HasBlank
  Exch $0
  Push $1
  Push $2
  StrCpy $1 0
  ${Do}
    StrCpy $2 $0 1 $1
    ${If} $2 == " "
    ${OrIf} $2 == ""
      ${ExitDo}
    ${EndIf}
    IntOp $1 $1 + 1
  ${Loop}
  StrCpy $0 no
  ${If} $2 == " "
    StrCpy $0 yes
  ${EndIf}
  Pop $2
  Pop $1
  Exch $0
FunctionEnd

!macro RESTORE_VALUE name value
  ${If} "${value}" == ""
    DeleteRegValue HKCU "${DESKTOP_KEY}" "${name}"
  ${Else}
    WriteRegStr HKCU "${DESKTOP_KEY}" "${name}" "${value}"
  ${EndIf}
!macroend

# Gives the setting back as it was, when it still is ours. A choice of the user's since then stays.
Function un.RestoreScreenSaver
  Call un.IsScreenSaver
  ${If} $R0 != "yes"
    Return
  ${EndIf}
  ReadRegStr $0 HKCU "${APP_KEY}" "PreviousScreenSaver"
  !insertmacro RESTORE_VALUE "SCRNSAVE.EXE" $0
  ReadRegDWORD $0 HKCU "${APP_KEY}" "PreviousKnown"
  ${If} $0 == 1
    ReadRegStr $0 HKCU "${APP_KEY}" "PreviousActive"
    ${If} $0 == "0"
      !insertmacro TELL_SYSTEM ${SPI_SETSCREENSAVEACTIVE} 0
    ${EndIf}
    !insertmacro RESTORE_VALUE "ScreenSaveActive" $0
  ${EndIf}
  ReadRegDWORD $0 HKCU "${APP_KEY}" "TimeOutIsOurs"
  ReadRegStr $1 HKCU "${DESKTOP_KEY}" "ScreenSaveTimeOut"
  ${If} $0 == 1
  ${AndIf} $1 == "${FIRST_TIME_OUT}"
    ReadRegStr $0 HKCU "${APP_KEY}" "PreviousTimeOut"
    !insertmacro TELL_SYSTEM ${SPI_SETSCREENSAVETIMEOUT} 0
    !insertmacro RESTORE_VALUE "ScreenSaveTimeOut" $0
  ${EndIf}
FunctionEnd
