"""Strict check of written tables: every .DB of a folder with its .PX, byte for byte, without code of the program.

usage: paradox.py FOLDER    0: all sound, 1: with reasons, 77: no table there
"""
import math
import struct
import sys
from pathlib import Path

BREITE = {1: None, 2: 4, 3: 2, 4: 4, 5: 8, 6: 8, 9: 1, 0x14: 4, 0x15: 8}  # what a written table may hold
SORTIERUNG, CODESEITE, SORTIERNAME = 0x62, 1252, b"ANSIINTL\0"
TEIL2 = 0x78
KOPFENDE = 0x58


class Schaden(Exception):
    """One reason why a file is not sound."""


def verlange(bedingung, text):
    if not bedingung:
        raise Schaden(text)


def u16(b, stelle):
    return struct.unpack_from("<H", b, stelle)[0]


def u32(b, stelle):
    return struct.unpack_from("<I", b, stelle)[0]


def gross(b):
    """Whole number of a record."""
    return int.from_bytes(b, "big") - (1 << 8 * len(b) - 1)


class Kopf:
    """What both kinds of file have; `soll` adds what only one has. All bytes not expected otherwise are zero."""

    def __init__(self, b, art):
        verlange(len(b) >= KOPFENDE, "kürzer als ein Kopf")
        self.satz, self.laenge, self.zeilen = u16(b, 0), u16(b, 2), u32(b, 6)
        self.block, self.bloecke, self.version = b[5] * 1024, u16(b, 0x0C), b[0x39]
        self.felder = u16(b, 0x21)
        verlange(self.version in (0x0B, 0x0C), f"Version {self.version:#x}")
        verlange(self.laenge % 2048 == 0 and 0 < self.laenge <= len(b), f"Kopf von {self.laenge} Bytes")
        verlange(b[5] in (2, 4) and (art == 0 or b[5] == 2), f"Blöcke von {b[5]} KiB")
        verlange(1 <= self.felder <= 255, f"{self.felder} Felder")
        verlange(0 < self.satz <= self.block - 6, f"Satz von {self.satz} Bytes")
        verlange(len(b) == self.laenge + self.bloecke * self.block, "Dateilänge")
        self.name = 261 if self.version == 0x0C else 79
        self.soll = bytearray(KOPFENDE)
        struct.pack_into("<HHBBIHHHHH", self.soll, 0, self.satz, self.laenge, art, b[5], self.zeilen, self.bloecke,
                         self.bloecke, min(self.bloecke, 1), self.bloecke, 4 if art else 3)
        struct.pack_into("<H", self.soll, 0x21, self.felder)
        self.soll[0x29], self.soll[0x39] = SORTIERUNG, self.version
        struct.pack_into("<H", self.soll, 0x3A, self.bloecke)

    def vergleiche(self, b):
        self.soll += bytes(self.laenge - len(self.soll))
        falsch = [f"{i:#x}: {b[i]:02X} statt {s:02X}" for i, s in enumerate(self.soll) if b[i] != s]
        verlange(not falsch, "Kopf, " + "; ".join(falsch[:5]))

    def kette(self, b):
        """Records of the blocks 1, 2, 3 ...: each names its neighbours, and what it has no use for is zero."""
        saetze = []
        for nr in range(1, self.bloecke + 1):
            anfang = self.laenge + (nr - 1) * self.block
            naechster, voriger, zusatz = struct.unpack_from("<HHh", b, anfang)
            verlange(naechster == (nr + 1 if nr < self.bloecke else 0), f"Block {nr}: nächster {naechster}")
            verlange(voriger == nr - 1, f"Block {nr}: voriger {voriger}")
            verlange(zusatz >= 0 and zusatz % self.satz == 0, f"Block {nr}: {zusatz} Bytes nach dem ersten Satz")
            ende = anfang + 6 + zusatz + self.satz
            verlange(ende <= anfang + self.block, f"Block {nr} ist übervoll")
            verlange(not any(b[ende:anfang + self.block]), f"Block {nr}: der Rest ist nicht null")
            saetze.append([b[i:i + self.satz] for i in range(anfang + 6, ende, self.satz)])
        voll = (self.block - 6) // self.satz
        verlange(all(len(s) == voll for s in saetze[:-1]), "ein Block vor dem letzten ist nicht voll")
        return saetze


