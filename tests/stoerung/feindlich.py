#!/usr/bin/env python3
"""Mutated copies of real files, and mutated calls, through the whole program under a memory limit and a time limit.

usage: feindlich.py ZARWIK WURZEL [--anzahl N] [--saat S] [--nur NUMMER] [--funde ORDNER]
                    [--ohne-speichergrenze]

A run must end in time, by itself, with status 0 or 1 (2 for a call), with a message where it is not 0, and leave only
whole files. Each run depends on seed and number alone; --nur repeats one and keeps its folder. Exit status 1 after
any finding; the folders of findings are kept.
"""

import argparse
import os
import random
import re
import resource
import shutil
import sys
import tempfile
import time
from pathlib import Path

from gemeinsam import DATEINAMEN, SANITIZER, halbe_dateien, lauf

SPEICHER = 512 << 20  # address space [bytes]
ZEIT = 10.0           # of one run [s]
ZAHLEN = [b"0", b"-1", b"1e308", b"-1e308", b"1e-308", b"nan", b"inf", b"65535", b"65536", b"4294967296",
          b"9223372036854775808", b"-9223372036854775809", b"1.7976931348623159e308", b"0.0000000000001", b"1D+99",
          b"360", b"400", b"9" * 400, b".", b"-", b"+-5", b"1e", b"3500000,5"]
GANZE = [0, 1, 0x7F, 0x80, 0xFF, 0x7FFF, 0x8000, 0xFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF]
WORTE = [b"\n$$$\n", b"$NT 6\n", b"$NT 50\n", b"$XO 1e300\n", b"$SF NETZ.EIN\n", b"$KF KOORD.KF\n", b"\0", b"\xff\xfe",
         b"\xef\xbb\xbf", b"\r", b"\t", b"$FP ", b"$SH ", b"$RS ", b"\x1a", b"%n%s",
         b"$KF ../../../../../../etc/passwd\n"]


def aendere(b, zufall, andere):
    """One small or large change to the bytes of a file."""
    b = bytearray(b)
    n = len(b)

    def stelle():
        return zufall.randrange(len(b) + 1)

    art = zufall.randrange(12)
    if n == 0 or art == 0:
        i = stelle()
        b[i:i] = zufall.choice(WORTE)
    elif art == 1:
        for _ in range(zufall.choice((1, 1, 2, 8, 64))):
            b[zufall.randrange(n)] ^= 1 << zufall.randrange(8)
    elif art == 2:
        for _ in range(zufall.choice((1, 1, 4, 32))):
            b[zufall.randrange(n)] = zufall.choice((0, 1, 0x20, 0x7F, 0x80, 0xFF, zufall.randrange(256)))
    elif art == 3:  # a number of 1, 2, 4 or 8 bytes, where headers stand more often than not
        breite = zufall.choice((1, 2, 4, 8))
        i = zufall.randrange(min(n, 128)) if zufall.random() < 0.6 else zufall.randrange(n)
        b[i:i + breite] = (zufall.choice(GANZE) & ((1 << 8 * breite) - 1)).to_bytes(breite, "little")
    elif art == 4:
        del b[stelle():]
    elif art == 5:
        i = stelle()
        del b[i:i + zufall.choice((1, 2, 10, 100, 4096))]
    elif art == 6:
        i, weite = stelle(), zufall.choice((1, 10, 100, 2048, 20000))
        b[i:i] = b[i:i + weite] * zufall.choice((1, 2, 50))
    elif art == 7:
        i = stelle()
        b[i:i] = bytes([zufall.choice((0, 0x20, 0x41, 0x24, 0xFF))]) * zufall.choice((1, 14, 255, 70000))
    elif art == 8:
        fremd = zufall.choice(andere)
        i, j, weite = stelle(), zufall.randrange(len(fremd) + 1), zufall.choice((16, 200, 4096))
        b[i:i + weite] = fremd[j:j + weite]
    elif art == 9:
        zahlen = list(re.finditer(rb"[-+]?\d+\.?\d*", bytes(b)))
        for m in sorted(zufall.sample(zahlen, min(len(zahlen), zufall.choice((1, 3, 20)))),
                        key=lambda m: m.start(), reverse=True):
            b[m.start():m.end()] = zufall.choice(ZAHLEN)
    elif art == 10:
        zeilen = bytes(b).split(b"\n")
        i, j = zufall.randrange(len(zeilen)), zufall.randrange(len(zeilen))
        zeilen[i], zeilen[j] = zeilen[j], zeilen[i]
        b[:] = b"\n".join(zeilen)
    else:
        i, j = sorted((stelle(), stelle()))
        b[:] = b[j:] + b[i:j] + b[:i]
    return bytes(b[:4 << 20])


