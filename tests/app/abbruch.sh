#!/usr/bin/env bash
# Killed at any moment, saving leaves the old file or the new one, whole.
# usage: abbruch.sh ZARWIK WURZEL
set -uo pipefail
zarwik=$1
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
cd "$ordner" || exit 1
export XDG_CONFIG_HOME=$ordner
# A plot of 60 000 points, so that writing takes a while, and the small one that it is to replace.
python3 - <<'PY'
import struct
def bild(n):
    kopf = struct.pack('<7d4i2Ii', 25.0, 1e5, 0, 1e5, 0, 0, 0, n, 0, 1200, 800, 0, 0, 1)
    punkte = b''.join(struct.pack('<2dHI3B2q', i, i, i, 0, 1, 1, 1, 0, 0) for i in range(1, n + 1))
    texte = b''.join(struct.pack('<H15pI2qB2q', i, b'%d' % i, 0, 10, -5, 1, 0, 0) for i in range(1, n + 1))
    return kopf + punkte + texte
open('gross.ZRW', 'wb').write(bild(60000))
open('klein.ZRW', 'wb').write(bild(3))
PY
mkdir ziel
"$zarwik" --export zrw --ziel . klein.ZRW && mv klein.ZRW alt.ZRW || exit 1
"$zarwik" --export zrw --ziel ziel gross.ZRW && mv ziel/gross.ZRW neu.ZRW || exit 1
alte=0 neue=0
for i in $(seq 60); do
    cp alt.ZRW ziel/gross.ZRW
    "$zarwik" --export zrw --ziel ziel gross.ZRW &
    sleep "0.$(printf %03d $((i * 3)))"
    kill -KILL $! 2>/dev/null
    wait $! 2>/dev/null
    if cmp -s ziel/gross.ZRW alt.ZRW; then
        alte=$((alte + 1))
    elif cmp -s ziel/gross.ZRW neu.ZRW; then
        neue=$((neue + 1))
    else
        echo "Abbruch nach $((i * 3)) ms: halbe Datei"
        exit 1
    fi
done
echo "$alte alte, $neue neue Dateien"
[ $alte -gt 0 ] && [ $neue -gt 0 ]
