# A virtual desktop with the real editor on it, driven from outside. To be sourced by a bash script
# with `set -euo pipefail`; the caller sets `shots`, the folder for screenshots, and `editor`, the
# program, an array when it takes arguments. A step that is given a SHOT takes a screenshot by that
# name before its dialog goes.

patience=${PATIENCE:-30} # seconds
export LC_ALL=C.UTF-8 # so that any folder's name can be read, whatever this session speaks
pids=()

finish() {
  local status=$?
  [ $status -eq 0 ] || shot failure || true
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait
  exit $status
}

fail() {
  echo "${0##*/}: $*" >&2
  exit 1
}

# Repeats a command every tenth of a second until it succeeds.
wait_for() {
  local what=$1 end=$((SECONDS + patience))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || fail "$what did not come within $patience s"
    sleep 0.1
  done
}

shot() { import -window root "$shots/$1.png"; }

start_desktop() {
  rm -rf "$shots"
  mkdir -p "$shots/.runtime"
  chmod 700 "$shots/.runtime"
  export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$shots/.runtime} # Qt complains when there is none
  trap finish EXIT
  coproc XVFB { exec Xvfb -displayfd 1 -screen 0 1024x800x24 -nolisten tcp 2>/dev/null; }
  pids+=("$XVFB_PID")
  read -r -t "$patience" -u "${XVFB[0]}" display || fail "the virtual display did not start"
  export DISPLAY=:$display QT_QPA_PLATFORM=xcb
  unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS
  openbox >/dev/null 2>&1 &
  pids+=($!)
  wait_for "the window manager" eval 'xdotool get_desktop >/dev/null 2>&1'
}

# The windows with exactly this title; xdotool's own search does not distinguish capitals from small letters.
windows_named() {
  local each
  for each in $(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null); do
    [ "$(xdotool getwindowname "$each" 2>/dev/null)" != "$1" ] || echo "$each"
  done
}

# Puts the newest window with a title, other than the one named second, into $window. The main
# window and its boxes share one title.
find_window() {
  window=$(windows_named "$1" | grep -vx "${2:-none}" | tail -n 1)
  [ -n "$window" ]
}
gone() { ! windows_named "$1" | grep -qx "$2"; }
focused() { [ "$(xdotool getwindowfocus 2>/dev/null)" = "$1" ]; }
expect_window() {
  wait_for "the window \"$1\"" find_window "$@"
  wait_for "the focus of \"$1\"" focused "$window"
}

# Answers the dialog with a title by keys and waits until it is gone.
answer() {
  local title=$1 other=$2
  shift 2
  expect_window "$title" "$other"
  local dialog=$window
  "$@"
  wait_for "the end of \"$title\"" gone "$title" "$dialog"
}
press() { xdotool key "$@"; }
press_for() { # KEY [SHOT]
  if [ -n "${2:-}" ]; then
    sleep 0.5 # for the picture only
    shot "$2"
  fi
  press "$1"
}
type_path() { # PATH [SHOT]
  xdotool type --delay 20 "$1"
  press_for Return "${2:-}"
}

# How far to the right the middle of a window is.
middle_of() {
  eval "$(xdotool getwindowgeometry --shell "$1")"
  echo $((X + WIDTH / 2))
}

# Starts the editor in the folder of the image and takes the splash away; puts its process into
# $editor_pid and the middle of the splash into $splash_middle.
start_editor() { # [SHOT]
  "${editor[@]}" &
  editor_pid=$!
  pids+=("$editor_pid")
  expect_window Form2
  splash_middle=$(middle_of "$window")
  press_for space "${1:-}"
}
answer_open() { answer "Open Dale Harrow Jr. Baseball Rom" none type_path "$@"; } # PATH [SHOT]

# Puts the main window into $main and the height of its menu bar into $menu_bar.
expect_main() {
  expect_window "MORLEK EDITOR" "${1:-none}"
  main=$window
  eval "$(xdotool getwindowgeometry --shell "$main" | grep HEIGHT)"
  menu_bar=$((HEIGHT - 653))
}

# The look of a part of the main window; points are in its content, which stands below the menu bar.
look() { import -window "$main" -crop "$3x$4+$1+$((menu_bar + $2))" rgb:- | sha1sum; }
differs() { [ "$(look "${@:2}")" != "$1" ]; }
click() {
  xdotool mousemove --window "$main" "$1" $((menu_bar + $2))
  xdotool click 1
}

# Clicks at a point until a part of the window changes.
click_until_changed() {
  local x=$1 y=$2 before
  shift 2
  before=$(look "$@")
  click_and_compare() {
    click "$x" "$y"
    differs "$before" "$@"
  }
  wait_for "a change after the click at $x, $y" click_and_compare "$@"
}

# Types over the box at a point, which must not have the focus yet. The window manager may hold a click
# back while keys go on, and then a text typed too early would reach no box: so the mark of the focus is
# waited for first.
type_into() {
  local box=($(($1 - 8)) $(($2 - 8)) 16 16) before
  before=$(look "${box[@]}")
  click "$1" "$2"
  wait_for "the focus of the box at $1, $2" differs "$before" "${box[@]}"
  before=$(look "${box[@]}")
  xdotool type --delay 15 "$3"
  wait_for "the text $3" differs "$before" "${box[@]}"
}

# The message that a step ends with.
confirm() { answer "MORLEK EDITOR" "$main" press_for Return "${1:-}"; } # [SHOT]
back() { wait_for "the focus of the main window" focused "$main"; }
save() { # [SHOT]
  click 360 68
  confirm "${1:-}"
  back
}
export_team() { # PATH [SHOT]
  press ctrl+e
  answer "Save Dale Harrow Jr. Baseball Team Data" none type_path "$@"
}
import_team() { # PATH [SHOT]
  press ctrl+i
  answer "Open Dale Harrow Jr. Baseball Team Data" none type_path "$@"
}
# Says Yes to the question whether to quit.
end_editor() { # [SHOT]
  answer "MORLEK EDITOR" "$main" press_for alt+y "${1:-}"
  wait_for "the end of the editor" gone "MORLEK EDITOR" "$main"
  wait "$editor_pid" || fail "the editor ended with exit status $?"
}
