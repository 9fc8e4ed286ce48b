"""Picture files (.ZRW), rasters, and what plots of the one must show in the other: worked out a second time."""
import math
import re
import struct
import zlib
from collections import namedtuple
from pathlib import Path

PUNKT = 25000 / 1000 * 25.4 / 600           # ground under one dot of the export [m]
ST, GPS, DH1, DH2 = 1, 2, 4, 8
NULL, AR1, AR2, AST, ARI1, ARI2, ASTI = range(7)
PKT, KREIS, KREUZ, QUADRAT, RAUTE, DREIECK = range(6)
MARKE = 4                                    # size of symbols and markers [dots]

# Per style: solid and dashed strokes, the same where a GPS marker keeps the middle open, and whether the
# first and the last stroke are dashed. Detours have six strokes.
STILE = {NULL: (1, 0, 1, 0, False, False), AR1: (1, 1, 1, 1, False, True), AR2: (1, 0, 2, 0, False, False),
         AST: (0, 1, 0, 2, True, True), ARI1: (3, 3, 3, 3, False, True), ARI2: (6, 1, 6, 1, False, False),
         ASTI: (3, 4, 3, 4, True, True)}
MARKEN = {ST: 1, GPS: 4, DH1: 1, DH2: 2}     # strokes per decoration

