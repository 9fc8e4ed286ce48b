#!/usr/bin/env python3
"""Works out the picture file that every control file below this folder must give.

A second, deliberately plain implementation: it shares nothing with the program, so a fault has to be
made twice to go unseen. It only reads, fits and stores a network; it does not draw.

    erwartung.py              compares with the committed files, exit code 1 on any difference
    erwartung.py --schreiben  writes erwartet.ZRW anew (meldungen.txt stays written by hand, or absent where
                              there are no messages)
"""
import math
import re
import struct
import sys
from dataclasses import dataclass
from pathlib import Path

WEITE, HOEHE, RAND = 1200, 800, 30            # picture size and margin [px]
BESCHRIFTUNG = (10, -5)                       # offset of a new label from its point [px]

# Colours 0x00BBGGRR as the settings start.
PUNKTFARBE = {b"$FP": 0x000000, b"$FL": 0x808080, b"$FH": 0x008000, b"$NP": 0x0000FF}
RICHTUNGSFARBE, AZIMUTFARBE, GPSFARBE = 0x0000FF, 0x800080, 0xFF00FF

# Ordinals and bits as they stand in the file.
PKT, KREI, FU = 0, 1, 1
L_NULL, L_AR1, L_AR2, L_AST = 0, 1, 2, 3
K_ST, K_GPS, K_DH1, K_DH2 = 1, 2, 4, 8

# What the first observation of a pair of points gives: colour, kinds of observation, line style.
NEUE_KANTE = {b"$RZ": (RICHTUNGSFARBE, 0, L_AR1), b"$AZ": (AZIMUTFARBE, 0, L_AR1),
              b"$ST": (RICHTUNGSFARBE, K_ST, L_AST), b"$DH": (RICHTUNGSFARBE, K_DH1, L_AST),
              b"$ZD": (RICHTUNGSFARBE, K_DH1, L_AST), b"$SV": (GPSFARBE, K_GPS, L_NULL)}

SCHLUESSEL = {b"$" + s.encode() for s in (
    "$$ CC MS MR MH MA MN MV R0 S0 V0 H0 P0 G0 XO YO RD RS RZ ST SR DH ZD SH SV SK SG EL QG AU GW "
    "FP NP FL FH NT AZ PD PF LS SF RF HF GF KF WF RT NI KS LA KV").split()}
EINBINDEN = {b"$SF", b"$RF", b"$HF", b"$GF", b"$KF"}
EINZELWERTE = {b"$XO": "xo", b"$YO": "yo", b"$EL": "ellipsoid", b"$NT": "netztyp", b"$PF": "punktformat"}
BLOCKZEILEN = {b"$XO", b"$YO", b"$CC", b"$WF", b"$KF"}   # do not end a block of points
NETZTYPEN_GPS = {3, 6, 7, 50, 51}

GANZZAHL = re.compile(rb"[+-]?[0-9]+")
REELL = re.compile(rb"[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eEdD][+-]?[0-9]+)?")
WORT = re.compile(rb"[^ \t]+")
ZWEI_WORTE = re.compile(rb"[ \t]*[^ \t]+[ \t]+[^ \t]+")


class Abbruch(Exception):
    """A number is malformed or a coordinate file lost: no picture, unless it is only a point line."""


class Leseende(Exception):
    """Reading ends here; what was read stays."""


def ganzzahl(wort):
    if not GANZZAHL.fullmatch(wort):
        raise Abbruch(wort)
    return int(wort)


def reell(wort):
    # float() alone would let "nan", "inf" and "1_0" pass and would not know the exponent letter D.
    if not REELL.fullmatch(wort):
        raise Abbruch(wort)
    return float(wort.upper().replace(b"D", b"E"))


def felder(text, *leser):
    """Reads as many words as there are readers; text behind them is of no interest."""
    worte = WORT.findall(text)
    if len(worte) < len(leser):
        raise Abbruch(text)
    return [lies(wort) for lies, wort in zip(leser, worte)]


