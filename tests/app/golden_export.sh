#!/usr/bin/env bash
# The drawings and plots of known networks, byte for byte, through the batch mode.
# usage: golden_export.sh ZARWIK WURZEL [--schreiben]   (the last takes what comes out as expected)
set -uo pipefail
zarwik=$1
golden=$2/tests/golden_export
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
export XDG_CONFIG_HOME=$ordner
python3 "$golden/netze.py" "$ordner" || exit 1
fehler=0 anzahl=0
for optionen in "$ordner"/*.optionen; do
    netz=${optionen%.optionen}
    name=$(basename "$netz")
    eingabe=$(ls "$netz".EIN "$netz".ZRW 2>/dev/null)
    read -ra worte <"$optionen"
    "$zarwik" --export dxf,plt,zrw "${worte[@]}" --ziel "$ordner/aus" "$eingabe" 2>"$ordner/stderr" || fehler=1
    "$zarwik" --export zrw "${worte[@]}" --ziel "$ordner/ohne" "$eingabe" 2>/dev/null || fehler=1
    if ! cmp "$ordner/aus/$name.ZRW" "$ordner/ohne/$name.ZRW"; then
        echo "$name: Der Export hat das Netz verändert."
        fehler=1
    fi
    for art in DXF PLT; do
        if [ "${3:-}" = --schreiben ]; then cp "$ordner/aus/ZRW.$art" "$golden/$name.$art"; fi
        cmp "$ordner/aus/ZRW.$art" "$golden/$name.$art" || fehler=1
        anzahl=$((anzahl + 1))
    done
    if [ "$name" != 01_leer ] && [ -s "$ordner/stderr" ]; then
        cat "$ordner/stderr"
        fehler=1
    fi
done
echo "$anzahl Dateien verglichen"
vorhanden=("$golden"/*.DXF "$golden"/*.PLT)
[ ${#vorhanden[@]} -eq "$anzahl" ] || fehler=1
[ "$(wc -l <"$golden/01_leer.DXF")" -eq 8 ] || fehler=1
exit $fehler