def saetze(wurzel):
    """Sets of files that belong together: (name of the file to open, {name: content})."""
    alle = []
    beispiel = {p.name: p.read_bytes() for p in (wurzel / "beispiele").iterdir()
                if p.suffix in (".EIN", ".KF", ".SF", ".DB", ".PX", ".ZRW")}
    alle += [("NETZ.EIN", beispiel)] * 12 + [("LINIEN.ZRW", beispiel)] * 3
    for ordner in sorted((wurzel / "tests/golden").iterdir()):
        if not ordner.is_dir():
            continue
        dateien = {str(p.relative_to(ordner)): p.read_bytes() for p in ordner.rglob("*") if p.is_file()}
        if "NETZ.EIN" in dateien:
            alle.append(("NETZ.EIN", dateien))
        if "erwartet.ZRW" in dateien:
            alle.append(("erwartet.ZRW", dateien))
    # What the fuzzers keep: odd tables take the place of a table that is read.
    for p in sorted((wurzel / "fuzz/korpus/Tabelle").iterdir()):
        alle.append(("NETZ.EIN", {**beispiel, "KooTABLE.DB": p.read_bytes(), "STRTABLE.DB": p.read_bytes()}))
    for p in sorted((wurzel / "fuzz/korpus/Bilddatei").iterdir()):
        alle.append((p.name + ".ZRW", {p.name + ".ZRW": p.read_bytes()}))
    return alle


EINSTELLUNGEN = b"[ZRWPAR]\nFPCol=0\nNPCol=255\nPTSize=4\nHPSize=2\nFang=5\nPXOff=10\nPYOff=-5\nGFCol=128\nResMF=1.0\n"
SCHALTER = "legende tk25 kmq lageverb hoehenverb lagegen hoehengen kurznr blattschnitt".split()


def optionen(zufall):
    formate = zufall.sample(sorted(DATEINAMEN), zufall.choice((1, 2, 3)))
    worte = ["--export", ",".join(formate), "--ziel", "ziel",
             "--groesse", zufall.choice(("100x100", "300x200", "1200x800", "100x4000"))]
    if zufall.random() < 0.5:
        worte += ["--massstab", zufall.choice(("1", "500", "25000", "1e12", "0.000001", "1e15"))]
    if zufall.random() < 0.3:
        worte += ["--dpi", zufall.choice(("1", "72", "600", "100000"))]
    if zufall.random() < 0.2:
        worte += ["--alle-blaetter"]
    for option, anteil in (("--ein", 0.6), ("--aus", 0.1)):
        if zufall.random() < anteil:
            worte += [option, ",".join(zufall.sample(SCHALTER, zufall.randint(1, 5)))]
    return worte


