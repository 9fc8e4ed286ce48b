#!/usr/bin/env bash
# Poppler reads where the words of a plan stand: after ordering no point numbers lie on each other, and none
# across the edge of a sheet.
# usage: nummern.sh ZARWIK WURZEL
set -euo pipefail
programme='pdftotext'
. "$2/tests/fremd/hilfen/umgebung.sh"
blatt() {
    "$zarwik" --export pdf --papier A1 --massstab 100000 --ein halo --ziel "$@" "$wurzel/beispiele/NETZ.EIN"
    pdftotext -bbox "$1/NETZ.pdf" "$1.html"
}
blatt vorher
blatt nachher --nummern-ordnen druck
"$zarwik" --export pdf --massstab 50000 --alle-blaetter --nummern-ordnen druck --ziel blaetter "$wurzel/beispiele/NETZ.EIN"
pdftotext -bbox blaetter/NETZ.pdf blaetter.html
"$python" "$wurzel/tests/fremd/nummern_pruefung.py" vorher.html nachher.html blaetter.html
