#!/usr/bin/env bash
# Renders the icons anew from their SVG sources, in the sizes that buttons, menus and tabs need on screens of 100 to
# 200 %, so that the program does without a module for SVG:  skripte/bilder.sh
# What it writes is committed: ui/bilder/GROESSE/NAME.png, the list of resources, the icon of the Windows program, and the
# sums by which tests/skripte/bilder.sh sees that pictures and sources belong together.
set -euo pipefail
wurzel=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
. "$wurzel/skripte/pakete.sh"
brauche librsvg2-bin python3
cd "$wurzel/ui/bilder"

rm -rf [0-9]*/
zeichne() { # NAME GROESSE...
    local name=$1 groesse
    shift
    for groesse in "$@"; do
        mkdir -p "$groesse"
        rsvg-convert -w "$groesse" -h "$groesse" "$name.svg" -o "$groesse/$name.png"
    done
}
for quelle in *.svg; do
    zeichne "${quelle%.svg}" 16 20 24 30 32 36 48
done
zeichne zarwik 64 128 256 # of the program itself: the list of windows, the files

{
    echo '<!-- Written by skripte/bilder.sh. -->'
    echo '<RCC>'
    echo '  <qresource prefix="/bilder">'
    find [0-9]* -name '*.png' | LC_ALL=C sort -V | sed 's|.*|    <file>&</file>|'
    echo '  </qresource>'
    echo '</RCC>'
} >bilder.qrc
find . -name '*.svg' -o -name '*.png' | sed 's|^\./||' | LC_ALL=C sort -V | xargs sha256sum >summen.txt

python3 - "$wurzel/paket/windows/zarwik.ico" {16,20,24,32,48,64,128,256}/zarwik.png <<'ENDE'
import struct
import sys
# The pictures one behind the other, each announced with its size (0 for 256) and place.
bilder = [open(name, "rb").read() for name in sys.argv[2:]]
ort = 6 + 16 * len(bilder)
kopf = struct.pack("<HHH", 0, 1, len(bilder))
for bild in bilder:
    weite, hoehe = struct.unpack(">II", bild[16:24])
    kopf += struct.pack("<BBBBHHII", weite % 256, hoehe % 256, 0, 0, 1, 32, len(bild), ort)
    ort += len(bild)
open(sys.argv[1], "wb").write(kopf + b"".join(bilder))
ENDE
