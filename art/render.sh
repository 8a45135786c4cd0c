#!/bin/sh
# Turns the car drawings in art/cars into the JPEG pictures in Recursos, and the icon into the
# pixels that the program's windows carry.
#
# Needs rsvg-convert (Debian: librsvg2-bin) and ImageMagick (Debian: imagemagick):
#   apt-get install librsvg2-bin imagemagick
#
# Usage: art/render.sh [output folder]   (default: Recursos beside art)
set -eu

lane='#5C636B' # the cars race on this grey; JPEG has no transparency, so it is their background
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
out=${1:-$here/../Recursos}

die() {
    echo "render.sh: $*" >&2
    exit 1
}

command -v rsvg-convert >/dev/null || die "rsvg-convert not found: install the package librsvg2-bin"
magick=$(command -v convert || command -v magick) || die "neither convert nor magick found: install the package imagemagick"

mkdir -p "$out"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# Full chroma resolution keeps the red edges sharp.
render() {
    rsvg-convert --background-color="$lane" --output="$scratch/car.png" "$here/cars/$1" || die "cannot draw $1"
    "$magick" "$scratch/car.png" -strip -sampling-factor 4:4:4 -quality 92 "$out/$2" || die "cannot write $2"
}

render 01_swift_rojo.svg "01 _ Swift rojo.jpg"
render 02_coche_blanco.svg "02 _ Blanco.jpg"
render 03_coche_azul.svg "03 _ Azul.jpg"
render 04_furgoneta_blanca.svg "04 _ Furgoneta blanca.jpg"
render 05_furgoneta_negra.svg "05 _ Furgoneta negra.jpg"
render 06_todoterreno_rojo.svg "06 _ Todoterrenorojo.jpg"
render 07_skoda_octavia_amarillo.svg "07 _ Skoda octavia amarillo.jpg"
render 08_alfa_romeo.svg "08 _ Alfa romeo.jpg"
render 09_coche_blanco_tunning.svg "09 _ Blancotunning.jpg"
render 10_formula_1.svg "10 _ Formula 1.jpg"

sizes=
for size in 16 20 24 32 40 48 64 256; do # from small lists to the largest tiles
    rsvg-convert --width="$size" --output="$scratch/icon-$size.png" "$here/pizarrin.svg" || die "cannot draw the icon"
    sizes="$sizes $scratch/icon-$size.png"
done
# shellcheck disable=SC2086 # a list of files without blanks
"$magick" $sizes "$here/pizarrin.ico" || die "cannot write the icon for Windows"
"$magick" "$scratch/icon-64.png" -depth 8 "RGBA:$here/pizarrin.rgba" || die "cannot write the icon"

# The installer's maker reads neither compressed nor transparent pictures.
rsvg-convert --output="$scratch/installer.png" "$here/installer.svg" || die "cannot draw the installer's side"
"$magick" "$scratch/installer.png" -alpha off -colors 256 -compress none "BMP3:$here/installer.bmp" || die "cannot write the installer's side"
