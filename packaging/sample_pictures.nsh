# The two sample pictures: a user may put pictures of the same names in their places, and these are never touched.
# What the installer wrote is known by its size and time, which stand in APP_KEY as "Stamp <name>".

!macro STAMP_OF un
# On the stack: a path; then the file's size and time as one text, empty when there is no file.
Function ${un}StampOf
  Exch $0
  Push $1
  Push $2
  Push $3
  ClearErrors
  FileOpen $1 "$0" r
  ${If} ${Errors}
    StrCpy $0 ""
  ${Else}
    FileSeek $1 0 END $2
    FileClose $1
    GetFileTime "$0" $3 $1
    StrCpy $0 "$2 $3 $1"
  ${EndIf}
  Pop $3
  Pop $2
  Pop $1
  Exch $0
FunctionEnd
!macroend
!insertmacro STAMP_OF ""
!insertmacro STAMP_OF "un."

# Writes a sample where there is none or our own.
!macro INSTALL_SAMPLE name
  ReadRegStr $1 HKCU "${APP_KEY}" "Stamp ${name}"
  Push "$INSTDIR\${name}"
  Call StampOf
  Pop $0
  ${If} $0 == ""
  ${OrIf} $0 == $1
    File "${FOLDER}/${name}"
    Push "$INSTDIR\${name}"
    Call StampOf
    Pop $0
    WriteRegStr HKCU "${APP_KEY}" "Stamp ${name}" "$0"
  ${EndIf}
!macroend

!macro REMOVE_SAMPLE name
  ReadRegStr $1 HKCU "${APP_KEY}" "Stamp ${name}"
  Push "$INSTDIR\${name}"
  Call un.StampOf
  Pop $0
  ${If} $0 == $1
    Delete "$INSTDIR\${name}"
  ${EndIf}
!macroend
