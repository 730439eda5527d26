# SPDX-License-Identifier: GPL-3.0-or-later
# A Windows (Wine) and a screen of their own for trying what users download; read with "source". They
# are gone with the script that reads this. PICTURES: the folder that pictures are left in.
source "$here/../common.sh"

work=$(mktemp -d "${TMPDIR:-/tmp}/odmiennik-wine.XXXXXX")
export WINEPREFIX=$work/wine HOME=$work/home
mkdir "$HOME"
own=()  # processes started here
finish() {
  wineserver --kill 2>/dev/null || true
  wineserver --wait 2>/dev/null || true
  for process in "${own[@]}"; do kill "$process" 2>/dev/null || true; done
  rm -rf "$work"
}
trap finish EXIT

mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1400x1050x24 -ac -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
own+=($!)
read -r number <"$work/display"
export DISPLAY=:$number
openbox >/dev/null 2>&1 &
own+=($!)
wine() { "$here/wine" "$@"; }

# The user's folder for files of programs that are installed.
user_folder() {
  local folder
  folder=$(wine cmd /c 'echo %APPDATA%' 2>/dev/null | tr -d '\r')
  echo "$(wine winepath --unix "$folder" 2>/dev/null | tr -d '\r')/Odmiennik"
}

# until_done COMMAND...: waits for it to succeed, at most two minutes.
until_done() {
  local tries=0
  until "$@" >/dev/null 2>&1; do
    tries=$((tries + 1))
    [ $tries -lt 600 ] || { import -window root "$pictures/klopot.png"; fail "czekanie na: $*"; }
    sleep 0.2
  done
}
shows() { xdotool getactivewindow getwindowname | grep -q "$1"; }
is_open() { xdotool search --onlyvisible --name "$1"; }
closed() { ! is_open "$1"; }
picture() {
  sleep 1  # the last letters are still being painted; nothing tells when
  import -window root "$pictures/$1.png"
}
keys() { xdotool key --delay 80 "$@"; }

# open_window FOLDER ARGUMENT...
open_window() {
  (cd "$1" && wine odmiennik.exe "${@:2}" >"$work/window.log" 2>&1) &
  own+=($!)
  await_window
}
await_window() {
  until_done is_open "Odmiennik v"
  # A tip of the day stands in front at every start until it is switched off.
  until_done shows "Porada dnia"
  keys Escape
  until_done shows "Odmiennik v"
}
# The program asks before it ends.
close_window() {
  keys alt+F4
  agreed() { keys alt+t; closed Odmiennik; }
  until_done agreed
}
# save_edited VERB FOLDER: edit mode is left, and the verb is in the folder.
saved_in() { grep -qa "$2" "$1/Czasowniki.dat"; }
save_edited() {
  until_done shows "edycja"
  keys ctrl+s
  until_done saved_in "$2" "$1"
}