Punkt = namedtuple("Punkt", "x y nr symbol")
Text = namedtuple("Text", "x y text abstand")
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
        self.texte = [Text(alle[s[0]].x, alle[s[0]].y, s[1].decode("cp1252"), s[3]) for s in saetze[1] if s[5]]
        self.linien = [Linie(alle[s[0]], alle[s[1]], s[5], s[6]) for s in saetze[2] if s[7]]

    def dot(self, x, y, faktor=PUNKT):
        """Position in dots, y downwards; not rounded."""
        return (x - self.links) / faktor, (self.oben - y) / faktor

    def raster(self, x, y):
        return tuple(round(v) for v in self.dot(x, y))

    def laenge(self, linie):
        return math.dist(self.raster(linie.a.x, linie.a.y), self.raster(linie.e.x, linie.e.y))

    def striche(self, linie):
        """Number of solid and of dashed strokes."""
        laenge = self.laenge(linie)
        if laenge == 0:
            return 0, 0
        gps = 2 if linie.maske & GPS and laenge > 2 * MARKE else 0
        voll, gestrichelt = STILE[linie.stil][gps:gps + 2] if linie.stil in STILE else (0, 0)
        return voll + sum(n for bit, n in MARKEN.items() if linie.maske & bit), gestrichelt


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

    @classmethod
    def aus_png(cls, pfad):
        """Eight bits of red, green and blue, not interlaced. All but white is ink."""
        daten, stelle, gepackt = Path(pfad).read_bytes(), 8, b""
        assert daten[:8] == b"\x89PNG\r\n\x1a\n"
        while stelle < len(daten):
            laenge, art = struct.unpack_from(">I4s", daten, stelle)
            inhalt = daten[stelle + 8:stelle + 8 + laenge]
            assert zlib.crc32(art + inhalt) == struct.unpack_from(">I", daten, stelle + 8 + laenge)[0]
            if art == b"IHDR":
                breite, hoehe, *form = struct.unpack(">2I5B", inhalt)
                assert form == [8, 2, 0, 0, 0], form
            gepackt += inhalt if art == b"IDAT" else b""
            stelle += 12 + laenge
        roh, je, zeilen = zlib.decompress(gepackt), 3 * breite, []
        vorher = bytes(je)
        for z in range(hoehe):
            filterart, zeile = roh[z * (je + 1)], bytearray(roh[z * (je + 1) + 1:(z + 1) * (je + 1)])
            for i in range(je if filterart else 0):
                a, b, c = (zeile[i - 3], vorher[i], vorher[i - 3]) if i >= 3 else (0, vorher[i], 0)
                dazu = min((a, b, c), key=lambda v: abs(a + b - c - v)) if filterart == 4 else \
                    (a, b, (a + b) // 2)[filterart - 1]
                zeile[i] = zeile[i] + dazu & 255
            vorher = zeile
            zeilen.append(bytes(zeile[i:i + 3] != b"\xff\xff\xff" for i in range(0, je, 3)))
        return cls(zeilen)

    def tinte(self, x, y, rand=2):
        """Ink at most so many pixels away, in each direction."""
        x, y = math.floor(x), math.floor(y)
        return any(1 in z[max(0, x - rand):max(0, x + rand + 1)]
                   for z in self.zeilen[max(0, y - rand):max(0, y + rand + 1)])

    def neue_tinte(self, vorher, x0, y0, x1, y1):
        """Number of pixels of a box that are inked here and were not before."""
        x0, y0, x1, y1 = (max(0, math.floor(v)) for v in (x0, y0, x1, y1))
        return sum(n > v for neu, alt in zip(self.zeilen[y0:y1 + 1], vorher.zeilen[y0:])
                   for n, v in zip(neu[x0:x1 + 1], alt[x0:]))

    def fremd(self, wege, rand=3):
        """Number of inked pixels farther than that from all ways; a way is a pair of pixel positions."""
        erlaubt = [bytearray(self.breite + 2 * rand) for _ in range(self.hoehe + 2 * rand)]
        breit = b"\1" * (2 * rand + 1)
        for a, e in wege:
            n = math.ceil(math.dist(a, e)) + 1
            for i in range(n + 1):
                x, y = (math.floor(p + (q - p) * i / n) for p, q in zip(a, e))
                if 0 <= x < self.breite and 0 <= y < self.hoehe:
                    for z in erlaubt[y:y + 2 * rand + 1]:
                        z[x:x + 2 * rand + 1] = breit
        return sum(t > m for zeile, maske in zip(self.zeilen, erlaubt[rand:]) for t, m in zip(zeile, maske[rand:]))


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


def schreibe_tafel(pfad):
    """A sheet of 400 m by 300 m within a solid frame: all symbols, all styles with all decorations, hidden
    figures, odd lines, umlauts. Labels are hidden but for those of the symbols."""
    punkte, texte, kanten = [], [], []

    def punkt(x, y, symbol=PKT, text=None, sichtbar=1):
        nr = len(punkte) + 1
        punkte.append(PUNKTSATZ.pack(3500000.137 + x, 5600000.291 + y, nr, 0, nr % 2, symbol, sichtbar, 0, 0))
        zeichen = (text or f"p{nr}").encode("cp1252")
        texte.append(TEXTSATZ.pack(nr, zeichen, 0, 10, -5, text is not None, 0, 0))
        return nr

    def linie(a, e, stil, maske=0, sichtbar=1):
        kanten.append(KANTENSATZ.pack(a, e, 0, 0, 255, maske, stil, sichtbar, 0, 0))

    for ecke in ((0, 0), (400, 300)):
        punkt(*ecke)
    rahmen = [punkt(x, y) for x, y in ((2, 2), (398, 2), (398, 298), (2, 298))]
    for i in range(4):
        linie(rahmen[i], rahmen[(i + 1) % 4], AR2)
    for i, text in enumerate(("KÜHBG", "Äöß €", "12", "a b", "REF1", "35562804000105", "unbekannt")):
        punkt(20 + 50 * i, 285, i if i < 6 else 9, text)
    punkt(380, 285, KREIS, sichtbar=0)
    for i, stil in enumerate((AST, AR1, NULL)):
        linie(punkt(20, 270 - 4 * i), punkt(380, 270 - 4 * i), stil, GPS if stil == NULL else 0)
    for zeile, stil in enumerate((*STILE, 9)):
        for maske in range(16):
            x, y = 6 + 24 * maske, 16 + 30 * zeile
            linie(punkt(x, y), punkt(x + 16, y + 12 * (-1) ** maske), stil, maske)
    a, nah, weg = punkt(388, 100), punkt(392, 100), punkt(388, 100)
    for stil in STILE:
        linie(a, nah, stil, GPS | ST)       # no longer than its marker
        linie(a, weg, stil, GPS | DH2)      # of no length
    linie(rahmen[0], rahmen[2], AR2, sichtbar=0)
    kopf = KOPF.pack(1.0, 3501000, 3499980, 5600310, 5599000, 5, 10, len(punkte), len(kanten), 1200, 800, 0, 0, 1)
    Path(pfad).write_bytes(b"".join([kopf, *punkte, *texte, *kanten]))
