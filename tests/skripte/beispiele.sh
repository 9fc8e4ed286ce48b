#!/usr/bin/env bash
# The sample network in the repository with its ten result tables is what its generator writes, byte for byte; so are
# the golden expectations.
# usage: beispiele.sh ZARWIK WURZEL ERZEUGER
set -euo pipefail
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
"$3" "$ordner"
for datei in "$ordner"/*; do cmp "$datei" "$2/beispiele/$(basename "$datei")"; done
tabellen() { find "$1" -maxdepth 1 -iname '*TABLE.DB' -o -maxdepth 1 -iname '*TABLE.PX' | sed 's|.*/||' | sort; }
[ "$(tabellen "$ordner" | wc -l)" -eq 20 ]
[ "$(tabellen "$ordner")" = "$(tabellen "$2/beispiele")" ]
python3 "$2/tests/golden/erwartung.py"
