#!/usr/bin/env bash
# Runs a command in real windows: on a display of its own with a window manager, and with the
# desktop's accessibility services awake. DISPLAY_SIZE is the size of the display: 1024x600.
# WINDOW_PLATFORM is what the toolkit calls the system of the windows, xcb unless set.
set -euo pipefail

if [ "$1" != --on-bus ]; then
  XDG_RUNTIME_DIR=$(mktemp -d)
  export XDG_RUNTIME_DIR
  trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
  dbus-run-session -- "${BASH_SOURCE[0]}" --on-bus "$@"
  exit
fi
shift

trap 'kill $(jobs -p) 2>/dev/null || true; wait' EXIT

mkfifo "$XDG_RUNTIME_DIR/display"
Xvfb -displayfd 3 -screen 0 "${DISPLAY_SIZE:-1366x768}x24" -nolisten tcp 3>"$XDG_RUNTIME_DIR/display" 2>/dev/null &
read -r number <"$XDG_RUNTIME_DIR/display"
export DISPLAY=:$number

mkfifo "$XDG_RUNTIME_DIR/managed"
openbox --startup "sh -c 'echo >$XDG_RUNTIME_DIR/managed'" 2>/dev/null &
read -r _ <"$XDG_RUNTIME_DIR/managed"

# Asking where the accessibility bus is starts it.
dbus-send --session --print-reply --reply-timeout=120000 --dest=org.a11y.Bus /org/a11y/bus \
  org.a11y.Bus.GetAddress >/dev/null

QT_QPA_PLATFORM=${WINDOW_PLATFORM:-xcb} QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 LC_ALL=C.UTF-8 "$@"
