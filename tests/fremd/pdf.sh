#!/usr/bin/env bash
# Poppler reads the document without complaint and finds paper, numbers and lines where they belong.
# usage: pdf.sh ZARWIK WURZEL
set -euo pipefail
programme='pdfinfo pdftotext pdftoppm pdftocairo'
. "$2/tests/fremd/hilfen/umgebung.sh"
blatt() {
    "$zarwik" --export pdf,zrw --ein legende,tk25 --ziel "$@" "$wurzel/beispiele/NETZ.EIN"
}
blatt a0 --papier A0 --quer --massstab 50000
blatt a4 --massstab 50000 --dpi 1200
blatt quer --papier A4 --quer --massstab 200000 --dpi 300
"$python" "$wurzel/tests/fremd/pdf_pruefung.py"
