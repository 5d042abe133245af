; The installer, for one user and without the administrator. It takes VERSION, FROM (the folder with the program) and TO
; (the installer's file) from scripts/build-windows.
Unicode true
Target amd64-unicode
!include "MUI2.nsh"
!include "FileFunc.nsh"

Name "Korvane"
OutFile "${TO}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Korvane"
InstallDirRegKey HKCU "Software\Korvane" "InstallDir"
SetCompressor /SOLID lzma
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Korvane"
VIAddVersionKey "FileDescription" "Installs Korvane"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "MIT licence"

!define KEY_UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Korvane"
!define KEY_CLASSES "Software\Classes"
!define TYPE "Korvane.Table"

!define MUI_ICON "..\korvane.ico"
!define MUI_UNICON "..\korvane.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\korvane.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Tells the desktop that the programs for files have changed.
!macro TellDesktop
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
    SetOutPath "$INSTDIR"
    ; The settings of an older version stay.
    File /r /x Korvane.ini /x samples "${FROM}\*.*"
    SetOverwrite off
    File "${FROM}\Korvane.ini"
    SetOverwrite on
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Korvane.lnk" "$INSTDIR\korvane.exe"

    WriteRegStr HKCU "${KEY_CLASSES}\${TYPE}" "" "Korvane text database"
    WriteRegStr HKCU "${KEY_CLASSES}\${TYPE}\DefaultIcon" "" "$INSTDIR\korvane.exe,0"
    WriteRegStr HKCU "${KEY_CLASSES}\${TYPE}\shell\open\command" "" '"$INSTDIR\korvane.exe" "%1"'
    WriteRegStr HKCU "${KEY_CLASSES}\.tbx\OpenWithProgids" "${TYPE}" ""
    ; What another program has taken for itself isn't taken away.
    ReadRegStr $0 HKCU "${KEY_CLASSES}\.tbx" ""
    StrCmp $0 "" 0 +2
        WriteRegStr HKCU "${KEY_CLASSES}\.tbx" "" "${TYPE}"

    WriteRegStr HKCU "Software\Korvane" "InstallDir" "$INSTDIR"
    WriteRegStr HKCU "${KEY_UNINSTALL}" "DisplayName" "Korvane"
    WriteRegStr HKCU "${KEY_UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${KEY_UNINSTALL}" "DisplayIcon" "$INSTDIR\korvane.exe"
    WriteRegStr HKCU "${KEY_UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${KEY_UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${KEY_UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${KEY_UNINSTALL}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${KEY_UNINSTALL}" "EstimatedSize" $0
    !insertmacro TellDesktop
SectionEnd

; What the user made is kept: his settings, his record of files, and tables that he saved beside the program.
Section "Uninstall"
    Delete "$INSTDIR\korvane.exe"
    Delete "$INSTDIR\tbx.exe"
    Delete "$INSTDIR\Korvane_Help.rtf"
    Delete "$INSTDIR\*.ico"
    RMDir /r "$INSTDIR\licences"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Korvane.lnk"

    ReadRegStr $0 HKCU "${KEY_CLASSES}\.tbx" ""
    StrCmp $0 "${TYPE}" 0 +2
        DeleteRegValue HKCU "${KEY_CLASSES}\.tbx" ""
    DeleteRegValue HKCU "${KEY_CLASSES}\.tbx\OpenWithProgids" "${TYPE}"
    DeleteRegKey /ifempty HKCU "${KEY_CLASSES}\.tbx\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "${KEY_CLASSES}\.tbx"
    DeleteRegKey HKCU "${KEY_CLASSES}\${TYPE}"
    DeleteRegKey HKCU "${KEY_UNINSTALL}"
    DeleteRegKey HKCU "Software\Korvane"
    !insertmacro TellDesktop
SectionEnd
