#!/usr/bin/env bash
# Results of the adjustment in the batch mode: flagged observations are marked and overlays drawn where the tables
# lie beside the control file; a damaged table is told and costs nothing else.
# usage: ergebnisse.sh ZARWIK WURZEL
set -euo pipefail
zarwik=$1 wurzel=$2
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
export XDG_CONFIG_HOME=$ort/einstellungen
mkdir "$ort/mit" "$ort/ohne"
cp "$wurzel"/beispiele/*.EIN "$wurzel"/beispiele/*.KF "$wurzel"/beispiele/*.SF "$ort/ohne"
cp "$ort"/ohne/* "$wurzel"/beispiele/*.DB "$ort/mit"
fehler=0

pruefe() { # STATUS MARKS COLOUR FOLDER OPTION...: marked lines, and the colour of what lies over the network
    local status=0 soll=$1 marken=$2 farbe=$3 ordner=$4
    shift 4
    "$zarwik" --export svg,geojson --ziel "$ort/aus" "$@" "$ort/$ordner/NETZ.EIN" 2>"$ort/meldung" || status=$?
    local ist farben
    ist=$(grep -c '"grob":true' "$ort/aus/NETZ.geojson" || true)
    farben=$(sed -n '/class="ERGEBNISSE"/,/<\/g>/s/.*stroke="\(#[^"]*\)".*/\1/p' "$ort/aus/NETZ.svg" | sort -u | xargs)
    if [ "$status $ist $farben" != "$soll $marken $farbe" ] || { [ "$soll" = 0 ] && [ -s "$ort/meldung" ]; }; then
        echo "$ordner $*: $status $ist $farben statt $soll $marken $farbe" && cat "$ort/meldung" && fehler=1
    fi
}
pruefe 0 0 "" ohne
pruefe 0 7 "" mit
pruefe 0 0 "#000000" ohne --ein lageverb # the scale bar alone
for schalter in lageverb lagegen; do pruefe 0 7 "#000000 #ff0000" mit --ein $schalter; done
for schalter in hoehenverb hoehengen; do pruefe 0 7 "#000000 #0000ff" mit --ein $schalter; done
mv "$ort/mit/STRTABLE.DB" "$ort/mit/strtable.db"
pruefe 0 7 "" mit
truncate -s 3000 "$ort/mit/KooTABLE.DB"
pruefe 1 7 "#000000" mit --ein lagegen
grep -q 'KooTABLE.DB' "$ort/meldung" || { echo "Die beschädigte Tabelle wird nicht genannt." && fehler=1; }
# A picture file is not marked, so colouring is the first to meet the damaged table.
cp "$wurzel/beispiele/LINIEN.ZRW" "$ort/mit"
truncate -s 3000 "$ort/mit/strtable.db"
status=0
"$zarwik" --export png --einfaerben TG --ziel "$ort/aus" "$ort/mit/LINIEN.ZRW" 2>"$ort/meldung" || status=$?
if [ $status != 1 ] || ! grep -qi 'strtable.db.*färbt nichts' "$ort/meldung"; then
    echo "Einfärben nach einer beschädigten Tabelle: $status" && cat "$ort/meldung" && fehler=1
fi
exit $fehler
