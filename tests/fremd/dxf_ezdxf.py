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

    # Every line begins and ends where its points are; strokes and styles are held by tests/golden_export. The ticks of
    # distances, two metres long, are the only strokes that do not end on a dot.
    striche = [(l.dxf.start, l.dxf.end) for l in auf("LINE", "BEOB")]
    enden = Counter(ort(e) for s in striche if abs(s[0].distance(s[1]) - HALB) > 1e-6 for e in s)
    linien = [(bild.raster(*l.a[:2]), bild.raster(*l.e[:2])) for l in bild.linien if l.stil <= z.ASTI]
    linien = [l for l in linien if l[0] != l[1]]
    soll = Counter(e for l in linien for e in l)
    vergleiche(fehler, "Enden der Linien", soll, soll & enden)
    # Nothing but what was looked at.
    soll = {(art, layer) for ist, art, layer in (
        (marken, "POINT", "PUNKTE"), ([p for p in marken if p.symbol == z.KREIS], "CIRCLE", "PUNKTE"),
        ([p for p in bild.punkte if 1 < p.symbol < 6], "LINE", "PUNKTE"),
        (linien, "LINE", "BEOB"), (bild.texte, "TEXT", "PUNKTNR"),
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
