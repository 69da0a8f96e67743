; The installer: for one user, without an administrator. Built by tools/package.sh, which defines
;   VERSION   as "1.0"            NUMBERS  as "1.0.0.0"
;   FILES     the folder of what is installed          LIST  removes it again, a line a file
;   KILOBYTES what it takes       ICON     the program's icon
;   OUTPUT    the installer's path                     SIGN  signs a file, empty for not at all
;
; Silent: /S, to another folder with /D=FOLDER as the last word. The uninstaller: /S. Ends with 0, with
; 1 when the user cancels, with 2 when nothing was done (the program runs and stays, or a file is in use).

Unicode true
Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS all
RequestExecutionLevel user
SetCompressor /SOLID lzma
; The same files give the same installer.
SetDateSave off

!define NAME "Widget Varnel"
!define PROGRAM "WidgetVarnel.exe"
!define UNINSTALLER "Uninstall.exe"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define RUN "Software\Microsoft\Windows\CurrentVersion\Run"
!define SETTINGS "Software\${NAME}"
; The hidden window by which the program is found and asked to end.
!define HIDDEN_CLASS "frmSTRmn"
!define HIDDEN_TITLE "${NAME} menus"
!define MAY_WAIT 0x00100000
!define LONGEST_END 100 ; tenths of a second

Name "${NAME}"
Caption "${NAME} ${VERSION} - installation"
OutFile "${OUTPUT}"
Icon "${ICON}"
UninstallIcon "${ICON}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${ENTRY}" "InstallLocation"
BrandingText "${NAME} ${VERSION}"
DirText "Documents and themes are kept in this folder too, unless other folders are chosen in the \
options: it has to be one that you may write to. No administrator is needed."
ShowInstDetails nevershow
ShowUninstDetails nevershow
AutoCloseWindow true
XPStyle on

VIProductVersion "${NUMBERS}"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME}, installation"
VIAddVersionKey "LegalCopyright" ""

!if "${SIGN}" != ""
  !uninstfinalize '${SIGN} "%1"'
  !finalize '${SIGN} "%1"'
!endif

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

Var WasRunning

; Asks a running program to end, which saves what it has, and waits until it has: it is known by its
; mutex from its first moment to its last, and can be asked once it has its window.
!macro END_PROGRAM PREFIX
Function ${PREFIX}EndProgram
  StrCpy $WasRunning 0
again:
  StrCpy $1 0
wait:
  System::Call 'kernel32::OpenMutexW(i ${MAY_WAIT}, i 0, w "Local\${HIDDEN_TITLE}") p.r0'
  IntPtrCmp $0 0 gone
  System::Call 'kernel32::CloseHandle(p r0)'
  StrCpy $WasRunning 1
  FindWindow $0 "${HIDDEN_CLASS}" "${HIDDEN_TITLE}"
  IntPtrCmp $0 0 +2
  SendMessage $0 ${WM_CLOSE} 0 0 /TIMEOUT=10000
  IntOp $1 $1 + 1
  Sleep 100
  IntCmp $1 ${LONGEST_END} stays wait stays
stays:
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME} is running. End it by its menu, then try \
again." /SD IDCANCEL IDRETRY again
  SetErrorLevel 2
  Quit
gone:
  ; Its file is free a moment after its windows are gone.
  StrCpy $1 0
free:
  IfFileExists "$INSTDIR\${PROGRAM}" 0 done
  ClearErrors
  FileOpen $0 "$INSTDIR\${PROGRAM}" a
  IfErrors 0 opened
  IntOp $1 $1 + 1
  Sleep 100
  IntCmp $1 ${LONGEST_END} stays free stays
opened:
  FileClose $0
done:
FunctionEnd
!macroend
!include "WinMessages.nsh"
!insertmacro END_PROGRAM ""
!insertmacro END_PROGRAM "un."

Section
  Call EndProgram
  SetOutPath "$INSTDIR"
  ClearErrors
  File /r "${FILES}\*"
  WriteUninstaller "$INSTDIR\${UNINSTALLER}"
  IfErrors 0 written
  MessageBox MB_OK|MB_ICONSTOP "${NAME} cannot be written to $INSTDIR." /SD IDOK
  SetErrorLevel 2
  Quit
written:
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${PROGRAM}"
  WriteRegStr HKCU "${ENTRY}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${ENTRY}" "Publisher" "${NAME}"
  WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "$INSTDIR\${PROGRAM},0"
  WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
  WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
  WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
  WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
SectionEnd

; What was ended for an upgrade goes on as it was; who installs by hand sees what was installed.
Function .onInstSuccess
  IfSilent 0 start
  IntCmp $WasRunning 0 done
start:
  Exec '"$INSTDIR\${PROGRAM}"'
done:
FunctionEnd

Section "Uninstall"
  Call un.EndProgram
  Delete "$SMPROGRAMS\${NAME}.lnk"
  !include "${LIST}"
  Delete "$INSTDIR\debug.log"
  Delete "$INSTDIR\${UNINSTALLER}"
  DeleteRegKey HKCU "${ENTRY}"
  DeleteRegValue HKCU "${RUN}" "${NAME}"
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Remove the settings and themes too? Notes, \
boards, months and the calculator's log stay in any case." /SD IDNO IDNO kept
  DeleteRegKey HKCU "${SETTINGS}"
  RMDir /r "$INSTDIR\${THEMES}"
kept:
  ; Only when nothing is left in it.
  RMDir "$INSTDIR"
SectionEnd