def aufruf(zufall, worte):
    """Mutates the call itself. Names stay below the folder: no slash, no dots in front."""
    def wort():
        laenge = zufall.choice((0, 1, 3, 30, 5000, 100000))
        b = bytes(zufall.choice((zufall.randrange(1, 256), zufall.choice(b"-=,x0123456789")))
                  for _ in range(min(laenge, 400)))
        b = b.replace(b"/", b"_").replace(b".", b"_")
        return (b * (laenge // max(1, len(b))))[:laenge]

    worte = [w.encode() for w in worte]
    for _ in range(zufall.choice((1, 2, 5))):
        i = zufall.randrange(2, len(worte) + 1)
        art = zufall.randrange(4)
        if art == 0:
            worte[i:i] = [wort()] * zufall.choice((1, 1, 2, 3000))
        elif art == 1:
            worte[i:i + 1] = [wort()[:120000]]
        elif art == 2:
            del worte[i:i + 1]
        else:
            worte[i:i] = [zufall.choice((b"--ein", b"--aus", b"--dpi", b"--groesse=", b"--", b"-", b"--quer=1",
                                           b"--ziel"))]
    while sum(map(len, worte)) > 1500000:
        worte.pop()
    return worte


def ein_lauf(nummer, saat, saetze_, andere, zarwik, ort, grenzen):
    """@return (files mutated or "Aufruf", findings, status)"""
    zufall = random.Random(f"{saat}/{nummer}")
    datei, inhalte = zufall.choice(saetze_)
    for name, inhalt in inhalte.items():
        p = Path(ort, name)
        p.parent.mkdir(parents=True, exist_ok=True)
        p.write_bytes(inhalt)
    os.mkdir(os.path.join(ort, "ziel"))
    worte = optionen(zufall)
    nur_aufruf = nummer % 20 == 19
    if nur_aufruf:
        geaendert = ["Aufruf"]
        worte = aufruf(zufall, [*worte, datei])
    else:
        # Mostly the file that is opened, else one that it leads to.
        namen = sorted(inhalte)
        geaendert = [datei if zufall.random() < 0.4 else zufall.choice(namen) for _ in range(zufall.choice((1, 1, 2)))]
        if zufall.random() < 0.1:
            geaendert = ["e.ini"]
            Path(ort, "e.ini").write_bytes(EINSTELLUNGEN)
            worte += ["--einstellungen", "e.ini"]
        for name in geaendert:
            inhalt = Path(ort, name).read_bytes()
            for _ in range(zufall.choice((1, 1, 2, 5))):
                inhalt = aendere(inhalt, zufall, andere)
            Path(ort, name).write_bytes(inhalt)
        worte.append(datei)
    e = lauf([zarwik, *worte], ort, zeit=ZEIT, grenzen=grenzen)
    funde = []
    if e.status is None:
        funde.append("Zeit überschritten")
    elif e.status not in ((0, 1, 2) if nur_aufruf else (0, 1)):
        funde.append(f"Status {e.status}")
    elif e.status != 0 and not e.meldung.strip():
        funde.append("ohne Meldung")
    if "std::" in e.meldung or SANITIZER.search(e.meldung):
        funde.append(f"Meldung {e.meldung.strip()[:80]}")
    if re.search(r"[\x00-\x09\x0b-\x1f\x7f-\x9f]", e.meldung):
        funde.append("Steuerzeichen in der Meldung")
    if e.status is not None and e.status >= 0:
        halb = halbe_dateien(os.path.join(ort, "ziel")) + [str(p) for p in Path(ort).rglob("*.neu")]
        if halb:
            funde.append(f"nicht ganz: {halb}")
    return geaendert, funde, e.status


def main():
    p = argparse.ArgumentParser()
    p.add_argument("zarwik")
    p.add_argument("wurzel", type=Path)
    p.add_argument("--anzahl", type=int, default=5000)
    p.add_argument("--saat", type=int, default=1)
    p.add_argument("--nur", type=int)
    p.add_argument("--funde")
    p.add_argument("--ohne-speichergrenze", action="store_true", help="for builds with sanitizers")
    o = p.parse_args()
    saetze_ = saetze(o.wurzel)
    andere = [i for _, inhalte in saetze_ for i in inhalte.values() if i]
    zarwik = os.path.abspath(o.zarwik)
    grenzen = {} if o.ohne_speichergrenze else {"RLIMIT_AS": SPEICHER}
    ablage = o.funde or tempfile.mkdtemp(prefix="feindlich")
    zahl = {"Aufruf": 0, "Einstellungen": 0, "Steuerdatei": 0, "Einfügung": 0, "Zarwikdatei": 0, "Tabelle": 0}
    stand = {}
    gefunden = 0
    laengster = (0.0, 0)
    for nummer in range(o.anzahl) if o.nur is None else [o.nur]:
        ort = tempfile.mkdtemp(prefix="lauf", dir=ablage)
        anfang = time.monotonic()
        geaendert, funde, status = ein_lauf(nummer, o.saat, saetze_, andere, zarwik, ort, grenzen)
        laengster = max(laengster, (time.monotonic() - anfang, nummer))
        stand[status] = stand.get(status, 0) + 1
        for name in geaendert[:1]:
            art = {".ini": "Einstellungen", ".ein": "Steuerdatei", ".zrw": "Zarwikdatei", ".db": "Tabelle",
                   ".px": "Tabelle"}.get(Path(name).suffix.lower(), "Einfügung")
            zahl["Aufruf" if name == "Aufruf" else art] += 1
        if funde:
            gefunden += 1
            print(f"Saat {o.saat}, Lauf {nummer} ({', '.join(geaendert)}): {'; '.join(funde)}", flush=True)
        if funde or o.nur is not None:
            os.rename(ort, os.path.join(ablage, f"{o.saat}-{nummer}"))
        else:
            shutil.rmtree(ort)
    spitze = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss // 1024
    print(", ".join(f"{n} {z}" for n, z in zahl.items()))
    print(f"{sum(stand.values())} Läufe, Saat {o.saat}: " + ", ".join(
        f"{n}-mal Status {s}" for s, n in sorted(stand.items(), key=str)) +
        f"; längster {laengster[0]:.1f} s (Lauf {laengster[1]}), höchstens {spitze} MB; {gefunden} Funde")
    if gefunden or o.nur is not None:
        print(f"aufgehoben in {ablage}")
    elif not o.funde:
        shutil.rmtree(ablage)
    return 1 if gefunden else 0


if __name__ == "__main__":
    sys.exit(main())
