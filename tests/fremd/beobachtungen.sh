#!/usr/bin/env bash
# List and statistics of the observations against a reader of the tables that knows nothing but their format: the
# sample's, tables with null values and shares in per cent, and a folder without one of them.
# usage: beobachtungen.sh ZARWIK WURZEL
set -euo pipefail
programme=''
. "$2/tests/fremd/hilfen/umgebung.sh"
pruefung=$wurzel/tests/fremd/beobachtungen_pruefung.py
for name in ganz null ohne; do
    mkdir "$name"
    cp "$wurzel"/beispiele/*.{EIN,KF,SF,DB} "$name"
done
"$python" "$pruefung" --aendere null
rm ohne/DHTABLE.DB
for name in ganz null ohne; do
    "$zarwik" --export liste,statistik --ziel "$name" "$name/NETZ.EIN"
    "$python" "$pruefung" "$name" "$name/NETZ_beobachtungen.csv" "$name/NETZ_statistik.json"
done
