#!/usr/bin/env python3
"""Writes the networks of the export's golden files: netze.py ORDNER makes ORDNER/NAME.ZRW or .EIN and, where a network
needs options, NAME.optionen. The expected drawings and plots, NAME.DXF and NAME.PLT, lie beside this script."""
import math
import struct
import sys
from pathlib import Path

FAKTOR = 25000 / 1000 * 25.4 / 600  # metres a dot of the print: positions given in dots come out as these dots


class Bild:
    """A picture file, positions in dots of the print, y downwards."""

    def __init__(self):
        self.punkte, self.texte, self.kanten = [], [], []

    def punkt(self, x, y, typ=0, attr=1, sichtbar=1, text=b'', text_sichtbar=1, abstand=(10, -5)):
        nr = len(self.punkte) + 1
        self.punkte.append(struct.pack('<2dHI3B2q', x * FAKTOR, -y * FAKTOR, nr, 0, attr, typ, sichtbar, 0, 0))
        self.texte.append(struct.pack('<HB14sI2qB2q', nr, len(text), text, 0, *abstand, text_sichtbar, 0, 0))
        return nr

    def kante(self, a, e, stil=2, menge=0, sichtbar=1):
        self.kanten.append(struct.pack('<2H2qI3B2q', a, e, 0, 0, 0, menge, stil, sichtbar, 0, 0))

    def linie(self, x, y, dx, dy, stil, menge, sichtbar=1):
        """A line between two hidden points."""
        self.kante(self.punkt(x, y, sichtbar=0, text_sichtbar=0),
                   self.punkt(x + dx, y + dy, sichtbar=0, text_sichtbar=0), stil, menge, sichtbar)

    def bytes(self):
        kopf = struct.pack('<7d4i2Ii', 1.0, 1000, 0, 0, -1000, 0, 0, len(self.punkte), len(self.kanten), 800, 600, 0, 0, 3)
        return kopf + b''.join(self.punkte + self.texte + self.kanten)


def symbole():
    b = Bild()
    for i, typ in enumerate((0, 1, 2, 3, 4, 5, 255)):  # the last is no symbol and draws nothing
        for attr in (0, 1):
            b.punkt(100 + 40 * i, 50 + 30 * attr, typ, attr, text=b'%d%d' % (i, attr))
    return b


def linienstile():
    """Every style with every marker. Where a gap for the GPS marker may be, one line has it and one has not."""
    b = Bild()
    for stil in range(7):
        for i, menge in enumerate((5, 10) if stil < 4 else (15,)):
            b.linie(100 + 150 * stil, 50 + 30 * i, 100, 0, stil, menge)
    return b


def richtungen():
    """Every octant, and lines so short that marker and detour have no room."""
    b = Bild()
    for i, grad in enumerate((30, 60, 120, 150, 210, 240, 300, 330)):
        w = math.radians(grad)
        b.linie(200 * i, 0, round(90 * math.sin(w)), round(-90 * math.cos(w)), *((1, 3), (4, 4))[i % 2])
    for i, (laenge, stil, menge) in enumerate(((0, 2, 15), (1, 2, 15), (2, 6, 8), (8, 2, 2), (9, 2, 2), (23, 5, 0))):
        b.linie(100 * i, 500, laenge, 0, stil, menge)
    return b


def texte():
    b = Bild()
    for i, text in enumerate((b'\xc4\xd6\xdc\xe4\xf6\xfc\xdf\x80', b'mit Blank', b'12345678901234', b'', b'%d;%s;PU',
                              b'A\x03B\r\nC\x00D', b'12340056')):
        b.punkt(100, 40 * i, 1, 0, text=text, abstand=(10 - 7 * i, 3 * i))
    return b


def verborgen():
    b = Bild()
    a = b.punkt(10, 10, sichtbar=0, text=b'Punkt weg')
    e = b.punkt(60, 10, text=b'Text weg', text_sichtbar=0)
    c = b.punkt(60, 90, text=b'alles da')
    b.kante(a, e, sichtbar=0)
    b.kante(e, c, menge=1)
    b.kante(c, 999)  # one end is missing
    return b


def fern():
    b = Bild()
    punkte = [b.punkt(x, y, typ, text=b'%d' % i)
              for i, (x, y, typ) in enumerate(((2147483646, 5, 1), (2147483647, 5, 0), (5, -3000000000, 2), (10**13, 10**13, 1)))]
    for stil, (a, e) in enumerate(zip(punkte, punkte[1:] + punkte[:1])):
        b.kante(a, e, stil + 1, 15)
    return b


STEUERDATEI = '''$NT 3
$FP ROTST            1        3490000        5606000
    BERG             0    3490900.125     5606800.25
$FL KIRCHE           0        3491100        5606400
$FH NB1              0        3490500        5605700
$NP 1                1     3490200.75      5605300.5
    2W               0        3491000        5605350
$RS ROTST
$RZ BERG
    KIRCHE
    1
$RS BERG
$RZ ROTST
$ST ROTST 1
    BERG KIRCHE
$DH NB1 ROTST
$DH 2W 1
$DH 1 2W
'''

NETZE = {
    '01_leer': ('$NT 3\n', ''),
    '02_symbole': (symbole(), ''),
    '03_linienstile': (linienstile(), ''),
    '04_richtungen': (richtungen(), ''),
    '05_texte': (texte(), '--ein kurznr'),  # short numbers are for the screen only
    '06_verborgen': (verborgen(), ''),
    '07_fern': (fern(), ''),
    '08_steuerdatei': (STEUERDATEI, '--ein legende'),
    '09_gefiltert': (STEUERDATEI, '--aus fl,fh,beobachtungen'),
    '10_kartengitter': (STEUERDATEI, '--ein tk25,kmq --aus punktnummern --groesse 1500x1200'),
    '11_massstab': (STEUERDATEI, '--massstab 1000 --dpi 300'),
}


def main():
    ziel = Path(sys.argv[1])
    for name, (inhalt, optionen) in NETZE.items():
        if isinstance(inhalt, Bild):
            (ziel / (name + '.ZRW')).write_bytes(inhalt.bytes())
        else:
            (ziel / (name + '.EIN')).write_bytes(inhalt.encode('cp1252'))
        (ziel / (name + '.optionen')).write_text(optionen)


main()
