; The installer for one user. scripts/windows/package calls it with
;   VERSION   such as 1.0.0
;   ICONS     the folder of program.ico
;   LISTED    the folder of installed.nsh and removed.nsh, which name every file of it
;   OUTPUT    the installer
; Nothing that the user made is touched: lists, plans and kept plans lie in %LOCALAPPDATA%\veldrin, the settings in the
; registry, and both stay when the program goes.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestLongPathAware true
ManifestSupportedOS all
RequestExecutionLevel user

!include MUI2.nsh
!include FileFunc.nsh

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Veldrin"
!define CLASSES "Software\Classes"

Name "Veldrin"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Veldrin"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
BrandingText "Veldrin ${VERSION}"

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 "ProductName" "Veldrin"
VIAddVersionKey /LANG=0 "CompanyName" "The makers of Veldrin"
VIAddVersionKey /LANG=0 "FileDescription" "Installs Veldrin"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "LegalCopyright" "All rights reserved by the owner"

!define MUI_ICON "${ICONS}/program.ico"
!define MUI_UNICON "${ICONS}/program.ico"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_NOAUTOCLOSE
!define MUI_FINISHPAGE_RUN "$INSTDIR\veldrin.exe"

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Japanese"

LangString PROGRAM ${LANG_ENGLISH} "Veldrin"
LangString PROGRAM ${LANG_JAPANESE} "べるどりん君"
LangString GUIDE ${LANG_ENGLISH} "Veldrin User's Guide"
LangString GUIDE ${LANG_JAPANESE} "べるどりん君 ユーザーガイド"
LangString GUIDE_FOLDER ${LANG_ENGLISH} "en"
LangString GUIDE_FOLDER ${LANG_JAPANESE} "ja"
LangString PLAN_TYPE ${LANG_ENGLISH} "Veldrin mission plan"
LangString PLAN_TYPE ${LANG_JAPANESE} "べるどりん ミッションプラン"
LangString LIST_TYPE ${LANG_ENGLISH} "Veldrin machine list"
LangString LIST_TYPE ${LANG_JAPANESE} "べるどりん 機種ファイル"
LangString OPEN_WITH ${LANG_ENGLISH} "Open with Veldrin"
LangString OPEN_WITH ${LANG_JAPANESE} "「べるどりん君」で開く"
LangString THE_PROGRAM ${LANG_ENGLISH} "Veldrin"
LangString THE_PROGRAM ${LANG_JAPANESE} "べるどりん君"
LangString THE_TYPES ${LANG_ENGLISH} "File types"
LangString THE_TYPES ${LANG_JAPANESE} "ファイルの関連づけ"
LangString THE_MENU ${LANG_ENGLISH} "Start menu"
LangString THE_MENU ${LANG_JAPANESE} "スタートメニュー"
LangString RUNNING ${LANG_ENGLISH} "Veldrin is running. Close it, then try again."
LangString RUNNING ${LANG_JAPANESE} "べるどりん君が起動しています。終了してから再試行してください。"

; A program that runs can be neither replaced nor taken away, and a half of each would be left.
!macro WAIT_FOR_END
again:
  IfFileExists "$INSTDIR\veldrin.exe" 0 free
  ClearErrors
  FileOpen $0 "$INSTDIR\veldrin.exe" a
  IfErrors 0 closed
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(RUNNING)" /SD IDCANCEL IDRETRY again
  SetErrorLevel 2
  Quit
closed:
  FileClose $0
free:
!macroend

!macro TIE TYPE WORDS ICON
  WriteRegStr HKCU "${CLASSES}\${TYPE}" "" "${WORDS}"
  WriteRegStr HKCU "${CLASSES}\${TYPE}\DefaultIcon" "" '"$INSTDIR\veldrin.exe",${ICON}'
  WriteRegStr HKCU "${CLASSES}\${TYPE}\Shell\open" "" "$(OPEN_WITH)"
  WriteRegStr HKCU "${CLASSES}\${TYPE}\Shell\open\command" "" '"$INSTDIR\veldrin.exe" "%1"'
!macroend

; Only what this installation has tied.
!macro UNTIE TYPE
  ReadRegStr $0 HKCU "${CLASSES}\${TYPE}\Shell\open\command" ""
  StrCmp $0 '"$INSTDIR\veldrin.exe" "%1"' 0 +2
  DeleteRegKey HKCU "${CLASSES}\${TYPE}"
!macroend

!macro TELL_EXPLORER
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Function .onInit
  !insertmacro WAIT_FOR_END
FunctionEnd

Section "$(THE_PROGRAM)" PROGRAM_SECTION
  SectionIn RO
  SetShellVarContext current
  !insertmacro WAIT_FOR_END
  ; What an older version had and this one has not would stay for ever.
  IfFileExists "$INSTDIR\uninstall.exe" 0 +2
  ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
  !include "${LISTED}/installed.nsh"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "$(PROGRAM)"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" '"$INSTDIR\veldrin.exe",0'
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The makers of Veldrin"
  WriteRegStr HKCU "${UNINSTALL}" "URLInfoAbout" "https://veldrin.example/"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

; Plans bear their machine's name as extension, which the program ties one by one; here is what opens them. Lists are
; the program's where nobody else has the extension, else it is offered.
Section "$(THE_TYPES)" TYPES_SECTION
  !insertmacro TIE "Veldrin.file" "$(PLAN_TYPE)" 1
  !insertmacro TIE "Veldrin.list" "$(LIST_TYPE)" 2
  WriteRegStr HKCU "${CLASSES}\.rat\OpenWithProgids" "Veldrin.list" ""
  ReadRegStr $0 HKCR ".rat" ""
  StrCmp $0 "" 0 +2
  WriteRegStr HKCU "${CLASSES}\.rat" "" "Veldrin.list"
  !insertmacro TELL_EXPLORER
SectionEnd

Section "$(THE_MENU)" MENU_SECTION
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\$(PROGRAM).lnk" "$INSTDIR\veldrin.exe"
  CreateShortcut "$SMPROGRAMS\$(GUIDE).lnk" "$INSTDIR\share\doc\veldrin\guide\$(GUIDE_FOLDER)\index.html"
SectionEnd

Function un.onInit
  !insertmacro WAIT_FOR_END
FunctionEnd

Section "Uninstall"
  SetShellVarContext current
  !include "${LISTED}/removed.nsh"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Veldrin.lnk"
  Delete "$SMPROGRAMS\べるどりん君.lnk"
  Delete "$SMPROGRAMS\Veldrin User's Guide.lnk"
  Delete "$SMPROGRAMS\べるどりん君 ユーザーガイド.lnk"
  !insertmacro UNTIE "Veldrin.file"
  !insertmacro UNTIE "Veldrin.list"
  DeleteRegValue HKCU "${CLASSES}\.rat\OpenWithProgids" "Veldrin.list"
  ReadRegStr $0 HKCU "${CLASSES}\.rat" ""
  StrCmp $0 "Veldrin.list" 0 +2
  DeleteRegValue HKCU "${CLASSES}\.rat" ""
  DeleteRegKey /ifempty HKCU "${CLASSES}\.rat\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.rat"
  DeleteRegKey HKCU "${UNINSTALL}"
  !insertmacro TELL_EXPLORER
SectionEnd
