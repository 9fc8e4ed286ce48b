#!/usr/bin/env bash
# LibreCAD draws the exchange drawing as the network lies: every line in its place, dashed ones with gaps.
# usage: librecad.sh ZARWIK WURZEL
set -euo pipefail
programme='librecad pdftoppm'
. "$2/tests/fremd/hilfen/umgebung.sh"
exportiere netz "$wurzel/beispiele/NETZ.EIN"
# Fitted to a page; the PDF comes to lie in the working folder. LibreCAD never ends on some damaged files.
(cd netz && timeout 20 librecad dxf2pdf -a ZRW.DXF) </dev/null >netz.log 2>&1 ||
    { echo "LibreCAD scheitert:" && cat netz.log && exit 1; }
pdftoppm -r 150 -mono -singlefile netz/ZRW.pdf netz
"$python" - <<'PY'
import sys

import zrwdatei as z

bild, seite = z.Bild("netz/NETZ.ZRW"), z.Raster.aus_pbm("netz.pbm")
# The extents of the network fill the page, centred.
xs, ys = zip(*(bild.raster(p.x, p.y) for p in bild.punkte))
je_dot = min(seite.breite / (max(xs) - min(xs)), seite.hoehe / (max(ys) - min(ys)))
fehler = z.pruefe_linien(
    bild, seite, lambda x, y: tuple(kante / 2 + (v - (min(alle) + max(alle)) / 2) * je_dot for v, alle, kante in zip(
        bild.raster(x, y), (xs, ys), (seite.breite, seite.hoehe))), je_dot, 180, 0.95)
print(*fehler[:20], sep="\n")
sys.exit(bool(fehler))
PY
