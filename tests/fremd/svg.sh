#!/usr/bin/env bash
# Another program draws the scalable picture as the network lies; its XML is sound, with layers and texts.
# usage: svg.sh ZARWIK WURZEL
set -euo pipefail
programme='rsvg-convert pdftoppm'
. "$2/tests/fremd/hilfen/umgebung.sh"
for netz in "$wurzel/beispiele/NETZ.EIN" 03_linienstile.ZRW; do
    name=$(basename "${netz%.*}")
    "$zarwik" --export svg,zrw --groesse 1200x800 --ziel "$name" --ein legende,tk25 "$netz"
    rsvg-convert -f pdf -o "$name.pdf" "$name/$name.svg" 2>stderr
    [ ! -s stderr ] || { echo "$name: rsvg-convert klagt:" && cat stderr && exit 1; }
    pdftoppm -scale-to-x 4800 -scale-to-y 3200 -mono -singlefile "$name.pdf" "$name"
done
"$python" - <<'PY'
import sys
import xml.etree.ElementTree as ET

import zrwdatei as z

SVG = "{http://www.w3.org/2000/svg}"
fehler = []
for name, ebenen, mindestens in (("NETZ", "GITTER BEOB PUNKTE PUNKTNR LEGENDE", 180),
                                 ("03_linienstile", "BEOB LEGENDE", 3)):
    bild, wurzel = z.Bild(f"{name}/{name}.ZRW"), ET.parse(f"{name}/{name}.svg").getroot()
    gruppen = [g.get("id") for g in wurzel.iter(SVG + "g")]
    if gruppen != ebenen.split():
        fehler.append(f"{name}: Gruppen {gruppen}")
    texte = {t.text: (float(t.get("x")), float(t.get("y"))) for g in wurzel.iter(SVG + "g")
             if g.get("id") == "PUNKTNR" for t in g.iter(SVG + "text")}
    soll = {t.text: bild.dot(t.x, t.y, bild.faktor) for t in bild.texte}
    if texte.keys() != soll.keys():
        fehler.append(f"{name}: Nummern {texte.keys() ^ soll.keys()}")
    for text, (x, y) in soll.items():  # ten pixels to the right, five up, down to the baseline, from the pixel's corner
        if max(abs(texte[text][0] - x - 9.5), abs(texte[text][1] - y + 5 - 9.5)) > 0.6:
            fehler.append(f"{name}: {text} bei {texte[text]}")
    # Four pixels to a dot, whole positions in its middle.
    fehler += z.pruefe_linien(bild, z.Raster.aus_pbm(f"{name}.pbm"),
                              lambda x, y: tuple(4 * v + 2 for v in bild.dot(x, y, bild.faktor)), 4, mindestens, 0.97)
print(*fehler[:20], sep="\n")
sys.exit(bool(fehler))
PY
