# The page that asks how pictures are to look: two pictures of the show, each with its choice below. Settings that are
# there already are the user's, so an upgrade asks nothing, nor does an installation over settings that were kept.
Var lookToday
Var lookClassic
Var lookTodayBitmap
Var lookClassicBitmap

# A picture of the show with its name and a sentence below, from `left` on in the page's units.
!macro LOOK_CHOICE look left file name sentence
  ${NSD_CreateBitmap} ${left}u 14u 140u 73u ""
  Pop $0
  ${NSD_SetStretchedImage} $0 "$PLUGINSDIR\${file}" $look${look}Bitmap
  ${NSD_OnClick} $0 Choose${look}
  ${NSD_CreateRadioButton} ${left}u 91u 140u 11u "${name}"
  Pop $look${look}
  ${NSD_CreateLabel} ${left}u 104u 140u 26u "${sentence}"
  Pop $0
!macroend

Function ShowLookPage
  ${If} $upgrade == "yes"
  ${OrIf} ${FileExists} "$INSTDIR\${SETTINGS}"
    Abort
  ${EndIf}
  InitPluginsDir
  SetDateSave off  # the dates of a checkout are no part of a package
  File "/oname=$PLUGINSDIR\look_today.bmp" "pictures/look_today.bmp"
  File "/oname=$PLUGINSDIR\look_classic.bmp" "pictures/look_classic.bmp"
  SetDateSave on
  !insertmacro MUI_HEADER_TEXT "How should your pictures look?" "You can change this at any time in the settings."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 11u "Lumora begins with:"
  Pop $0
  !insertmacro LOOK_CHOICE Today 0 "look_today.bmp" "&Today" "Whole pictures on a soft surround; they fade into \
    each other and glide slowly."
  !insertmacro LOOK_CHOICE Classic 158 "look_classic.bmp" "&Classic" "Pictures in their own size on a color, with \
    nine transitions."
  ${If} $look == "classic"
    ${NSD_Check} $lookClassic
    ${NSD_SetFocus} $lookClassic
  ${Else}
    ${NSD_Check} $lookToday
    ${NSD_SetFocus} $lookToday
  ${EndIf}
  nsDialogs::Show
  ${NSD_FreeImage} $lookTodayBitmap
  ${NSD_FreeImage} $lookClassicBitmap
FunctionEnd

Function ChooseToday
  Pop $0
  ${NSD_Check} $lookToday
  ${NSD_Uncheck} $lookClassic
FunctionEnd

Function ChooseClassic
  Pop $0
  ${NSD_Check} $lookClassic
  ${NSD_Uncheck} $lookToday
FunctionEnd

Function LeaveLookPage
  StrCpy $look today
  ${NSD_GetState} $lookClassic $0
  ${If} $0 == ${BST_CHECKED}
    StrCpy $look classic
  ${EndIf}
FunctionEnd
