# A Lumora that runs from the folder holds its file: the show is ended, an open settings dialog is the user's.
!define WM_CLOSE_NUMBER 0x0010
# Tries of a tenth of a second for a program to end.
!define END_TRIES 50

!macro CLOSE_PROGRAM un
# "yes" in $R0 when the program's file cannot be replaced now.
Function ${un}IsRunning
  Push $0
  StrCpy $R0 no
  ${If} ${FileExists} "$INSTDIR\${PROGRAM}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${PROGRAM}" a
    ${If} ${Errors}
      StrCpy $R0 yes
    ${Else}
      FileClose $0
    ${EndIf}
  ${EndIf}
  Pop $0
FunctionEnd

# Returns when the program's file is free. Ends the installer, with exit code 3 and nothing changed, when the user
# gives up or nobody can be asked.
Function ${un}CloseProgram
  Push $0
  Push $1
  again:
  Call ${un}IsRunning
  ${If} $R0 == "yes"
    FindWindow $0 "WindowsScreenSaverClass" "${PRODUCT}"
    ${If} $0 == 0
    ${AndIf} ${Silent}
      # The dialog's title begins with a blank. Closing it is its Cancel.
      FindWindow $0 "" " ${PRODUCT}"
    ${EndIf}
    ${If} $0 <> 0
      System::Call "user32::PostMessageW(p $0, i ${WM_CLOSE_NUMBER}, p 0, p 0)"
      ${For} $1 1 ${END_TRIES}
        Sleep 100
        Call ${un}IsRunning
        ${If} $R0 == "no"
          ${ExitFor}
        ${EndIf}
      ${Next}
    ${EndIf}
    ${If} $R0 == "yes"
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Lumora is open. Please close its settings (OK keeps your \
        changes), then go on with Retry." /SD IDCANCEL IDRETRY again
      SetErrorLevel 3
      Quit
    ${EndIf}
  ${EndIf}
  Pop $1
  Pop $0
FunctionEnd
!macroend
!insertmacro CLOSE_PROGRAM ""
!insertmacro CLOSE_PROGRAM "un."
