#!/usr/bin/env bash
# A plotter understands every command of the plotter file, and its plot shows the same as the picture of the screen.
# usage: hp2xx.sh ZARWIK WURZEL
set -euo pipefail
programme='hp2xx'
. "$2/tests/fremd/hilfen/umgebung.sh"
exportiere netz "$wurzel/beispiele/NETZ.EIN"
exportiere ohne "$wurzel/beispiele/NETZ.EIN" --aus punktnummern
exportiere tafel TAFEL.ZRW --aus punktnummern
"$python" - <<'PY'
import math
import re
import subprocess
import sys
from pathlib import Path

import zrwdatei as z

fehler = []

def zeichne(ordner, breite, kante):
    """So many dots of the plot on a square sheet of that size [mm]; with the scale and the way from dots to pixels."""
    # The operator puts the pen in: the file itself does not.
    Path("blatt.plt").write_bytes(b"IN;SP1;" + Path(ordner, "ZRW.PLT").read_bytes())
    lauf = subprocess.run(f"hp2xx -m pbm -d 150 -w {kante} -h {kante} -x 0 -X {breite} -y -{breite} -Y 0 "
                          "-f blatt.pbm blatt.plt".split(),
                          stdin=subprocess.DEVNULL, capture_output=True, encoding="latin1")
    fremd = re.search(r"ignored: +(\d+)\s+Unexpected event\(s\): +(\d+)", lauf.stderr)
    if lauf.returncode or not fremd or fremd.groups() != ("0", "0"):
        sys.exit(f"hp2xx versteht {ordner} nicht:\n{lauf.stderr[-1000:]}")
    je_dot = 150 / 25.4 * kante / breite
    # The sheet has room for half the pen, two dots, on each side.
    return z.Raster.aus_pbm("blatt.pbm"), je_dot, lambda x, y: ((x + 2) * je_dot + 1, (y + 2) * je_dot + 1)

bild = z.Bild("netz/NETZ.ZRW")
mit, *_ = zeichne("netz", 40000, 200)
ohne, je_dot, auf_blatt = zeichne("ohne", 40000, 200)
def ort(x, y):
    return auf_blatt(*bild.dot(x, y))
fehler += z.pruefe_linien(bild, ohne, ort, je_dot, 180, 0.85)
# Symbols and decorations are no larger than a pixel here.
if fern := ohne.fremd([(ort(*l.a[:2]), ort(*l.e[:2])) for l in bild.linien]):
    fehler.append(f"{fern} Bildpunkte fern von allen Linien")
schirm = z.Raster.aus_png("ohne/NETZ.png")
fehler += z.pruefe_linien(bild, schirm, lambda x, y: bild.dot(x, y, bild.faktor), 1, 180, 1)

# Labels: characters 80 dots wide and 160 high, half a character between them.
for t in bild.texte:
    x, y = (v + d for v, d in zip(bild.dot(t.x, t.y), (t.abstand, -t.abstand)))
    (x0, y1), (x1, y0) = auf_blatt(x, y), auf_blatt(x + 120 * len(t.text), y - 200)
    neu = mit.neue_tinte(ohne, x0 - 1, y0 - 1, x1 + 1, y1 + 1)
    if neu < 3 * len(t.text):
        fehler.append(f"Nummer {t.text}: {neu} Bildpunkte")

# Symbols: inked and empty places round the point, in dots. Squares and rhombuses leave the pen up.
kreis = [(math.cos(i * math.pi / 8), math.sin(i * math.pi / 8)) for i in range(16)]
SYMBOLE = {z.PKT: ([(0, 0)], [(4 * x, 4 * y) for x, y in kreis]),
           z.KREIS: ([(4 * x, 4 * y) for x, y in kreis], [(r * x, r * y) for x, y in kreis for r in (1, 7)]),
           z.KREUZ: ([(-4, 0), (-2, 0), (0, 0), (4, 0), (0, -4), (0, 2), (0, 4)], [(3, 3), (-3, -3), (7, 0), (0, -7)]),
           z.DREIECK: ([(0, -4), (2, 0), (4, 4), (0, 4), (-4, 4), (-2, 0)], [(4, -4), (-4, -4), (0, 7), (0, -9)])}
tafel = z.Bild("tafel/TAFEL.ZRW")
blatt, _, auf_blatt = zeichne("tafel", 420, 400)
for symbol, (voll, leer) in SYMBOLE.items():
    x, y = next(tafel.raster(p.x, p.y) for p in tafel.punkte if p.symbol == symbol and 6 < p.nr < 13)
    for soll, stellen in ((True, voll), (False, leer)):
        fehler += [f"Symbol {symbol}: bei {s} {'nichts' if soll else 'etwas'} gezeichnet" for s in stellen
                   if blatt.tinte(*auf_blatt(x + s[0], y + s[1]), 1) != soll]
print(*fehler[:20], sep="\n")
sys.exit(bool(fehler))
PY
