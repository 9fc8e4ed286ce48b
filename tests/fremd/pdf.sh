#!/usr/bin/env bash
# Poppler reads the document without complaint and finds paper, numbers and lines where they belong.
# usage: pdf.sh ZARWIK WURZEL
set -euo pipefail
programme='pdfinfo pdffonts pdftotext pdftoppm pdftocairo'
. "$2/tests/fremd/hilfen/umgebung.sh"
blatt() {
    "$zarwik" --export pdf,zrw --ein legende,tk25 --ziel "$@" "$wurzel/beispiele/NETZ.EIN"
}
blatt a0 --papier A0 --quer --massstab 50000
blatt a4 --massstab 100000 --dpi 1200 2>meldung
blatt quer --papier A4 --quer --massstab 200000 --dpi 300
"$zarwik" --export pdf --ziel ohne "$wurzel/beispiele/NETZ.EIN"
# 150 m, far from the corner of the picture.
printf '$NT 1\n$FP A              1 1010 1010\n$FP B              1 1020 1160\n' >klein.EIN
"$zarwik" --export pdf --massstab 1000 --ziel klein klein.EIN
"$zarwik" --export pdf --massstab 500 --ziel klein2 klein.EIN 2>>meldung
"$zarwik" --export pdf --massstab 100 --ziel netz3 "$wurzel/beispiele/NETZ.EIN" 2>>meldung
# A system without fonts: the document asks the viewer for one.
mkdir -p leer
echo "<fontconfig><dir>$PWD/leer</dir><cachedir>$PWD/leer</cachedir></fontconfig>" >fonts.conf
FONTCONFIG_FILE=$PWD/fonts.conf "$zarwik" --export pdf --ziel leer "$wurzel/beispiele/NETZ.EIN" 2>>meldung
"$python" "$wurzel/tests/fremd/pdf_pruefung.py"
