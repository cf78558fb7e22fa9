; The installer: for one user, without an administrator. All that is the user's lies in the program folder, too, and
; stays there, whatever is installed over it; the uninstaller asks. script/package-windows calls makensis with
;   BUILT    the folder of installer.nsh
;   FILES    the script that file_list.py has written: what is installed
;   OUTPUT   the installer to be made
Target amd64-unicode
Unicode true
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS Win10
SetCompressor /SOLID lzma
; Files get the time of the installation: times in the build do not matter.
SetDateSave off

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include "${BUILT}/installer.nsh"
!include "${FILES}"

!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Ambertask"

Name Ambertask
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Ambertask"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" InstallLocation
BrandingText "Ambertask ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 ProductName Ambertask
VIAddVersionKey /LANG=0 ProductVersion "${VERSION}"
VIAddVersionKey /LANG=0 CompanyName "Ambertask developers"
VIAddVersionKey /LANG=0 FileDescription "Installs Ambertask"
VIAddVersionKey /LANG=0 FileVersion "${VERSION}"
VIAddVersionKey /LANG=0 LegalCopyright "${COPYRIGHT}"

!define MUI_ICON "${ICON_FILE}"
!define MUI_UNICON "${ICON_FILE}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\Ambertask.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE Arabic
!insertmacro MUI_LANGUAGE French
!insertmacro MUI_LANGUAGE German
!insertmacro MUI_LANGUAGE SimpChinese
!insertmacro MUI_LANGUAGE Spanish
!include installer_texts.nsh

; A copy that runs in the program folder has an event that it waits for, named after the folder: small letters, and slashes,
; as a backslash is none of a name. It goes with the copy.
!macro END_RUNNING_COPY un
  Function ${un}EndRunningCopy
    StrCpy $0 $INSTDIR
    System::Call 'user32::CharLowerW(w r0 r0)'
    StrCpy $1 ""
    StrLen $2 $0
    ${For} $3 0 $2
      StrCpy $4 $0 1 $3
      ${If} $4 == "\"
        StrCpy $4 "/"
      ${EndIf}
      StrCpy $1 "$1$4"
    ${Next}
    StrCpy $5 0
    ${Do}
      System::Call 'kernel32::OpenEventW(i 2, i 0, w "Local\Ambertask-end-$1") p .r6'
      ${If} $6 P= 0
        ${Break}
      ${EndIf}
      ${If} $5 = 0
        MessageBox MB_OKCANCEL|MB_ICONINFORMATION "$(IsRunning)" /SD IDOK IDOK +2
        Abort
      ${EndIf}
      System::Call 'kernel32::SetEvent(p r6)'
      System::Call 'kernel32::CloseHandle(p r6)'
      Sleep 200
      IntOp $5 $5 + 1
      ${If} $5 > 100
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(DoesNotEnd)" /SD IDCANCEL IDRETRY +2
        Abort
        StrCpy $5 1
      ${EndIf}
    ${Loop}
  FunctionEnd
!macroend
!insertmacro END_RUNNING_COPY ""
!insertmacro END_RUNNING_COPY "un."

Section
  Call EndRunningCopy
  ; What a former version had and this one has not.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S /upgrade _?=$INSTDIR'
  ${EndIf}
  !insertmacro INSTALL_FILES
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortCut "$SMPROGRAMS\Ambertask.lnk" "$INSTDIR\Ambertask.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayName Ambertask
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\Ambertask.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" Publisher "Ambertask developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoRepair 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" EstimatedSize $0
SectionEnd

Section Uninstall
  Call un.EndRunningCopy
  !insertmacro REMOVE_FILES
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 /upgrade $1
  ${IfNot} ${Errors}
    Return
  ${EndIf}
  ; Only an entry of the copy in this folder; it takes the right by which the entry was made.
  ReadRegStr $0 HKLM "${RUN_KEY}" Ambertask
  ${If} $0 == "$INSTDIR\Ambertask.exe"
    DeleteRegValue HKLM "${RUN_KEY}" Ambertask
  ${EndIf}
  Delete "$SMPROGRAMS\Ambertask.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ${If} ${FileExists} "$INSTDIR\data.dat"
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(RemoveData)" /SD IDNO IDNO kept
    Delete "$INSTDIR\data.dat"
    Delete "$INSTDIR\data.dat-journal"
    Delete "$INSTDIR\data.dat.*"
    RMDir /r "$INSTDIR\copies"
    RMDir /r "$INSTDIR\custom icons"
    RMDir /r "$INSTDIR\Skins"
    RMDir /r "$LOCALAPPDATA\Ambertask"
    kept:
  ${EndIf}
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR\custom icons"
  RMDir "$INSTDIR\copies"
  RMDir "$INSTDIR"
SectionEnd
