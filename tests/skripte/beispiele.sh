#!/usr/bin/env bash
# The sample network in the repository is what its generator writes, byte for byte; so are the golden expectations.
# usage: beispiele.sh ZARWIK WURZEL ERZEUGER
set -euo pipefail
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
"$3" "$ordner"
for datei in "$ordner"/*; do cmp "$datei" "$2/beispiele/$(basename "$datei")"; done
[ "$(ls "$ordner")" != "" ]
python3 "$2/tests/golden/erwartung.py"
