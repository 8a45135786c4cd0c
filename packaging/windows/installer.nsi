; The installer. Made by build.sh, which gives it
;   FOLDER      what to install
;   INSTALLER   the file to write
;   FILES       a script that deletes from $INSTDIR what FOLDER has, without the bank
;   VERSION, ICON, SIDE (the picture beside the first and last page)
Target amd64-unicode ; as the program
ManifestDPIAware true
SetCompressor /SOLID lzma

!define NAME Pizarrin
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

; Whoever is no administrator installs it in their own folder; an administrator may choose.
; On the command line: /S /AllUsers or /S /CurrentUser, and /D=folder at the end.
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR ${NAME}
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_USE_PROGRAMFILES64
; With an answer of its own: nobody sees the box of a silent one, which would wait for ever.
!define MULTIUSER_INIT_TEXT_ALLUSERSNOTPOSSIBLE '$(NEEDS_ADMIN)" /SD "IDOK'
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

Name "${NAME}"
OutFile "${INSTALLER}"
BrandingText "${NAME} ${VERSION}"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_ABORTWARNING
!define MULTIUSER_INSTALLMODEPAGE_TEXT_TOP "$(WHO)"
!define MULTIUSER_INSTALLMODEPAGE_TEXT_ALLUSERS "$(FOR_ALL)"
!define MULTIUSER_INSTALLMODEPAGE_TEXT_CURRENTUSER "$(FOR_ONE)"
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION RunAsPerson

!insertmacro MUI_PAGE_WELCOME
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE Spanish

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_SPANISH} ProductName "${NAME}"
VIAddVersionKey /LANG=${LANG_SPANISH} ProductVersion "${VERSION}"
VIAddVersionKey /LANG=${LANG_SPANISH} FileVersion "${VERSION}"
VIAddVersionKey /LANG=${LANG_SPANISH} FileDescription "Instalador de ${NAME}"
VIAddVersionKey /LANG=${LANG_SPANISH} LegalCopyright "© 2026 The Pizarrin authors. Licencia MIT."

LangString WHO ${LANG_SPANISH} "¿Quién va a usar Pizarrin en este ordenador?"
LangString FOR_ALL ${LANG_SPANISH} "Todos los usuarios (hace falta ser administrador)"
LangString FOR_ONE ${LANG_SPANISH} "Solo yo"
LangString NEEDS_ADMIN ${LANG_SPANISH} "Para instalar o quitar Pizarrin para todos los usuarios hace falta ser administrador."
LangString IS_OPEN ${LANG_SPANISH} "No se puede cambiar pizarrin.exe: Pizarrin está abierto, o hace falta ser administrador. Ciérrelo y vuelva a intentarlo."
LangString BANK_STAYS ${LANG_SPANISH} "El banco de problemas ha cambiado: se queda en $INSTDIR\Recursos"

Function .onInit
  SetRegView 64
  Push $INSTDIR ; empty but for /D, which the next line would forget
  !insertmacro MULTIUSER_INIT
  Pop $0
  ${If} $0 != ""
    StrCpy $INSTDIR $0
  ${EndIf}
FunctionEnd

Function un.onInit
  SetRegView 64
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

; Started by the desktop, it has not the rights of an administrator that the installer may have.
Function RunAsPerson
  Exec '"$WINDIR\explorer.exe" "$INSTDIR\pizarrin.exe"'
FunctionEnd

; A program that runs cannot be replaced.
!macro WAIT_UNTIL_CLOSED
  ${DoWhile} ${FileExists} "$INSTDIR\pizarrin.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\pizarrin.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${ExitDo}
    ${EndIf}
    MessageBox MB_ICONEXCLAMATION|MB_RETRYCANCEL "$(IS_OPEN)" /SD IDCANCEL IDRETRY +2
    Abort
  ${Loop}
!macroend

Section
  !insertmacro WAIT_UNTIL_CLOSED
  SetOutPath "$INSTDIR"
  File /r /x Problemas3.dat "${FOLDER}/*"
  ; The bank is the school's: one that is there is never touched.
  SetOutPath "$INSTDIR\Recursos"
  SetOverwrite off
  File "${FOLDER}/Recursos/Problemas3.dat"
  SetOverwrite on

  WriteUninstaller "$INSTDIR\desinstalar.exe"
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\pizarrin.exe"

  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  IntFmt $0 "0x%08X" $0
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize $0
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "${NAME}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\pizarrin.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "${NAME}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString \
    '"$INSTDIR\desinstalar.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString \
    '"$INSTDIR\desinstalar.exe" /$MultiUser.InstallMode /S'
SectionEnd

; Deletes $1 when it has the same bytes as the starter bank; else leaves it and sets $2.
Function un.DeleteUnlessChanged
  ${IfNot} ${FileExists} $1
    Return
  ${EndIf}
  FileOpen $3 "$PLUGINSDIR\Problemas3.dat" r
  FileOpen $4 $1 r
  ${Do}
    ClearErrors
    FileReadByte $3 $5
    ${If} ${Errors}
      StrCpy $5 end
    ${EndIf}
    ClearErrors
    FileReadByte $4 $6
    ${If} ${Errors}
      StrCpy $6 end
    ${EndIf}
    ${If} $5 != $6
    ${OrIf} $5 == end
      ${ExitDo}
    ${EndIf}
  ${Loop}
  FileClose $3
  FileClose $4
  ${If} $5 == $6
    Delete $1
  ${Else}
    StrCpy $2 changed
  ${EndIf}
FunctionEnd

Section Uninstall
  !insertmacro WAIT_UNTIL_CLOSED
  InitPluginsDir
  File "/oname=$PLUGINSDIR\Problemas3.dat" "${FOLDER}/Recursos/Problemas3.dat"
  StrCpy $2 ""
  StrCpy $1 "$INSTDIR\Recursos\Problemas3.dat"
  Call un.DeleteUnlessChanged
  ; The backup that the program makes is the teacher's too.
  StrCpy $1 "$INSTDIR\Recursos\Problemas3.bak"
  Call un.DeleteUnlessChanged
  ${If} $2 == changed
    DetailPrint "$(BANK_STAYS)"
  ${EndIf}

  !include "${FILES}"
  Delete "$INSTDIR\desinstalar.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}.lnk"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
