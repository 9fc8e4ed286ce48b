; The installer: program, start menu, file types, uninstaller. Called by paket/windows/baue with
; ORDNER (what to install), DATEILISTE (how to remove it), VERSION, SYMBOL (.ico) and ZIEL (what to write). Silent: /S, folder: /D=C:\...
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
!include MUI2.nsh
!include x64.nsh
!include FileFunc.nsh

!define SCHLUESSEL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zarwik"
!define ARTEN "Software\Classes"

Name "Zarwik"
OutFile "${ZIEL}"
InstallDir "$PROGRAMFILES64\Zarwik"
InstallDirRegKey HKLM "${SCHLUESSEL}" "InstallLocation"
RequestExecutionLevel admin
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1031 "ProductName" "Zarwik"
VIAddVersionKey /LANG=1031 "FileDescription" "Zarwik einrichten"
VIAddVersionKey /LANG=1031 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1031 "LegalCopyright" "MIT-Lizenz"

!define MUI_ICON "${SYMBOL}"
!define MUI_UNICON "${SYMBOL}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\zarwik.exe"
!insertmacro MUI_PAGE_LICENSE "${ORDNER}\lizenzen\Zarwik.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "German"

!macro Datei ENDUNG ART TEXT
  WriteRegStr HKLM "${ARTEN}\${ART}" "" "${TEXT}"
  WriteRegStr HKLM "${ARTEN}\${ART}\DefaultIcon" "" "$INSTDIR\zarwik.exe,0"
  WriteRegStr HKLM "${ARTEN}\${ART}\shell\open\command" "" '"$INSTDIR\zarwik.exe" "%1"'
  WriteRegStr HKLM "${ARTEN}\${ENDUNG}\OpenWithProgids" "${ART}" ""
  ; Who has chosen another program for these files keeps it.
  ReadRegStr $0 HKLM "${ARTEN}\${ENDUNG}" ""
  StrCmp $0 "" 0 +2
  WriteRegStr HKLM "${ARTEN}\${ENDUNG}" "" "${ART}"
!macroend

!macro un.Datei ENDUNG ART
  DeleteRegKey HKLM "${ARTEN}\${ART}"
  DeleteRegValue HKLM "${ARTEN}\${ENDUNG}\OpenWithProgids" "${ART}"
  DeleteRegKey /ifempty HKLM "${ARTEN}\${ENDUNG}\OpenWithProgids"
  ReadRegStr $0 HKLM "${ARTEN}\${ENDUNG}" ""
  StrCmp $0 "${ART}" 0 +2
  DeleteRegValue HKLM "${ARTEN}\${ENDUNG}" ""
  DeleteRegKey /ifempty HKLM "${ARTEN}\${ENDUNG}"
!macroend

; Explorer asks again what opens which file.
!macro Bekannt
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Function .onInit
  ${IfNot} ${RunningX64}
    MessageBox MB_ICONSTOP "Zarwik braucht ein Windows mit 64 Bit." /SD IDOK
    Abort
  ${EndIf}
  SetRegView 64
FunctionEnd
Function un.onInit
  SetRegView 64
FunctionEnd

Section
  SetShellVarContext all
  ; An older version may have files that this one does not bring; it knows which.
  IfFileExists "$INSTDIR\entfernen.exe" 0 +2
  ExecWait '"$INSTDIR\entfernen.exe" /S _?=$INSTDIR'
  SetOutPath "$INSTDIR"
  File /r "${ORDNER}\*"
  WriteUninstaller "$INSTDIR\entfernen.exe"
  CreateShortcut "$SMPROGRAMS\Zarwik.lnk" "$INSTDIR\zarwik.exe"
  !insertmacro Datei ".EIN" "Zarwik.Steuerdatei" "Steuerdatei der Ausgleichung"
  !insertmacro Datei ".ZRW" "Zarwik.Bild" "Zarwik-Netzplan"
  WriteRegStr HKLM "Software\Microsoft\Windows\CurrentVersion\App Paths\zarwik.exe" "" "$INSTDIR\zarwik.exe"
  WriteRegStr HKLM "${SCHLUESSEL}" "DisplayName" "Zarwik"
  WriteRegStr HKLM "${SCHLUESSEL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${SCHLUESSEL}" "DisplayIcon" "$INSTDIR\zarwik.exe"
  WriteRegStr HKLM "${SCHLUESSEL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${SCHLUESSEL}" "UninstallString" '"$INSTDIR\entfernen.exe"'
  WriteRegStr HKLM "${SCHLUESSEL}" "QuietUninstallString" '"$INSTDIR\entfernen.exe" /S'
  WriteRegDWORD HKLM "${SCHLUESSEL}" "NoModify" 1
  WriteRegDWORD HKLM "${SCHLUESSEL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKLM "${SCHLUESSEL}" "EstimatedSize" $0
  !insertmacro Bekannt
SectionEnd

Section Uninstall
  SetShellVarContext all
  ; Only what was put there: what the user keeps in these folders stays.
  !include "${DATEILISTE}"
  Delete "$INSTDIR\entfernen.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Zarwik.lnk"
  !insertmacro un.Datei ".EIN" "Zarwik.Steuerdatei"
  !insertmacro un.Datei ".ZRW" "Zarwik.Bild"
  DeleteRegKey HKLM "Software\Microsoft\Windows\CurrentVersion\App Paths\zarwik.exe"
  DeleteRegKey HKLM "${SCHLUESSEL}"
  !insertmacro Bekannt
SectionEnd
