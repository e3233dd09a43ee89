; Installs Verlume for one user, without administrator, and takes it away again but for the user's own
; files. tools/windows/build hands over VERSION, FILES (the folder to install) and OUT (the file to make).
Target amd64-unicode
Name "Verlume"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Verlume"
RequestExecutionLevel user
ManifestDPIAware true
SetCompressor /SOLID lzma
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Verlume"
VIAddVersionKey "FileDescription" "Verlume"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The Verlume team"

!include MUI2.nsh
!include FileFunc.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\verlume.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Greek"

LangString RUNNING ${LANG_ENGLISH} "Verlume is running. Close it, then go on."
LangString RUNNING ${LANG_GREEK} "Το Verlume εκτελείται. Κλείστε το και συνεχίστε."

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Verlume"
!define SCHEME "Software\Classes\verlume"

; Windows lets nobody write to a program that runs: asks until it does not. Silently: gives up.
!macro WAIT_FOR_PROGRAM UN
Function ${UN}WaitForProgram
  again:
  IfFileExists "$INSTDIR\verlume.exe" 0 done
  ClearErrors
  FileOpen $0 "$INSTDIR\verlume.exe" a
  IfErrors 0 free
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(RUNNING)" /SD IDCANCEL IDRETRY again
  SetErrorLevel 2
  Quit
  free:
  FileClose $0
  done:
FunctionEnd
!macroend
!insertmacro WAIT_FOR_PROGRAM ""
!insertmacro WAIT_FOR_PROGRAM "un."

Section
  Call WaitForProgram
  SetOutPath "$INSTDIR"
  File /r "${FILES}\*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Verlume.lnk" "$INSTDIR\verlume.exe"

  WriteRegStr HKCU "${SCHEME}" "" "URL:Verlume"
  WriteRegStr HKCU "${SCHEME}" "URL Protocol" ""
  WriteRegStr HKCU "${SCHEME}\DefaultIcon" "" "$INSTDIR\verlume.exe,0"
  WriteRegStr HKCU "${SCHEME}\shell\open\command" "" '"$INSTDIR\verlume.exe" "%1"'

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Verlume"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\verlume.exe,0"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Verlume team"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

; Only what was installed is deleted; the folder goes if it is empty then.
Section "Uninstall"
  Call un.WaitForProgram
  !include "${DELETIONS}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Verlume.lnk"
  DeleteRegKey HKCU "${SCHEME}"
  DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
