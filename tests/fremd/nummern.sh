#!/usr/bin/env bash
# Poppler reads where the words of a plan stand: after ordering no point numbers lie on each other.
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
"$python" "$wurzel/tests/fremd/nummern_pruefung.py" vorher.html nachher.html
