"""Reads exchange drawings with ezdxf and compares each with the picture file of the same network.

usage: dxf_ezdxf.py ORDNER...    in each of them one ZRW.DXF and one .ZRW; "gitter" has map sheets and squares
"""
import sys
from collections import Counter
from pathlib import Path

from ezdxf import recover
from ezdxf.audit import AuditError

import zrwdatei as z

HALB = 2.0                                   # radius, height and offset of a label [m]
SYMBOLSTRICHE = {z.KREUZ: 2, z.QUADRAT: 4, z.RAUTE: 4, z.DREIECK: 3}


def vergleiche(fehler, was, soll, ist):
    if soll != ist:
        fehler.append(f"{was}: fehlt {list((soll - ist).elements())[:3]}, zu viel {list((ist - soll).elements())[:3]}")


def pruefe(dxf, bild, gitter):
    fehler = []
    zeichnung, pruefer = recover.readfile(dxf)
    alle = list(zeichnung.modelspace())
    fehler += [f"ezdxf: {e.message}" for e in pruefer.errors]
    # The drawing declares no line types; ezdxf then falls back to that of the layer.
    fehler += [f"ezdxf: {f.message}" for f in pruefer.fixes
               if f.code != AuditError.UNDEFINED_LINETYPE or "acad_iso03w100" not in f.message]

    def ort(p, ab=0.0):
        """The dot; half a dot at most from the world position that it stands for."""
        dot = bild.dot(p.x - ab, p.y)
        if max(abs(v - round(v)) for v in dot) > 1e-3:
            fehler.append(f"{p} liegt nicht auf dem Raster des Drucks")
        return tuple(round(v) for v in dot)

    def auf(art, name):
        return [e for e in alle if e.dxftype() == art and e.dxf.layer == name]

    marken = [p for p in bild.punkte if p.symbol in (z.PKT, z.KREIS)]
    vergleiche(fehler, "POINT", Counter(bild.raster(p.x, p.y) for p in marken),
               Counter(ort(e.dxf.location) for e in auf("POINT", "PUNKTE")))
    vergleiche(fehler, "CIRCLE", Counter((bild.raster(p.x, p.y), HALB) for p in marken if p.symbol == z.KREIS),
               Counter((ort(e.dxf.center), e.dxf.radius) for e in auf("CIRCLE", "PUNKTE")))
    vergleiche(fehler, "TEXT", Counter((bild.raster(t.x, t.y), t.text, HALB, 0) for t in bild.texte),
               Counter((ort(e.dxf.insert, HALB), e.dxf.text, e.dxf.height, e.dxf.rotation)
                       for e in auf("TEXT", "PUNKTNR")))

    # Symbols of strokes: each with its number of them, reaching four dots to every side.
    symbole, striche = Counter(), [(ort(e.dxf.start), ort(e.dxf.end)) for e in auf("LINE", "PUNKTE")]
    for p in bild.punkte:
        if p.symbol not in SYMBOLSTRICHE:
            continue
        x, y = bild.raster(p.x, p.y)
        eigene = [s for s in striche if all(max(abs(ex - x), abs(ey - y)) <= z.MARKE for ex, ey in s)]
        symbole.update(eigene)
        xs, ys = zip(*[ende for s in eigene for ende in s] or [(x, y)])
        if (len(eigene), min(xs), max(xs), min(ys), max(ys)) != (
                SYMBOLSTRICHE[p.symbol], x - z.MARKE, x + z.MARKE, y - z.MARKE, y + z.MARKE):
            fehler.append(f"Symbol {p.symbol} bei Punkt {p.nr}: {eigene}")
    vergleiche(fehler, "LINE auf PUNKTE", symbole, Counter(striche))

    # The ticks of distances are in metres, all else ends on a dot.
    beob = auf("LINE", "BEOB")
    quer = [e for e in beob if abs(e.dxf.start.distance(e.dxf.end) - HALB) < 1e-6]
    linien = [(ort(e.dxf.start), ort(e.dxf.end), e.dxf.linetype != "CONTINUOUS") for e in beob if e not in quer]
    echte = [(l, bild.raster(l.a.x, l.a.y), bild.raster(l.e.x, l.e.y)) for l in bild.linien if bild.laenge(l) > 0]
    vergleiche(fehler, "Querstriche", Counter((a[0] + e[0], a[1] + e[1]) for l, a, e in echte if l.maske & z.ST),
               Counter(tuple(round(2 * v) for v in bild.dot(*e.dxf.start.lerp(e.dxf.end).vec2)) for e in quer))
    voll, gestrichelt = (sum(n) for n in zip((0, 0), *map(bild.striche, bild.linien)))
    vergleiche(fehler, "LINE auf BEOB", Counter({False: voll - len(quer), True: gestrichelt}),
               Counter(s for *_, s in linien))
    if len(pruefer.fixes) != gestrichelt:
        fehler.append(f"{len(pruefer.fixes)} nicht angegebene Linientypen statt {gestrichelt}")
    for i, was in enumerate(("Anfang", "Ende")):
        soll = Counter((enden[i], z.STILE[l.stil][4 + i]) for l, *enden in echte if l.stil in z.STILE)
        vergleiche(fehler, f"{was} der Linien", soll, soll & Counter((l[i], l[2]) for l in linien))
    # Nothing but what was looked at.
    soll = {(art, layer) for ist, art, layer in (
        (marken, "POINT", "PUNKTE"), ([p for p in marken if p.symbol == z.KREIS], "CIRCLE", "PUNKTE"),
        (symbole, "LINE", "PUNKTE"), (voll + gestrichelt, "LINE", "BEOB"), (bild.texte, "TEXT", "PUNKTNR"),
        (gitter, "LINE", "GITTER"), (gitter, "TEXT", "GITTER")) if ist}
    vergleiche(fehler, "Arten und Layer", Counter(soll), Counter({(e.dxftype(), e.dxf.layer) for e in alle}))
    return fehler


if __name__ == "__main__":
    maengel = []
    for ordner in map(Path, sys.argv[1:]):
        datei, = ordner.glob("*.ZRW")
        maengel += [f"{ordner}: {m}" for m in pruefe(ordner / "ZRW.DXF", z.Bild(datei), ordner.name == "gitter")]
    print(f"{len(sys.argv) - 1} Zeichnungen", *maengel[:20], sep="\n")
    sys.exit(bool(maengel))
