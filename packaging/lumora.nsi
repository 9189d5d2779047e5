# The installer: for one user, without administrator's rights, into a folder where the settings can be written.
# ./package runs it with
#   -DVERSION=1.2.3     the product's version
#   -DFOLDER=path       the program folder, with the times that its files are to have
#   -DTODAY=path        the settings file with the look of today; the one in the program folder has the classic look
#   -DLAUNCHER=path     the program that opens the settings from the Start menu
#   -DOUTPUT=path       the installer to write
#   -DTARGET=stub       for which Windows it is: amd64-unicode or x86-unicode
# What each switch does stands in docs/packages.md.
Unicode true
Target ${TARGET}
SetCompressor /SOLID lzma

!include MUI2.nsh
!include nsDialogs.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define PRODUCT "Lumora Screen Saver"
!define PROGRAM "Lumora.scr"
!define SETTINGS "zbfaone.ini"
!define LAUNCHER_NAME "LumoraSettings.exe"
!define SHOW_ENTRY "$SMPROGRAMS\${PRODUCT}.lnk"
!define SETTINGS_ENTRY "$SMPROGRAMS\${PRODUCT} Settings.lnk"
# The entry in the system's list of apps; it also keeps what the uninstaller has to know.
!define APP_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lumora"

Name "${PRODUCT}"
OutFile "${OUTPUT}"
BrandingText "${PRODUCT} ${VERSION}"
RequestExecutionLevel user
ManifestSupportedOS all
ManifestDPIAware true
InstallDir "$LOCALAPPDATA\Programs\Lumora"
InstallDirRegKey HKCU "${APP_KEY}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1033 "CompanyName" "The Lumora founders"
VIAddVersionKey /LANG=1033 "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey /LANG=1033 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1033 "LegalCopyright" "The Lumora founders"
VIAddVersionKey /LANG=1033 "ProductName" "${PRODUCT}"
VIAddVersionKey /LANG=1033 "ProductVersion" "${VERSION}"

# "yes" when a Lumora was there before; "yes", "no" or nothing as the switch /SAVER= says; the look that a first
# installation begins with, "today" or "classic".
Var upgrade
Var saverSwitch
Var look

!include "screen_saver_setting.nsh"
!include "running_program.nsh"
!include "sample_pictures.nsh"
!include "look_page.nsh"
!include "setup_pages.nsh"

Function .onInit
  ReadRegStr $0 HKCU "${APP_KEY}" "UninstallString"
  ${If} $0 != ""
    StrCpy $upgrade yes
  ${EndIf}
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/SAVER=" $saverSwitch
  ${If} ${Errors}
    StrCpy $saverSwitch ""
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/LOOK=" $look
  ${If} $look != "classic"
    StrCpy $look today
  ${EndIf}
FunctionEnd

# A Lumora in another folder gives way to this one; its settings stay where they are. Where it was the screen saver,
# this one is to be. Ends the installer, with exit code 3 and nothing changed, when the other one cannot be removed.
Function RemoveFromOtherFolder
  ReadRegStr $0 HKCU "${APP_KEY}" "InstallLocation"
  ${If} $0 != ""
  ${AndIf} $0 != $INSTDIR
  ${AndIf} ${FileExists} "$0\uninstall.exe"
    ReadRegStr $1 HKCU "${DESKTOP_KEY}" "SCRNSAVE.EXE"
    ExecWait '"$0\uninstall.exe" /S _?=$0' $2
    ${If} $2 <> 0
      SetErrorLevel 3
      Quit
    ${EndIf}
    ReadRegStr $2 HKCU "${DESKTOP_KEY}" "SCRNSAVE.EXE"
    ${If} $1 != $2
    ${AndIf} $saverSwitch == ""
      StrCpy $saverSwitch yes
    ${EndIf}
    Delete "$0\uninstall.exe"
    RMDir "$0"
  ${EndIf}
FunctionEnd