def pruefe_felder(k, b):
    """Field table and names, against the check values. Returns the types and widths."""
    n = k.felder
    arten = list(zip(b[TEIL2:TEIL2 + 2 * n:2], b[TEIL2 + 1:TEIL2 + 2 * n:2]))
    for art, groesse in arten:
        verlange(art in BREITE and groesse == (BREITE[art] or groesse) and groesse > 0,
                 f"Feldart {art:#x} mit Breite {groesse}")
    verlange(arten[0][0] == 4, "der Schlüssel ist keine ganze Zahl")
    verlange(sum(g for _, g in arten) == k.satz, "die Breiten ergeben nicht den Satz")
    stelle = TEIL2 + 6 * n + 4
    tabellenname = b[stelle:stelle + k.name]
    verlange(tabellenname.rstrip(b"\0").endswith(b".DB") and 0 not in tabellenname.rstrip(b"\0"), "Tabellenname")
    namen = b[stelle + k.name:k.laenge].split(b"\0")[:n]
    verlange(all(1 <= len(name) <= 25 for name in namen), "Länge eines Feldnamens")
    verlange(len({name.decode("cp1252").upper() for name in namen}) == n, "zwei gleiche Feldnamen")
    k.soll += bytes(TEIL2 - KOPFENDE) + b"".join(bytes(a) for a in arten) + bytes(4 + 4 * n) + tabellenname
    k.soll += b"".join(name + b"\0" for name in namen)
    nummern = len(k.soll)
    k.soll += b"".join(struct.pack("<H", i + 1) for i in range(n))
    sortiername = len(k.soll)
    k.soll += SORTIERNAME
    struct.pack_into("<H", k.soll, 0x51, len(k.soll))
    struct.pack_into("<HHIIHHHHBBHH", k.soll, KOPFENDE, 0x100 + k.version, 0x100 + k.version, 0, u32(b, 0x60), n + 1,
                     nummern - KOPFENDE, 0, CODESEITE, 1, 1, sortiername - KOPFENDE, 1)
    return arten


def pruefe_wert(art, roh):
    if not any(roh):
        return True  # null
    if art == 1:
        return roh == roh.split(b"\0")[0].ljust(len(roh), b"\0")
    if art == 9:
        return roh[0] in (0x80, 0x81)
    if art in (5, 6, 0x15):
        v = int.from_bytes(roh, "big")
        v = v ^ 1 << 63 if v >> 63 else v ^ (1 << 64) - 1
        zahl, = struct.unpack(">d", v.to_bytes(8, "big"))
        return math.isfinite(zahl) and (zahl != 0 or v == 0)  # no negative zero
    if art == 0x14:
        return 0 <= gross(roh) < 86_400_000
    return True


def pruefe_tabelle(b):
    """Returns head and the records of each block."""
    k = Kopf(b, 0)
    arten = pruefe_felder(k, b)
    struct.pack_into("<H", k.soll, 0x23, 1)
    struct.pack_into("<I", k.soll, 0x25, 0xFF00FF00)
    k.soll[0x2D], k.soll[0x2E], k.soll[0x56] = 2, 1, 0x20
    k.soll[0x3E:0x40] = b"\x1F\x0F"
    k.vergleiche(b)
    verlange((2048 - 6) // k.satz >= 3 if k.block == 2048 else (2048 - 6) // k.satz < 3 <= (4096 - 6) // k.satz,
             f"Blockgröße {k.block} für Sätze von {k.satz} Bytes")
    bloecke = k.kette(b)
    saetze = [s for block in bloecke for s in block]
    verlange(len(saetze) == k.zeilen, f"{len(saetze)} statt {k.zeilen} Sätzen")
    for vorher, satz in zip(saetze, saetze[1:]):
        verlange(vorher[:4] < satz[:4], f"Schlüssel {gross(satz[:4])} steigt nicht")
    verlange(not saetze or any(saetze[0][:4]), "ein Schlüssel fehlt")
    for satz in saetze:
        stelle = 0
        for nr, (art, breite) in enumerate(arten, 1):
            verlange(pruefe_wert(art, satz[stelle:stelle + breite]), f"Satz {gross(satz[:4])}, Feld {nr}: Wert")
            stelle += breite
    return k, bloecke


