# The installer for Windows, of the folder that the zip holds: for the current user, without an
# administrator's rights. makensis -DVERSION=... -DFOLDER=... -DOUTPUT=...
Target amd64-unicode
SetCompressor /SOLID lzma
!include LogicLib.nsh
!include MUI2.nsh

!define NAME "Morlek Editor"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\MorlekEditor"

Name "${NAME}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
ManifestDPIAware true
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${ENTRY}" InstallLocation
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey FileDescription "Installs the ${NAME}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright "Copyright (c) 2026 the Morlek Editor developers"

!define MUI_ICON ../icons/morlek-editor.ico
!define MUI_UNICON "${MUI_ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP ../icons/installer.bmp
!define MUI_FINISHPAGE_RUN "$INSTDIR\morlek-editor.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Section
  SetOutPath "$INSTDIR"
  File /r "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\morlek-editor.exe"
  WriteRegStr HKCU "${ENTRY}" DisplayName "${NAME}"
  WriteRegStr HKCU "${ENTRY}" DisplayVersion "${VERSION}"
  WriteRegStr HKCU "${ENTRY}" DisplayIcon "$INSTDIR\morlek-editor.exe"
  WriteRegStr HKCU "${ENTRY}" Publisher "Morlek Editor developers"
  WriteRegStr HKCU "${ENTRY}" InstallLocation "$INSTDIR"
  WriteRegStr HKCU "${ENTRY}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${ENTRY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${ENTRY}" NoModify 1
  WriteRegDWORD HKCU "${ENTRY}" NoRepair 1
SectionEnd

# Only what the installer has put there: people may have chosen a folder with files of their own.
Section Uninstall
  again:
    ClearErrors
    Delete "$INSTDIR\morlek-editor.exe"
    Delete "$INSTDIR\morlek-league.exe"
    IfErrors 0 closed
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Please close the ${NAME} first." /SD IDCANCEL IDRETRY again
    Abort
  closed:
  Delete "$INSTDIR\README.txt"
  RMDir /r "$INSTDIR\licences"
  # What runs here is a copy, and the original takes a moment to end.
  ${For} $0 1 100
    Delete "$INSTDIR\uninstall.exe"
    ${IfNot} ${FileExists} "$INSTDIR\uninstall.exe"
      ${ExitFor}
    ${EndIf}
    Sleep 100
  ${Next}
  RMDir "$INSTDIR"
  RMDir "$LOCALAPPDATA\Programs" # where it is empty now
  Delete "$SMPROGRAMS\${NAME}.lnk"
  DeleteRegKey HKCU "${ENTRY}"
SectionEnd
