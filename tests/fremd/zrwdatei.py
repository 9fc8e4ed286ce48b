"""Picture files (.ZRW), rasters, and what plots of the one must show in the other: worked out a second time."""
import math
import re
import struct
from collections import namedtuple
from pathlib import Path

PUNKT = 25000 / 1000 * 25.4 / 600           # ground under one dot of the export [m]
GPS = 2                                      # in the mask of a line
NULL, AR2, AST, ASTI = 0, 2, 3, 6            # its style
PKT, KREIS = range(2)
MARKE = 4                                    # size of symbols and markers [dots]

Punkt = namedtuple("Punkt", "x y nr symbol")
Text = namedtuple("Text", "x y text")
Linie = namedtuple("Linie", "a e maske stil")   # a, e: Punkt

KOPF, PUNKTSATZ, TEXTSATZ, KANTENSATZ = (struct.Struct("<" + f) for f in (
    "7d4i2Ii", "2dHI3B2q", "H15pI2qB2q", "2H2qI3B2q"))


class Bild:
    """What a picture file shows: its visible points, labels and lines."""

    def __init__(self, pfad):
        daten = Path(pfad).read_bytes()
        (self.faktor, _, min_x, max_y, _, ab_x, ab_y, punkte, kanten, *_) = KOPF.unpack_from(daten)
        self.links, self.oben = min_x + ab_x, max_y + ab_y
        saetze, stelle = [], KOPF.size
        for satz, anzahl in ((PUNKTSATZ, punkte), (TEXTSATZ, punkte), (KANTENSATZ, kanten)):
            saetze.append([satz.unpack_from(daten, stelle + i * satz.size) for i in range(anzahl)])
            stelle += anzahl * satz.size
        alle = {s[2]: Punkt(s[0], s[1], s[2], s[5]) for s in saetze[0]}
        self.punkte = [alle[s[2]] for s in saetze[0] if s[6]]
        self.texte = [Text(alle[s[0]].x, alle[s[0]].y, s[1].decode("cp1252")) for s in saetze[1] if s[5]]
        self.linien = [Linie(alle[s[0]], alle[s[1]], s[5], s[6]) for s in saetze[2] if s[7]]

    def dot(self, x, y, faktor=PUNKT):
        """Position in dots, y downwards; not rounded."""
        return (x - self.links) / faktor, (self.oben - y) / faktor

    def raster(self, x, y):
        return tuple(round(v) for v in self.dot(x, y))


class Raster:
    """Rows of bytes, 1 where there is ink."""

    def __init__(self, zeilen):
        self.zeilen, self.hoehe, self.breite = zeilen, len(zeilen), len(zeilen[0])

    @classmethod
    def aus_pbm(cls, pfad):
        daten = Path(pfad).read_bytes()
        kopf = re.match(rb"P4\s+(\d+)\s+(\d+)\s", daten)
        breite, hoehe = int(kopf[1]), int(kopf[2])
        acht = [bytes(b >> k & 1 for k in range(7, -1, -1)) for b in range(256)]
        je = (breite + 7) // 8
        zeilen = (daten[kopf.end() + z * je:][:je] for z in range(hoehe))
        return cls([b"".join(map(acht.__getitem__, z))[:breite] for z in zeilen])

    def tinte(self, x, y, rand=2):
        """Ink at most so many pixels away, in each direction."""
        x, y = math.floor(x), math.floor(y)
        return any(1 in z[max(0, x - rand):max(0, x + rand + 1)]
                   for z in self.zeilen[max(0, y - rand):max(0, y + rand + 1)])


def pruefe_linien(bild, raster, ort, je_dot, mindestens, hoechstens):
    """Every long solid line of the picture is inked from end to end, and dashed ones have gaps.

    ort: world to pixels; je_dot: pixels per dot, for the gap at a GPS marker; mindestens: number of solid lines;
    hoechstens: inked part of the dashed ones. Returns what is wrong.
    """
    fehler, geprueft, striche = [], 0, []
    for l in bild.linien:
        a, e = ort(l.a.x, l.a.y), ort(l.e.x, l.e.y)
        weit = math.dist(a, e)
        voll = l.stil == AR2 or (l.stil == NULL and l.maske & GPS)
        if weit < 15 or not (voll or (l.stil == AST and not l.maske & GPS)):
            continue
        # Not at the ends, where others meet it, and not within the marker.
        stellen = [t / weit for t in range(4, int(weit) - 3, 2)
                   if not l.maske & GPS or abs(t - weit / 2) > 2 * MARKE * je_dot + 2]
        treffer = [raster.tinte(*(p + (q - p) * t for p, q in zip(a, e))) for t in stellen]
        if not voll:
            striche += treffer
            continue
        geprueft += 1
        if sum(treffer) < 0.95 * len(treffer):
            fehler.append(f"Linie {l.a.nr}-{l.e.nr}: nur {sum(treffer)} von {len(treffer)} Stellen gezeichnet")
    if geprueft < mindestens:
        fehler.append(f"nur {geprueft} Linien geprüft")
    anteil = sum(striche) / len(striche)
    if not 0.3 < anteil <= hoechstens:
        fehler.append(f"gestrichelte Linien zu {anteil:.0%} gezeichnet")
    print(f"{geprueft} durchgezogene Linien; gestrichelte zu {anteil:.0%} gezeichnet")
    return fehler