def pruefe_index(b, tabelle, bloecke, stempel, tabellenname):
    """Every level, worked out anew from the records of the table, has to stand there."""
    k = Kopf(b, 1)
    verlange(k.version == tabelle.version, "Index und Tabelle haben nicht dieselbe Version")
    verlange(k.satz == 10 and k.felder == 1, "der Index hat einen anderen Schlüssel")
    je_block = (k.block - 6) // k.satz
    ebenen = [[(s[0][:4], nr, len(s)) for nr, s in enumerate(bloecke, 1)]] if bloecke else []
    while ebenen and len(ebenen[-1]) > je_block:
        unten = [ebenen[-1][i:i + je_block] for i in range(0, len(ebenen[-1]), je_block)]
        ebenen.append([(teil[0][0], nr, sum(e[2] for e in teil)) for nr, teil in enumerate(unten, 1)])
    ebenen.reverse()  # the root is block 1
    blockzahl = [-(-len(e) // je_block) for e in ebenen]
    verlange(k.bloecke == sum(blockzahl), f"{k.bloecke} statt {sum(blockzahl)} Indexblöcke")
    verlange(k.zeilen == sum(map(len, ebenen)), f"{k.zeilen} statt {sum(map(len, ebenen))} Einträge")
    k.soll[0x1E], k.soll[0x20], k.soll[0x2C], k.soll[0x49] = 1, len(ebenen), stempel, 1
    k.soll += bytes((4, 4, 0, 0, 0, 0)) + tabellenname.replace(b".DB\0", b".PX\0")
    struct.pack_into("<H", k.soll, 0x51, len(k.soll))
    k.vergleiche(b)
    soll = []
    for tiefe, ebene in enumerate(ebenen):
        darueber = sum(blockzahl[:tiefe + 1]) if tiefe + 1 < len(ebenen) else 0
        eintraege = [s + b"".join((v ^ 0x8000).to_bytes(2, "big") for v in (ziel + darueber, min(zahl, 0xFFFF), 0))
                     for s, ziel, zahl in ebene]
        soll += [eintraege[i:i + je_block] for i in range(0, len(eintraege), je_block)]
    for nr, (ist, erwartet) in enumerate(zip(indexbloecke(k, b), soll), 1):
        for i, (a, e) in enumerate(zip(ist, erwartet), 1):
            verlange(a == e, f"Indexblock {nr}, Eintrag {i}: {a.hex()} statt {e.hex()}")
        verlange(len(ist) == len(erwartet), f"Indexblock {nr}: {len(ist)} statt {len(erwartet)} Einträge")


def indexbloecke(k, b):
    """Like the chain of a table, but the last block of each level may be partly filled."""
    je_block = (k.block - 6) // k.satz
    bloecke = []
    for nr in range(1, k.bloecke + 1):
        anfang = k.laenge + (nr - 1) * k.block
        naechster, voriger, zusatz = struct.unpack_from("<HHh", b, anfang)
        verlange((naechster, voriger) == ((nr + 1) % (k.bloecke + 1), nr - 1), f"Indexblock {nr}: Verkettung")
        verlange(zusatz >= 0 and zusatz % k.satz == 0 and zusatz // k.satz < je_block, f"Indexblock {nr}: {zusatz}")
        ende = anfang + 6 + zusatz + k.satz
        verlange(not any(b[ende:anfang + k.block]), f"Indexblock {nr}: der Rest ist nicht null")
        bloecke.append([b[i:i + k.satz] for i in range(anfang + 6, ende, k.satz)])
    return bloecke


def pruefe(db, px):
    """The first reason against the pair, or nothing."""
    try:
        tabelle, bloecke = pruefe_tabelle(db)
        stelle = TEIL2 + 6 * tabelle.felder + 4
        stempel = db[0x2D] + (db[0x29] + 2 if db[0x29] else 0)
        pruefe_index(px, tabelle, bloecke, stempel - 255 if stempel > 255 else stempel,
                     db[stelle:stelle + tabelle.name])
    except Schaden as e:
        return str(e)
    except (IndexError, struct.error, UnicodeDecodeError) as e:
        return f"zu kurz oder keine Tabelle ({e})"
    return None


def unbemerkt(db, px):
    """Changed bytes of the heads that the check lets pass: it must be able to fail."""
    stumm = set(range(0x60, 0x64))  # the time
    for stelle in [*range(0x78), *range(0x800, min(len(db), 0x80A))]:
        neu = bytearray(db)
        neu[stelle] ^= 0x80
        if stelle not in stumm and pruefe(bytes(neu), px) is None:
            yield f"DB {stelle:#x}"
    for stelle in [*range(0x5E), *range(0x800, min(len(px), 0x810))]:
        neu = bytearray(px)
        neu[stelle] ^= 0x80
        if pruefe(db, bytes(neu)) is None:
            yield f"PX {stelle:#x}"


def main(ordner):
    dateien = {p.suffix.upper() + p.stem.upper(): p for p in ordner.iterdir() if p.suffix.upper() in (".DB", ".PX")}
    if not dateien:
        print(f"Keine Tabellen in {ordner}.")
        return 77
    gruende, paare = [], []
    for stamm in sorted({schluessel[3:] for schluessel in dateien}):
        if len(paar := [dateien.get(art + stamm) for art in (".DB", ".PX")]) == 2 and all(paar):
            paare.append(tuple(p.read_bytes() for p in paar))
            if grund := pruefe(*paare[-1]):
                gruende.append(f"{stamm}: {grund}")
        else:
            gruende.append(f"{stamm}: Tabelle oder Index fehlt")
    if not gruende:
        kleinstes = min(paare, key=lambda p: (len(p[1]) == 2048, len(p[0])))  # but with records
        gruende += [f"Änderung nicht bemerkt: {wo}" for wo in unbemerkt(*kleinstes)]
    print(*gruende[:20] or [f"{len(paare)} Tabellen mit Index geprüft"], sep="\n")
    return 1 if gruende else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
