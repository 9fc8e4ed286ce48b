#!/usr/bin/env bash
# Poppler measures sheets with a frame: the scale, what lies beside the paper and beside the frame, fonts.
# usage: blattrahmen.sh ZARWIK WURZEL
set -euo pipefail
programme='pdffonts pdftotext pdftoppm'
. "$2/tests/fremd/hilfen/umgebung.sh"
blatt() {
    "$zarwik" --export pdf,zrw --ein blattrahmen --projekt "Los 7" --ziel "$@" "$wurzel/beispiele/NETZ.EIN"
}
blatt a3 --papier A3 --quer
blatt satz --blaetter 8 --ueberlappung 10
blatt a0 --papier A0 --aus np
"$python" "$wurzel/tests/fremd/blattrahmen_pruefung.py"
