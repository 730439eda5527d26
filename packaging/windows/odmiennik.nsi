; SPDX-License-Identifier: GPL-3.0-or-later
; The installer for Windows: for one user, without an administrator.
; makensis -DVERSION=1.2.3 -DFILES=folder -DRESULT=file.exe -DICON=file.ico
;
; The programs are put into bin\ with share\odmiennik\ beside it: so they know that they are installed
; and keep the user's verbs in %APPDATA%\Odmiennik, which nothing here touches unasked.
Unicode true
; A program for 64 bits, like what it installs.
Target amd64-unicode
SetCompressor /SOLID lzma
; The same files give the same installer.
SetDateSave off
!include MUI2.nsh
!include FileFunc.nsh

Name "Odmiennik ${VERSION}"
OutFile "${RESULT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Odmiennik"
InstallDirRegKey HKCU "Software\Odmiennik\Instalacja" "Folder"
ManifestSupportedOS Win10
ManifestDPIAware true
BrandingText " "

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1045 "ProductName" "Odmiennik"
VIAddVersionKey /LANG=1045 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1045 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1045 "FileDescription" "Instalator programu Odmiennik"
VIAddVersionKey /LANG=1045 "LegalCopyright" "© 2026 the Odmiennik developers; GPL-3.0-or-later"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Odmiennik"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\odmiennik.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Uruchom Odmiennik"

!define MUI_WELCOMEPAGE_TEXT "Odmiennik zostanie zainstalowany tylko dla Ciebie: uprawnienia administratora nie są potrzebne.$\r$\n$\r$\nKliknij przycisk „Dalej”, aby kontynuować."
!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_HEADER_TEXT "Licencja"
!define MUI_PAGE_HEADER_SUBTEXT "Co wolno robić z programem."
!define MUI_LICENSEPAGE_TEXT_TOP "Odmiennik jest wolnym oprogramowaniem:"
!define MUI_LICENSEPAGE_TEXT_BOTTOM "Aby używać programu, nie musisz się na nic zgadzać; licencja mówi, co wolno z nim zrobić."
!define MUI_LICENSEPAGE_BUTTON "&Dalej"
!insertmacro MUI_PAGE_LICENSE "${FILES}\LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Polish"

; A program that runs cannot be replaced: it is opened for writing, and the user is asked to close it.
!macro RequireClosed
  again:
  IfFileExists "$INSTDIR\bin\odmiennik.exe" 0 closed
  ClearErrors
  FileOpen $0 "$INSTDIR\bin\odmiennik.exe" a
  IfErrors 0 opened
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Odmiennik jest uruchomiony. Zamknij go i spróbuj ponownie." /SD IDCANCEL IDRETRY again
  SetErrorLevel 2
  Abort
  opened:
  FileClose $0
  closed:
!macroend

; The user may have chosen a folder with a bin of its own: of what others may have, only files of these
; names are deleted.
!macro DeleteFiles
  Delete "$INSTDIR\bin\odmiennik.exe"
  Delete "$INSTDIR\bin\odmien.exe"
  RMDir "$INSTDIR\bin"
  RMDir /r "$INSTDIR\share\odmiennik"
  RMDir "$INSTDIR\share"
  Delete "$INSTDIR\Usuwanie.exe"
!macroend

Section
  !insertmacro RequireClosed
  !insertmacro DeleteFiles
  SetOutPath "$INSTDIR\bin"
  File "${FILES}\odmiennik.exe"
  File "${FILES}\odmien.exe"
  SetOutPath "$INSTDIR\share\odmiennik"
  File "${FILES}\Werbolin.chm"
  File "${FILES}\LICENSE.txt"
  SetOutPath "$INSTDIR\share\odmiennik\licencje"
  File /r "${FILES}\licencje\*"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\Usuwanie.exe"

  CreateDirectory "$SMPROGRAMS\Odmiennik"
  SetOutPath "$INSTDIR\bin"
  CreateShortcut "$SMPROGRAMS\Odmiennik\Odmiennik.lnk" "$INSTDIR\bin\odmiennik.exe" "" "" 0 SW_SHOWNORMAL "" "Odmiana czasowników francuskich"
  CreateShortcut "$SMPROGRAMS\Odmiennik\Usuń Odmiennik.lnk" "$INSTDIR\Usuwanie.exe"

  WriteRegStr HKCU "Software\Odmiennik\Instalacja" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Odmiennik"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Odmiennik developers"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\bin\odmiennik.exe"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Usuwanie.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Usuwanie.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

Section "Uninstall"
  !insertmacro RequireClosed
  !insertmacro DeleteFiles
  RMDir "$INSTDIR"
  RMDir /r "$SMPROGRAMS\Odmiennik"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey HKCU "Software\Odmiennik\Instalacja"
  IfFileExists "$APPDATA\Odmiennik\*.*" 0 done
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Czy usunąć też zapisane czasowniki i ustawienia? Leżą w folderze $APPDATA\Odmiennik." /SD IDNO IDNO done
  RMDir /r "$APPDATA\Odmiennik"
  DeleteRegKey HKCU "Software\Odmiennik"
  done:
SectionEnd
