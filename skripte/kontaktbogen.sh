#!/usr/bin/env bash
# Makes docs/bilder/kontaktbogen.png anew: plans before and after ordering their numbers, and sheets with a frame.
# usage: skripte/kontaktbogen.sh ZARWIK
set -euo pipefail
zarwik=$(readlink -f "$1")
wurzel=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
. "$wurzel/skripte/pakete.sh"
brauche imagemagick poppler-utils
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
cd "$ordner"
export HOME=$ordner XDG_CONFIG_HOME=$ordner XDG_RUNTIME_DIR=$ordner QT_QPA_PLATFORM=offscreen
# A line of 160 points with branches, numbered as railways do it.
awk 'BEGIN {
    print "$NT 3"
    for (i = 0; i < 160; ++i) {
        rechts = 3500000 + i * 55; hoch = 5600000 + 600 * sin(i / 24) + (i % 3 - 1) * 25
        printf "%s%-14s 1  %.3f  %.3f\n", i ? "    " : "$NP ", 4100000 + i * 17, rechts, hoch
    }
    print "$$$"
}' >BAHN.EIN
cp "$wurzel"/beispiele/*.EIN "$wurzel"/beispiele/*.?F "$wurzel"/beispiele/*.DB .
zeige() { "$zarwik" --export "$@"; }
blatt() { # TARGET RESOLUTION OPTIONS...: its pages as pictures
    zeige pdf --ziel "$1" "${@:3}"
    pdftocairo -png -r "$2" "$1"/*.pdf "$1/blatt"
}
zeige png --groesse 1200x800 --ziel vorher NETZ.EIN
zeige png --groesse 1200x800 --ziel nachher --nummern-ordnen bild --ein halo NETZ.EIN
blatt a1vorher 110 --papier A1 --quer NETZ.EIN
blatt a1nachher 110 --papier A1 --quer --nummern-ordnen druck --ein halo,zeichenerklaerung NETZ.EIN
blatt bahnvorher 200 --papier A2 --quer BAHN.EIN
blatt bahnnachher 200 --papier A2 --quer --nummern-ordnen druck --ein halo BAHN.EIN
blatt a3 70 --papier A3 --quer --ein blattrahmen,zeichenerklaerung,halo --nummern-ordnen druck \
    --projekt 'Netz Vogelsberg' --bearbeiter 'M. Muster' --firma 'Vermessung Muster' NETZ.EIN
# Exactly eight sheets.
blatt satz 40 --papier A4 --massstab 80000 --alle-blaetter --ueberlappung 5 --ein blattrahmen \
    --nummern-ordnen druck NETZ.EIN
montage satz/blatt-*.png -tile 4x -geometry +6+6 -background gray80 satz.png
for seite in vorher nachher; do
    convert "a1$seite"/blatt-1.png -gravity center -crop 1000x700+0+0 +repage "a1$seite.png"
    convert "bahn$seite"/blatt-1.png -gravity center -crop 1000x700+0+0 +repage "bahn$seite.png"
done
montage vorher/NETZ.png nachher/NETZ.png a1vorher.png a1nachher.png bahnvorher.png bahnnachher.png \
    a3/blatt-1.png satz.png -tile 2x -geometry 1000x700+8+8 -background gray80 bogen.png
convert bogen.png -colors 128 "PNG8:$wurzel/docs/bilder/kontaktbogen.png"
