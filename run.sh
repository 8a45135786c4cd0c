#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Without a display it renders
# pictures of every screen instead.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/setup.sh

# True when there is a display that answers; a variable alone may be left over.
has_display() {
  if [ -n "${WAYLAND_DISPLAY:-}" ]; then
    case $WAYLAND_DISPLAY in
      /*) [ -S "$WAYLAND_DISPLAY" ] && return ;;
      *) [ -S "${XDG_RUNTIME_DIR:-/run/user/$(id -u)}/$WAYLAND_DISPLAY" ] && return ;;
    esac
  fi
  case ${DISPLAY:-} in
    "") return 1 ;;
    :*) local number=${DISPLAY#:}
      [ -S "/tmp/.X11-unix/X${number%%.*}" ] ;;
    *) return 0 ;; # a display on another machine
  esac
}

packages=("${build_packages[@]}")
if [ -n "${WAYLAND_DISPLAY:-}" ] && [ -z "${DISPLAY:-}" ]; then
  packages+=(qt6-wayland)
fi
need_packages "${packages[@]}"

if has_display; then
  build_preset release pizarrin
  status=0
  build/release/bin/pizarrin || status=$?
  # 134 is how the toolkit ends when the display does not answer after all.
  [ "$status" -eq 134 ] || exit "$status"
fi

build_preset release pizarrin pizarrin_gallery
quietly "dibujar pantallas" build/release/bin/pizarrin_gallery build/release/pictures
cat <<TEXT
Aquí no hay pantalla, así que Pizarrin no puede abrir su ventana.
Las imágenes de todas sus pantallas están en: $PWD/build/release/pictures
Para usarlo, ejecute este mismo run.sh en un escritorio, o indique una pantalla:
  DISPLAY=:0 $PWD/run.sh
TEXT
