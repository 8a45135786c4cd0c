#!/usr/bin/env bash
# Uses the archive and the installer under Wine as a school does: opens every activity in real
# windows, with the keyboard alone, and saves a problem, beside the program where that can be
# written and in the shared folder where not; installs and uninstalls.
#   walk.sh ARCHIVE INSTALLER WITHOUT_RIGHTS PICTURES
# on the display DISPLAY, which has a window manager. WITHOUT_RIGHTS is a program that runs another
# one as no administrator, PICTURES a folder for pictures of the windows.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
archive=$(realpath "$1")
installer=$(realpath "$2")
without_rights=$(realpath "$3")
pictures=$(realpath "$4")

# Permissions stop nothing where root runs this: then a copy of it goes on as somebody else.
if [ "$(id -u)" -eq 0 ]; then
  work=$(mktemp -d)
  trap 'rm -rf "$work"' EXIT
  cp "$archive" "$installer" "$without_rights" "$here/walk.sh" "$here/wine.sh" "$work"
  mkdir -p "$work/pictures"
  chown -R 65534:65534 "$work"
  status=0
  HOME=$work setpriv --reuid 65534 --regid 65534 --clear-groups "$work/walk.sh" \
    "$work/$(basename "$archive")" "$work/$(basename "$installer")" \
    "$work/$(basename "$without_rights")" "$work/pictures" || status=$?
  mkdir -p "$pictures"
  cp "$work"/pictures/* "$pictures" || true
  exit "$status"
fi

work=$(mktemp -d)
export WINEPREFIX=$work/wine
trap 'wineserver --kill || true; wineserver --wait; rm -rf "$work"' EXIT
mkdir -p "$pictures"
drive=$WINEPREFIX/drive_c
installed="$drive/Program Files/Pizarrin"
shared=$drive/ProgramData/Pizarrin/Recursos
menu=PIZARRIN
statement='A 2,5 € la piña, [2_9] piñas, ¿suman?'
statement_keys='Shift+a space 2 comma 5 space ISO_Level3_Shift+e space l a space p i ntilde a comma space
  ISO_Level3_Shift+8 2 Shift+minus 9 ISO_Level3_Shift+9 space p i ntilde a s comma space
  Shift+21 s u m a n Shift+apostrophe' # 21 is the key of the two exclamation marks
shortcut="$drive/ProgramData/Microsoft/Windows/Start Menu/Programs/Pizarrin.lnk"

fail() {
  echo "walk.sh: $*" >&2
  import -window root "$pictures/fallo.png"
  exit 1
}

# Asks until it is so, and gives up after two minutes.
until_so() { # what is wrong else, command...
  local what=$1 end=$((SECONDS + 120))
  shift
  while [ "$SECONDS" -lt "$end" ]; do
    "$@" && return
    sleep 0.1
  done
  fail "$what"
}

active() { # the title of the active window: Wine may change what stands for it on the display
  local title
  title=$(xdotool getactivewindow getwindowname 2>/dev/null) || true
  echo "${title:-none}"
}
is_active() { [ "$(active)" = "$1" ]; }
is_other() {
  local now
  now=$(active) # once: it may be gone the next moment
  [ "$now" != none ] && [ "$now" != "$1" ]
}
is_painted() { # a window of one colour or two is not there yet
  local colours
  colours=$(import -window "$(xdotool getactivewindow)" -format %k info: 2>/dev/null) && [ "${colours:-0}" -ge 8 ]
}

picture() { # name
  until_so "$1 stays blank" is_painted
  import -window root "$pictures/$1.png"
}

start() { # program, name of the picture
  "$here/wine.sh" "$1" &
  until_so "the menu of $1 does not come up" is_active "$menu"
  picture "$2"
}

# What comes up over a window, other than the window itself.
press() { # keys...
  local before
  before=$(active)
  xdotool key "$@"
  until_so "nothing comes up after $*" is_other "$before"
}

close_down_to() { # title
  local over
  until_so "no window comes up" is_other none
  while over=$(active) && [ "$over" != "$1" ]; do
    [ "$over" = none ] || xdotool key alt+F4
    until_so "nothing comes up behind a window that closes" is_other "$over"
  done
}

leave() {
  xdotool key alt+F4
  wait
}

has_red() { # the menu's last button, and an activity's
  import -window root "$work/now.png"
  convert "$work/now.png" -unique-colors txt: >"$work/colours.txt"
  grep -qi '#FF0000' "$work/colours.txt"
}
still() { # picture of the display, taken anew if it has changed since
  [ "$(pixels_off "$1")" -eq 0 ] || ! mv "$work/now.png" "$1"
}
pixels_off() { # picture that the display is compared with
  import -window root "$work/now.png"
  compare -metric AE "$1" "$work/now.png" null: 2>&1 | xargs printf '%.0f' || true
}
is_changed() { [ "$(pixels_off "$1")" -gt 5000 ]; }
is_covered() { [ "$(pixels_off "$1")" -gt 100000 ]; }
is_bare() { [ "$(pixels_off "$1")" -lt 50000 ]; } # the frame has another colour

# A child minimises an activity and clicks the menu, which it still blocks. On a desktop of
# Wine's own, where windows belong together and are minimised as on Windows, by no window
# manager.
lose_an_activity() {
  local before="$pictures/escritorio.png"
  "$here/wine.sh" explorer /desktop=escuela,1366x768 pizarrin.exe &
  until_so "the menu does not come up on Wine's desktop" is_other none
  until_so "the menu on Wine's desktop has no way out" has_red
  picture escritorio
  until_so "the menu on Wine's desktop is never whole" still "$before"
  xdotool key Return
  until_so "no activity comes up on Wine's desktop" is_covered "$before"
  cp "$before" "$work/activity.png"
  until_so "an activity on Wine's desktop is never whole" still "$work/activity.png"
  xdotool mousemove 683 20 click 3
  until_so "the frame has no menu" is_changed "$work/activity.png"
  xdotool key n # "Minimize"
  until_so "an activity does not minimise" is_bare "$before"
  picture actividad-minimizada
  xdotool mousemove 300 400 click 1
  until_so "a click on the menu does not bring the activity back" is_covered "$before"
  leave
}

open_activities() {
  local name
  for name in suma-repetida tablas tablas-rapidas completa-el-hueco multiplos-y-divisores \
      multiplicaciones divisiones problemas operaciones-combinadas lluvia-de-numeros \
      la-gran-carrera; do
    press Return
    picture "$name"
    close_down_to "$menu"
    xdotool key Tab
  done
}

type_keys() { # as fast as fingers: Wine mixes up Shift and AltGr of keys that come faster than read
  xdotool key --delay 200 "$@"
}

# With a Spanish keyboard: brackets, braces and the euro are typed with AltGr. Wine makes no
# letter with an accent of two keys.
save_a_problem() { # name of the picture
  press alt+p
  press alt+o g
  xdotool key alt+e
  # shellcheck disable=SC2086 # a key a word
  type_keys $statement_keys Tab Tab Tab
  type_keys ISO_Level3_Shift+7 Shift+6 1 Shift+plus Num_Lock KP_2 Num_Lock ISO_Level3_Shift+0
  type_keys Tab Tab Tab a ntilde o s
  picture "$1"
  xdotool key alt+g
  press shift+Tab shift+Tab shift+Tab space # from the new problem to "Aceptar", which closes
  close_down_to "$menu"
}

check_saved() { # folder
  local last
  last=$(tail -n 1 "$1/Problemas3.dat" | iconv -f windows-1252 -t utf-8)
  [ "$last" = "$statement|{&1*2}|años|*"$'\r' ] || fail "the bank ends with $last"
}

walk_archive() {
  local folder="$work/Memoria USB/Año 3.º"
  mkdir -p "$folder"
  unzip -q "$archive" -d "$folder"
  cd "$folder"/*
  lose_an_activity
  start pizarrin.exe menu
  open_activities
  cp Recursos/Problemas3.dat "$work/starter.dat"
  save_a_problem gestion
  leave
  check_saved Recursos
  cmp Recursos/Problemas3.bak "$work/starter.dat" || fail "the backup is not the bank of before"
  [ ! -e "$shared" ] || fail "the bank was saved to the shared folder"
}

install_silently() { # switch for whom, and for where
  "$here/wine.sh" "$installer" /S "$@"
}

install_without_rights() { # switch for whom
  timeout 120 "$here/wine.sh" "$without_rights" "Z:${installer//\//\\}" /S "$@"
}

refuse_all_users() {
  local status=0
  install_without_rights /AllUsers || status=$?
  [ "$status" -eq 2 ] || fail "installing for all without rights ends with $status"
  [ ! -e "$installed" ] || fail "installed for all without rights"
}

show_installer() {
  "$here/wine.sh" "$installer" &
  until_so "the installer does not come up" is_other none
  picture instalador
  xdotool key Return
  until_so "the installer has no second page" is_changed "$pictures/instalador.png"
  picture instalador-usuarios
  xdotool key Escape
  until_so "the installer does not ask before it ends" is_changed "$pictures/instalador-usuarios.png"
  xdotool key Return
  wait
}

walk_installed() {
  install_silently /AllUsers
  [ -e "$shortcut" ] || fail "no entry in the start menu"
  chmod -w "$installed/Recursos"
  cd "$installed"
  start pizarrin.exe menu-instalado
  save_a_problem gestion-instalado
  leave
  cd "$work"
  chmod +w "$installed/Recursos"
  check_saved "$shared"
  cmp "$shared/Problemas3.bak" "$installed/Recursos/Problemas3.dat" ||
    fail "the shared bank did not start as the one that came with the program"
}

uninstall() { # switch for whom, folder
  "$here/wine.sh" "$2/desinstalar.exe" "$1" /S
  until_so "the program stays installed" eval "[ ! -e '$2/pizarrin.exe' ]"
  until_so "its folder stays" eval "[ ! -e '$2/desinstalar.exe' ]"
}

walk_uninstaller() {
  uninstall /AllUsers "$installed"
  until_so "an unchanged bank stays" eval "[ ! -e '$installed' ]"
  [ ! -e "$shortcut" ] || fail "the entry in the start menu stays"
  [ -e "$shared/Problemas3.dat" ] || fail "the shared bank went"

  local own
  install_without_rights /CurrentUser
  own=$(dirname "$(find "$drive/users" -name pizarrin.exe)")
  echo 'Uno más|1||*' >>"$own/Recursos/Problemas3.dat"
  install_without_rights /CurrentUser # over it
  uninstall /CurrentUser "$own"
  tail -n 1 "$own/Recursos/Problemas3.dat" | grep -q 'Uno m' || fail "a changed bank went"

  own=$drive/Aula/Pizarrin
  install_silently /CurrentUser '/D=C:\Aula\Pizarrin'
  [ -e "$own/pizarrin.exe" ] || fail "installed elsewhere than it was told"
  uninstall /CurrentUser "$own"
}

setxkbmap es
walk_archive
show_installer
refuse_all_users
walk_installed
walk_uninstaller
echo "Windows: 11 actividades abiertas, banco guardado, instalado y desinstalado"
