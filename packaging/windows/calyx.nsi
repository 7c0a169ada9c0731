; The installer for one user: no administrator's rights, and a folder in which the wizard may write.
; Defined on the command line: VERSION, three numbers; FOLDER, the program folder; SETUP, the file to
; make; REMOVAL, a file of instructions that take away what is installed; SIGN, a command to which
; a program file is added.
Unicode true
Target amd64-unicode
!include MUI2.nsh

Name "Calyx"
OutFile "${SETUP}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Calyx"
!define settings "Software\Calyx"
InstallDirRegKey HKCU "${settings}" "Folder"
SetCompressor /SOLID lzma
AllowSkipFiles off
ManifestDPIAware true
BrandingText " "
!uninstfinalize '${SIGN} "%1"'

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Calyx"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Calyx setup"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON calyx.ico
!define MUI_UNICON calyx.ico
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\start_calyx.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE French
!insertmacro MUI_LANGUAGE German
!insertmacro MUI_LANGUAGE Japanese
!insertmacro MUI_LANGUAGE SimpChinese

!define entry "Software\Microsoft\Windows\CurrentVersion\Uninstall\Calyx"

; A program that runs cannot be replaced: nothing is touched before it has ended. Without a user who
; ends it the exit status is 2.
!macro wait_for_end PROGRAM
    StrCpy $0 "$INSTDIR\bin\${PROGRAM}"
    ${Do}
        ${IfNot} ${FileExists} $0
            ${Break}
        ${EndIf}
        ClearErrors
        FileOpen $1 $0 a
        ${IfNot} ${Errors}
            FileClose $1
            ${Break}
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(^FileError_NoIgnore)" /SD IDCANCEL IDCANCEL`
            SetErrorLevel 2
            Quit
        ${EndIf}
    ${Loop}
!macroend
!macro wait_for_programs
    !insertmacro wait_for_end calyx.exe
    !insertmacro wait_for_end Bexlor.exe
    !insertmacro wait_for_end start_calyx.exe
!macroend

Section
    !insertmacro wait_for_programs
    SetOutPath $INSTDIR
    File "${FOLDER}\compilers.txt"
    File /r "${FOLDER}\bin"
    File /r "${FOLDER}\images"
    ; The user may have changed what is there.
    SetOverwrite off
    File /r "${FOLDER}\TemplatePersonalities"
    File /r "${FOLDER}\ForceIncludeFiles"
    File /r "${FOLDER}\SubstituteHeaders"
    SetOverwrite on
    WriteUninstaller "$INSTDIR\uninstall.exe"

    SetOutPath "$INSTDIR\bin" ; the start folder of the shortcut
    CreateShortcut "$SMPROGRAMS\Calyx.lnk" "$INSTDIR\bin\start_calyx.exe"

    WriteRegStr HKCU "${settings}" "Folder" $INSTDIR
    WriteRegStr HKCU "${entry}" "DisplayName" "Calyx"
    WriteRegStr HKCU "${entry}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${entry}" "Publisher" "Vantor"
    WriteRegStr HKCU "${entry}" "DisplayIcon" "$INSTDIR\bin\calyx.exe"
    WriteRegStr HKCU "${entry}" "InstallLocation" $INSTDIR
    WriteRegStr HKCU "${entry}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${entry}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${entry}" "NoModify" 1
    WriteRegDWORD HKCU "${entry}" "NoRepair" 1
    SectionGetSize 0 $0
    WriteRegDWORD HKCU "${entry}" "EstimatedSize" $0
SectionEnd

; Only what has been installed goes. The catalogue, the settings and everything else that the user
; has put into the folder stay, and with them the folders that hold it.
Section Uninstall
    !insertmacro wait_for_programs
    SetOutPath $TEMP ; a folder that is in use cannot be removed
    !include "${REMOVAL}"
    Delete "$INSTDIR\bin\compile.bat"
    Delete "$INSTDIR\bin\stdout.log"
    Delete "$INSTDIR\bin\stderr.log"
    Delete "$INSTDIR\uninstall.exe"
    Delete "$SMPROGRAMS\Calyx.lnk"
    RMDir "$INSTDIR\bin"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${entry}"
    DeleteRegKey HKCU "${settings}"
SectionEnd