def Int(v):
    # Keeps the sign of a zero as truncation in floating point does: Int(-0.4) is -0.0.
    return math.copysign(float(math.trunc(v)), v)


RHO = 57.29577951308232
# Semi-major axis [m] and flattening.
ELLIPSOIDE = {1: (6377397.155, 1 / 299.15281), 2: (6378388.0, 1 / 297.0), 3: (6378245.0, 1 / 298.3),
              4: (6378135.0, 1 / 298.26), 5: (6378137.0, 1 / 298.257223563),
              6: (6378137.0, 1 / 298.257222101)}


def GradDezimal(v):
    """Degrees.minutesseconds to decimal degrees."""
    d = math.trunc(abs(v))
    r = (abs(v) - d) * 100
    return math.copysign(d + math.trunc(r) / 60 + (r - math.trunc(r)) * 100 / 3600, v)


def querkruemmung(a, f, phi):
    """Radius of curvature in the prime vertical [m] at phi [rad]."""
    return a / math.sqrt(1 - math.sin(phi) ** 2 * (2 * f - f * f))


def CartesianToGeo(nummer, X, Y, Z):
    """Latitude and longitude [deg] of an earth-centred position [m] with X > 0."""
    a, f = ELLIPSOIDE[nummer]
    e2 = 2 * f - f * f
    lam = math.atan(Y / X)
    p = math.sqrt(X * X + Y * Y)

    def breite(N, h):
        return math.atan((Z / p) / (1 - e2 * N / (N + h)))

    phi = math.pi / 4
    for _ in range(100):                      # neighbouring doubles may alternate for ever
        N = querkruemmung(a, f, phi)
        h = Z / math.sin(phi) - (1 - f) ** 2 * N
        neu = breite(N, h)
        if abs(phi - neu) < 1e-16:
            break
        phi = neu
    N = querkruemmung(a, f, breite(N, h))
    return breite(N, h) * RHO, lam * RHO


def GeoToGrid(hauptmeridian, laenge, breite, f, a):
    """Northing and easting [m] of the Gauss-Krueger zone of a central meridian in whole degrees."""
    k0 = 1.0
    e2 = 2 * f - f * f
    es = e2 / (1 - e2)
    c = a / math.sqrt(1 - e2)
    phi = breite / RHO
    l = (laenge - hauptmeridian) / RHO
    t = math.tan(phi)
    cs = math.cos(phi)
    N = c / math.sqrt(1 + es * cs * cs)
    A0 = 1 - 3 / 4 * es + 45 / 64 * es ** 2 - 175 / 256 * es ** 3 + 11025 / 16384 * es ** 4
    A2 = -3 / 8 * es + 15 / 32 * es ** 2 - 525 / 1024 * es ** 3 + 2205 / 4096 * es ** 4
    A4 = 15 / 256 * es ** 2 - 105 / 1024 * es ** 3 + 2205 / 16384 * es ** 4
    A6 = -35 / 3072 * es ** 3 + 315 / 12288 * es ** 4
    G = c * (A0 * phi + A2 * math.sin(2 * phi) + A4 * math.sin(4 * phi) + A6 * math.sin(6 * phi))
    x = (k0 * N * math.atan(t / math.cos(l)) + k0 * (G - N * phi)
         + 3 / 8 * k0 * es * N * cs ** 6 * t * l ** 4)
    q = cs * math.sin(l)
    y = (k0 / 2 * N * math.log((1 + q) / (1 - q)) + k0 / 6 * es * N * cs ** 5 * l ** 3
         + k0 / 60 * es * N * cs ** 7 * (7 - 29 * t * t) * l ** 5 + 500000)
    return x, y + math.trunc(hauptmeridian / 3) * 1000000


