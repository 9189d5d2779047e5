# The installer's pages, in the product's look. An upgrade goes where the last one went and asks no place.
# The pictures' times are those of the checkout, which have no place in the installer.
SetDateSave off
!define MUI_ICON "../assets/lumora.ico"
!define MUI_UNICON "../assets/lumora.ico"
!define MUI_ABORTWARNING
!define MUI_WELCOMEFINISHPAGE_BITMAP "pictures/side.bmp"
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_RIGHT
!define MUI_HEADERIMAGE_BITMAP "pictures/head.bmp"
!define MUI_HEADERIMAGE_UNBITMAP "pictures/head.bmp"

!define MUI_WELCOMEPAGE_TITLE "Your own photos as a quiet slideshow"
!define MUI_WELCOMEPAGE_TEXT "This installs ${PRODUCT} ${VERSION} for you alone; no administrator is \
  needed.$\r$\n$\r$\nWhen your computer rests, Lumora shows your photos one after the other, with soft transitions, \
  a caption for each of them, and a clock or a countdown to a day that matters.$\r$\n$\r$\nIf Lumora is already \
  installed, your pictures and settings stay as they are."
!insertmacro MUI_PAGE_WELCOME

!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipWhenUpgrading
!define MUI_DIRECTORYPAGE_TEXT_TOP "Lumora keeps its settings beside the program, so choose a folder of your \
  own. The proposed one is fine for nearly everybody."
!insertmacro MUI_PAGE_DIRECTORY
Page custom ShowLookPage LeaveLookPage
!insertmacro MUI_PAGE_INSTFILES

!define MUI_PAGE_CUSTOMFUNCTION_SHOW ShowChoices
!define MUI_FINISHPAGE_TITLE "Lumora is ready"
!define MUI_FINISHPAGE_TEXT "The show starts when the computer has rested for as long as Windows is set to. Any key, \
  any mouse button or a move of the mouse ends it.$\r$\n$\r$\nIn the Start menu, ${PRODUCT} starts it at once, \
  and ${PRODUCT} Settings is where you choose."
!define MUI_FINISHPAGE_TEXT_LARGE
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Use Lumora as my screen saver now"
!define MUI_FINISHPAGE_RUN_FUNCTION UseAsScreenSaver
!define MUI_FINISHPAGE_SHOWREADME ""
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Choose my pictures now"
!define MUI_FINISHPAGE_SHOWREADME_FUNCTION ChoosePictures
!define MUI_FINISHPAGE_NOREBOOTSUPPORT
!insertmacro MUI_PAGE_FINISH

!define MUI_UNCONFIRMPAGE_TEXT_TOP "Lumora will be removed from the following folder. Your pictures are not \
  touched, and the screen saver that you had before comes back."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"
SetDateSave on

Function SkipWhenUpgrading
  ${If} $upgrade == "yes"
    Abort
  ${EndIf}
FunctionEnd

# A choice that is already made cannot be unmade here; an upgrade proposes no other screen saver than the user's.
Function ShowChoices
  Call IsScreenSaver
  ${If} $R0 == "yes"
    EnableWindow $mui.FinishPage.Run 0
  ${ElseIf} $upgrade == "yes"
  ${AndIf} $saverSwitch != "yes"
  ${OrIf} $saverSwitch == "no"
    SendMessage $mui.FinishPage.Run ${BM_SETCHECK} ${BST_UNCHECKED} 0
  ${EndIf}
  ${If} $upgrade == "yes"
    SendMessage $mui.FinishPage.ShowReadme ${BM_SETCHECK} ${BST_UNCHECKED} 0
  ${EndIf}
FunctionEnd

Function ChoosePictures
  SetOutPath "$PICTURES"
  Exec '"$INSTDIR\${PROGRAM}" /C'
FunctionEnd