Section "Lumora" main_section
  Call CloseProgram
  Call RemoveFromOtherFolder
  SetOutPath "$INSTDIR"
  File "${FOLDER}/${PROGRAM}"
  File "${FOLDER}/lumoraHelp.htm"
  File "/oname=${LAUNCHER_NAME}" "${LAUNCHER}"
  # The settings are the user's from the first start on.
  SetOverwrite off
  ${If} $look == "classic"
    File "${FOLDER}/${SETTINGS}"
  ${Else}
    File "/oname=${SETTINGS}" "${TODAY}"
  ${EndIf}
  SetOverwrite on
  !insertmacro INSTALL_SAMPLE "image1.gif"
  !insertmacro INSTALL_SAMPLE "image2.gif"
  WriteUninstaller "$INSTDIR\uninstall.exe"

  # The dialog starts where the pictures are.
  SetOutPath "$PICTURES"
  CreateShortCut "${SHOW_ENTRY}" "$INSTDIR\${PROGRAM}" "/S" "" 0 SW_SHOWNORMAL "" "Shows your pictures now"
  CreateShortCut "${SETTINGS_ENTRY}" "$INSTDIR\${LAUNCHER_NAME}" "" "$INSTDIR\${PROGRAM}" 0 SW_SHOWNORMAL "" \
    "Choose your pictures and how they are shown"

  WriteRegStr HKCU "${APP_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKCU "${APP_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${APP_KEY}" "Publisher" "The Lumora founders"
  WriteRegStr HKCU "${APP_KEY}" "DisplayIcon" "$INSTDIR\${PROGRAM},0"
  WriteRegStr HKCU "${APP_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${APP_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${APP_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${APP_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${APP_KEY}" "NoRepair" 1
  SectionGetSize ${main_section} $0
  WriteRegDWORD HKCU "${APP_KEY}" "EstimatedSize" $0

  # Nobody is asked in silence: a first installation is to be used, an upgrade leaves the user's choice.
  ${If} ${Silent}
    ${If} $saverSwitch == "yes"
      Call UseAsScreenSaver
    ${ElseIf} $saverSwitch != "no"
    ${AndIf} $upgrade != "yes"
      Call UseAsScreenSaver
    ${EndIf}
  ${EndIf}
SectionEnd

# Removes what the program itself has made beside its settings, known by name: the settings file, copies of earlier
# ones, leftovers of a save that was killed, what the show remembers, and the log.
Function un.RemoveSettings
  Delete "$INSTDIR\${SETTINGS}"
  Delete "$INSTDIR\${SETTINGS}.new-*"
  Delete "$INSTDIR\zbfaone.bak"
  Delete "$INSTDIR\zbfaone.bak.new-*"
  Delete "$INSTDIR\zbfaone-?.bak"
  Delete "$INSTDIR\zbfaone-?.bak.new-*"
  Delete "$INSTDIR\lumora.state"
  Delete "$INSTDIR\lumora.state.new-*"
  Delete "$INSTDIR\lumora.log"
  Delete "$INSTDIR\lumora.log.new-*"
FunctionEnd

# Removes exactly what the installer brought.
Section "Uninstall"
  Call un.CloseProgram
  Call un.RestoreScreenSaver

  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/SETTINGS=" $1
  ${If} ${Errors}
    StrCpy $1 keep
    ${If} ${FileExists} "$INSTDIR\${SETTINGS}"
      MessageBox MB_YESNO|MB_ICONQUESTION \
        "Keep your list of pictures and your other settings, for a later installation?" /SD IDYES IDYES keep
      StrCpy $1 remove
      keep:
    ${EndIf}
  ${EndIf}
  ${If} $1 == "remove"
    Call un.RemoveSettings
  ${EndIf}

  !insertmacro REMOVE_SAMPLE "image1.gif"
  !insertmacro REMOVE_SAMPLE "image2.gif"
  Delete "$INSTDIR\${PROGRAM}"
  Delete "$INSTDIR\lumoraHelp.htm"
  Delete "$INSTDIR\${LAUNCHER_NAME}"
  Delete "$INSTDIR\uninstall.exe"
  Delete "${SHOW_ENTRY}"
  Delete "${SETTINGS_ENTRY}"
  DeleteRegKey HKCU "${APP_KEY}"
  # Folders go only when they are empty.
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  ${If} $INSTDIR == "$LOCALAPPDATA\Programs\Lumora"
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
SectionEnd