@dataclass
class Punkt:
    nummer: bytes
    rechts: float                             # [m]
    hoch: float                               # [m]
    farbe: int
    typ: int
    bild: tuple = (0, 0)                      # [px]


@dataclass
class Kante:
    a: int
    e: int
    farbe: int
    k: int                                    # kinds of observation, as bits
    l: int                                    # line style


class Netz:
    """Points are numbered from 1 in the order of their coming."""

    def __init__(self):
        self.punkte, self.kanten = [], []

    def index(self, nummer):
        return next((i for i, p in enumerate(self.punkte, 1) if p.nummer == nummer[:14]), 0)

    def beobachtung(self, art, p1, p2):
        """Merges one observation; unknown points (0) and a point with itself leave no trace."""
        if p1 < 1 or p2 < 1 or p1 == p2:
            return
        k = next((k for k in self.kanten if {k.a, k.e} == {p1, p2}), None)
        if not k:
            self.kanten.append(Kante(p1, p2, *NEUE_KANTE[art]))
        elif art in (b"$RZ", b"$AZ"):
            if k.l in (L_NULL, L_AST):
                k.a, k.e, k.l = p1, p2, L_AR1     # a direction decides which way the line runs
            elif k.l == L_AR1 and k.a == p2:
                k.l = L_AR2                       # seen from the other end before
        elif art in (b"$DH", b"$ZD"):
            if k.l == L_AST and k.a == p2:
                k.a, k.e = p1, p2                 # bits set before stay as they are
            k.k |= K_DH1 if k.a == p1 else K_DH2
        else:
            k.k |= NEUE_KANTE[art][1]


def zeilen(datei):
    return [z.removesuffix(b"\r") for z in datei.read_bytes().split(b"\n")]


def finde(ordner, name):
    """File of a name that may use either separator and any case; None when there is none."""
    ort = ordner
    for teil in re.split(r"[/\\]", name):
        ort = next((o for o in sorted(ort.iterdir()) if o.name.lower() == teil.lower()), None) \
            if ort and ort.is_dir() else None
    return ort if ort and ort.is_file() else None


