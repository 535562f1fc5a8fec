; The installer of Winvrx: for this user without rights, or for all users of the computer.
; In silence: winvrx-VERSION-instalador.exe /S [/CurrentUser | /AllUsers] [/D=FOLDER]
Target amd64-unicode
SetCompressor /SOLID lzma
Name "Winvrx"
OutFile "${OUT}"
RequestExecutionLevel user

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Winvrx"
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "Winvrx"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "UninstallString"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_USE_PROGRAMFILES64
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include "${FILES}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\winvrx.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Abrir o Winvrx"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "PortugueseBR"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_PORTUGUESEBR} "ProductName" "Winvrx"
VIAddVersionKey /LANG=${LANG_PORTUGUESEBR} "FileDescription" "Instalador do Winvrx"
VIAddVersionKey /LANG=${LANG_PORTUGUESEBR} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_PORTUGUESEBR} "LegalCopyright" ""

; A program that runs cannot be replaced: it would be left half old and half new.
!macro RequireClosed
  retry:
  IfFileExists "$INSTDIR\winvrx.exe" 0 closed
  ClearErrors
  FileOpen $0 "$INSTDIR\winvrx.exe" a
  IfErrors 0 free
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
      "O Winvrx está aberto. Feche-o e escolha Repetir." /SD IDCANCEL IDRETRY retry
    SetErrorLevel 2
    Quit
  free:
    FileClose $0
  closed:
!macroend

Function .onInit
  SetRegView 64
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  SetRegView 64
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section "Winvrx"
  !insertmacro RequireClosed
  ClearErrors
  !insertmacro PutFiles
  IfErrors 0 put
    MessageBox MB_OK|MB_ICONSTOP "Não foi possível gravar todos os arquivos em $INSTDIR." /SD IDOK
    SetErrorLevel 2
    Quit
  put:
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\desinstalar.exe"
  CreateShortcut "$SMPROGRAMS\Winvrx.lnk" "$INSTDIR\winvrx.exe"

  WriteRegStr SHCTX "${KEY}" "DisplayName" "Winvrx"
  WriteRegStr SHCTX "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${KEY}" "DisplayIcon" "$INSTDIR\winvrx.exe"
  WriteRegStr SHCTX "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${KEY}" "UninstallString" '"$INSTDIR\desinstalar.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${KEY}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  IntFmt $0 "0x%08X" $0
  WriteRegDWORD SHCTX "${KEY}" "EstimatedSize" "$0"
SectionEnd

; The records lie elsewhere, and what else lies in the folder is the user's: only files that the
; installer brought go.
Section "Uninstall"
  !insertmacro RequireClosed
  !insertmacro RemoveFiles
  Delete "$INSTDIR\desinstalar.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Winvrx.lnk"
  DeleteRegKey SHCTX "${KEY}"
SectionEnd
