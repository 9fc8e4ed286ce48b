#!/usr/bin/env bash
# LibreCAD draws the exchange drawing as the network lies, with dashes, symbols and labels.
# usage: librecad.sh ZARWIK WURZEL
set -euo pipefail
programme='librecad pdftoppm'
. "$2/tests/fremd/hilfen/umgebung.sh"
exportiere netz "$wurzel/beispiele/NETZ.EIN"
exportiere tafel TAFEL.ZRW
exportiere ohne TAFEL.ZRW --aus punktnummern
for ziel in netz tafel ohne; do
    # Fitted to a page; the PDF comes to lie in the working folder. LibreCAD never ends on some damaged files.
    (cd $ziel && timeout 10 librecad dxf2pdf -a ZRW.DXF) </dev/null >$ziel.log 2>&1 ||
        { echo "LibreCAD scheitert:" && cat $ziel.log && exit 1; }
    pdftoppm -r 150 -mono -singlefile $ziel/ZRW.pdf $ziel
done
"$python" - <<'PY'
import math
import sys

import zrwdatei as z

def auf_seite(bild, raster):
    """The extents of the network fill the page, centred: world to pixels, and pixels per dot."""
    xs, ys = zip(*(bild.raster(p.x, p.y) for p in bild.punkte))
    je_dot = min(raster.breite / (max(xs) - min(xs)), raster.hoehe / (max(ys) - min(ys)))

    def ort(x, y):
        return tuple(kante / 2 + (v - (min(alle) + max(alle)) / 2) * je_dot for v, alle, kante in zip(
            bild.raster(x, y), (xs, ys), (raster.breite, raster.hoehe)))
    return ort, je_dot

fehler = []
for name, datei, mindestens in (("netz", "netz/NETZ.ZRW", 180), ("tafel", "tafel/TAFEL.ZRW", 20)):
    bild, seite = z.Bild(datei), z.Raster.aus_pbm(f"{name}.pbm")
    ort, je_dot = auf_seite(bild, seite)
    fehler += z.pruefe_linien(bild, seite, ort, je_dot, mindestens, 0.95)
    if name == "netz" and (fern := seite.fremd([(ort(*l.a[:2]), ort(*l.e[:2])) for l in bild.linien])):
        fehler.append(f"{fern} Bildpunkte fern von allen Linien")  # all else is too small to see here
ohne = z.Raster.aus_pbm("ohne.pbm")
kreis, = (p for p in bild.punkte if p.symbol == z.KREIS and p.nr < 20)
x, y = ort(kreis.x, kreis.y)
je_m = je_dot / z.PUNKT
for w in (i * math.pi / 8 for i in range(16)):
    if not ohne.tinte(x + 2 * je_m * math.cos(w), y + 2 * je_m * math.sin(w), 1):
        fehler.append(f"Kreis: bei {math.degrees(w)}° nicht gezeichnet")
for t in bild.texte:
    x, y = ort(t.x, t.y)
    neu = seite.neue_tinte(ohne, x + 2 * je_m - 1, y - 2 * je_m - 1, x + (2 + 1.5 * len(t.text)) * je_m, y + 1)
    if neu < 2 * len(t.text):
        fehler.append(f"Nummer {t.text}: {neu} Bildpunkte")
print(*fehler[:20], sep="\n")
sys.exit(bool(fehler))
PY