class Leser:
    xo = yo = 0.0
    ellipsoid, hauptmeridian = 1, 9
    netztyp = punktformat = standpunkt = 0

    def __init__(self, ordner):
        self.ordner = ordner
        self.haupt = zeilen(ordner / "NETZ.EIN")
        self.einschub = []                    # lines of the open include file
        self.netz = Netz()
        self.meldungen = []

    def naechste(self):
        """Key and rest of the next line, the include file first; None at the very end."""
        quelle = self.einschub or self.haupt
        zeile = quelle.pop(0) if quelle else None
        return zeile if zeile is None else (zeile[:3], zeile[3:])

    def lesen(self):
        """Network, or None when reading ended without one."""
        try:
            self.satzschleife()
        except Abbruch:
            return None
        except Leseende:
            pass
        return self.netz

    def satzschleife(self):
        letzter = None
        while (gelesen := self.naechste()) is not None:
            schluessel, rest = gelesen
            if schluessel == b"$$$":
                raise Leseende
            im_block = letzter in PUNKTFARBE and schluessel in BLOCKZEILEN
            if schluessel in SCHLUESSEL and not im_block:
                letzter = schluessel
            if rest.strip(b" \t"):
                self.satz(schluessel if im_block else letzter, rest, im_block)

    def satz(self, s, rest, im_block):
        if s in PUNKTFARBE:
            self.punktzeile(s, rest)
        elif s in EINZELWERTE:
            wert, = felder(rest, reell if s in (b"$XO", b"$YO") else ganzzahl)
            setattr(self, EINZELWERTE[s], wert)
        elif s == b"$KS":
            # The mode byte is for others: points are always projected in Gauss-Krueger mode.
            self.hauptmeridian, _ = felder(rest, ganzzahl, ganzzahl)
        elif s == b"$RS":
            self.standpunkt = self.indizes(rest)[0]
        elif s in (b"$RZ", b"$AZ"):
            self.netz.beobachtung(s, self.standpunkt, self.indizes(rest)[0])
        elif s in (b"$ST", b"$DH", b"$ZD"):
            self.netz.beobachtung(s, *self.indizes(rest))
        elif s == b"$SH" and self.netztyp in NETZTYPEN_GPS:
            self.gpsblock(rest)
        elif s in EINBINDEN and not self.einschub:
            self.einbinden(rest, im_block)

    def indizes(self, rest):
        """Indices of the points that the first two words name; 0 for a missing or unknown one."""
        return [self.netz.index(w) for w in (WORT.findall(rest) + [b"", b""])[:2]]

    def gpsblock(self, rest):
        _, anzahl = felder(rest[1:], ganzzahl, ganzzahl)
        offen = abs(anzahl)
        while offen and (gelesen := self.naechste()) is not None:
            schluessel, rest = gelesen
            if schluessel == b"$$$":
                raise Leseende
            if schluessel != b"$SV":
                continue                      # neither counted nor obeyed
            offen -= 1
            felder(rest, ganzzahl, ganzzahl)
            # Behind the two integers it goes by position: a number may hold blanks.
            nummern = rest[ZWEI_WORTE.match(rest).end():]
            p1, p2 = nummern[1:15].strip(b" \t"), nummern[16:30].strip(b" \t")
            self.netz.beobachtung(b"$SV", self.netz.index(p1), self.netz.index(p2))

    def punktzeile(self, s, rest):
        nummer = rest[1:15].strip(b" \t")
        try:
            lage = self.lage(rest[15:])
        except Abbruch:
            self.meldungen.append(("Lesefehler bei Punkt" + nummer.decode("cp1252"))[:35])
            return
        if lage and not self.netz.index(nummer):
            code, x, y = lage
            self.netz.punkte.append(Punkt(nummer, y, x, PUNKTFARBE[s], KREI if code > 0 else PKT))

    def lage(self, text):
        """Point code, X (northing) and Y (easting); None when the network type has no coordinates."""
        typ = self.netztyp
        if typ in (1, 2, 3, 51):
            code, x, y = felder(text, ganzzahl, reell, reell)
            if self.punktformat == 0:
                x, y = y, x
            return code, x + self.xo, y + self.yo
        if typ in (4, 50):
            code, *w = felder(text, ganzzahl, *[reell] * 6)
            # The sum is decimal already; taking it through GradDezimal once more is meant.
            return (code, GradDezimal(w[0] + w[1] / 60 + w[2] / 3600),
                    GradDezimal(w[3] + w[4] / 60 + w[5] / 3600))
        if typ in (6, 7):
            code, *xyz = felder(text, ganzzahl, *[reell] * 3)
            breite, laenge = CartesianToGeo(self.ellipsoid, *xyz)
            a, f = ELLIPSOIDE[self.ellipsoid]
            return code, *GeoToGrid(self.hauptmeridian, laenge, breite, f, a)
        return None

    def einbinden(self, rest, im_block):
        name = rest[1:].strip(b" \t").decode("cp1252")
        datei = finde(self.ordner, name)
        if datei:
            self.einschub = zeilen(datei)
        elif im_block:                        # a lost coordinate file stops the whole program
            self.meldungen.append(f"Kann Datei {name} nicht öffnen!")
            raise Abbruch
        else:                                 # spelling kept as users know it
            self.meldungen.append(f"Kann Datei {name} nicht öffenen!")
            raise Leseende


