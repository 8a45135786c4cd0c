# shellcheck shell=bash
# Shared by the scripts: installs what is missing, configures and builds. Sourced.

# Quiet unless it fails: then the end of the step's log is shown, and what stands far above it, the
# complaints of single tests and of the sanitizers.
quietly() { # title, command...
  local title=$1 log
  shift
  mkdir -p build
  log=build/${title// /-}.log
  if ! "$@" >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    { grep -E -A 5 '(FAIL!|QFATAL) +:|ERROR: [A-Z]|: runtime error: ' "$log" || true; } |
      tail -n 40 >&2
    echo "Falló este paso: $title (todo el detalle en $PWD/$log)" >&2
    exit 1
  fi
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

install_with_apt() { # packages...
  as_root apt-get update -q &&
    as_root env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -q --no-install-recommends "$@"
}

# Installs the named Debian packages that are missing.
need_packages() { # packages...
  local missing=() package
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    need_commands "$@"
    return
  fi
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Instalo lo que falta: ${missing[*]}"
  quietly "instalar paquetes" install_with_apt "${missing[@]}"
}

# On other families nothing is installed: what is needed is named.
need_commands() { # packages, by their Debian names
  local command
  for command in c++ cmake ninja; do
    command -v "$command" >/dev/null && continue
    cat >&2 <<TEXT
Este sistema no usa apt-get. Instale usted con su gestor de paquetes lo que en Debian se
llama así, y vuelva a empezar: $*
(un compilador de C++20, CMake 3.25 o posterior, Ninja, Qt 6.4 o posterior con Widgets y sus
traducciones, y los tipos de letra Andika, URW base 35, Liberation y DejaVu)
TEXT
    exit 1
  done
}

# shellcheck disable=SC2034 # for those who source this
build_packages=(g++ cmake ninja-build qt6-base-dev qt6-translations-l10n
  fonts-sil-andika fonts-urw-base35 fonts-liberation fonts-dejavu-core)

# Configures a preset and builds targets of it (all when none is named).
build_preset() { # preset, targets...
  local preset=$1 target arguments=()
  shift
  for target in "$@"; do
    arguments+=(--target "$target")
  done
  quietly "configurar $preset" cmake --preset "$preset" ${cmake_options+"${cmake_options[@]}"}
  quietly "compilar $preset" cmake --build --preset "$preset" ${arguments+"${arguments[@]}"}
}

check_scripts() {
  git ls-files '*.sh' .ci/run packaging/debian/postinst packaging/debian/postrm |
    xargs shellcheck --external-sources
  echo "Guiones: bien"
}