def bilddatei(netz, netztyp):
    """Bytes of the picture file of a network fitted into the picture."""
    faktor, maxx, minx, maxy, miny = 1.0, 0.0, 0.0, 0.0, 0.0
    if netz.punkte:
        rechts, hoch = [p.rechts for p in netz.punkte], [p.hoch for p in netz.punkte]
        minx, maxx = Int(min(rechts) / 1000 - 1) * 1000, Int(max(rechts) / 1000 + 1) * 1000
        miny, maxy = Int(min(hoch) / 1000 - 1) * 1000, Int(max(hoch) / 1000 + 1) * 1000
        dx, dy = maxx - minx, maxy - miny
        # Width goes with the picture's height and the other way round, as the plots have always been.
        faktor = dx / (HOEHE - RAND) if dy < dx else dy / WEITE
    for p in netz.punkte:
        # round() takes halves to the even neighbour.
        p.bild = round((p.rechts - (minx + 0.0)) / faktor), round((maxy + 0.0 - p.hoch) / faktor)

    # Newest first, as the lists grow at their head; "<" packs without gaps.
    aus = [struct.pack("<7d7i", faktor, maxx, minx, maxy, miny, 0.0, 0.0, len(netz.punkte),
                       len(netz.kanten), WEITE, HOEHE, 0, 0, netztyp)]
    nummeriert = list(enumerate(netz.punkte, 1))[::-1]
    for i, p in nummeriert:
        aus.append(struct.pack("<2dHI3B2q", p.rechts, p.hoch, i, p.farbe, FU, p.typ, 1, *p.bild))
    for i, p in nummeriert:
        # 14s fills the text up with zeros.
        aus.append(struct.pack("<HB14sI2qB2q", i, len(p.nummer), p.nummer, p.farbe, *BESCHRIFTUNG, 1,
                               *p.bild))
    for k in reversed(netz.kanten):
        aus.append(struct.pack("<2H2qI3B2q", k.a, k.e, *netz.punkte[k.e - 1].bild, k.farbe, k.k, k.l, 1,
                               *netz.punkte[k.a - 1].bild))
    return b"".join(aus)


def angeglichen(ist, soll, netz, toleranz):
    """Takes over world coordinates within a tolerance [m]: last bits hang on the mathematics library."""
    ist = bytearray(ist)
    for o in (84 + 41 * i + j for i in range(len(netz.punkte)) for j in (0, 8)):
        if abs(struct.unpack_from("<d", ist, o)[0] - struct.unpack_from("<d", soll, o)[0]) <= toleranz:
            ist[o:o + 8] = soll[o:o + 8]
    return ist


def pruefe(ordner, schreiben):
    """Faults of one folder, as texts."""
    leser = Leser(ordner)
    netz = leser.lesen()
    ziel = ordner / "erwartet.ZRW"
    soll = bilddatei(netz, leser.netztyp) if netz else None
    if schreiben and soll is not None:
        ziel.write_bytes(soll)
    ist = ziel.read_bytes() if ziel.is_file() else None
    toleranz = ordner / "toleranz.txt"
    if toleranz.is_file() and ist and len(ist) == len(soll):
        ist = angeglichen(ist, soll, netz, float(toleranz.read_text()))
    if ist != soll:
        stelle = next((i for i, (x, y) in enumerate(zip(ist or b"", soll or b"")) if x != y), "Ende")
        yield f"{ordner.name}: erwartet.ZRW weicht ab (Byte {stelle})"
    erwartet = ordner / "meldungen.txt"
    meldungen = erwartet.read_text(encoding="utf-8").splitlines() if erwartet.is_file() else []
    if meldungen != leser.meldungen:
        yield f"{ordner.name}: meldungen.txt hat {meldungen} statt {leser.meldungen}"


def main():
    ordner = sorted(d.parent for d in Path(__file__).resolve().parent.glob("*/NETZ.EIN"))
    fehler = [f for o in ordner for f in pruefe(o, "--schreiben" in sys.argv[1:])]
    print(*fehler, f"{len(ordner)} Ordner, {len(fehler)} Abweichungen", sep="\n")
    return 1 if fehler or not ordner else 0      # no folder at all must not look like success


if __name__ == "__main__":
    sys.exit(main())
