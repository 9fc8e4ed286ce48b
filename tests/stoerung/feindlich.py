#!/usr/bin/env python3
"""Every file of the fuzzers' corpora through the whole program, in all formats, under a memory and a time limit.

usage: feindlich.py ZARWIK WURZEL [--ohne-speichergrenze]

The fuzz targets hold the readers and the drawing one by one; here they work together, with the real files around them.
A run must end in time, by itself, with status 0 or 1, with one message a line where it is not 0, and leave only whole
files. Exit status 1 after any finding.
"""

import argparse
import os
import re
import resource
import sys
import tempfile
import time
from pathlib import Path

from gemeinsam import DATEINAMEN, SANITIZER, halbe_dateien, lauf

SPEICHER = 512 << 20  # address space [bytes]
ZEIT = 10.0           # of one run [s]
SCHALTER = "legende,tk25,kmq,lageverb,hoehenverb,lagegen,hoehengen,kurznr,blattschnitt"


def saetze(wurzel):
    """(name, file to open, {name: content}, more options) for every file of the corpora."""
    beispiel = {p.name: p.read_bytes() for p in (wurzel / "beispiele").iterdir()
                if p.suffix in (".EIN", ".KF", ".SF", ".DB", ".PX")}
    for p in sorted((wurzel / "fuzz/korpus").glob("*/*")):
        art, inhalt = p.parent.name, p.read_bytes()
        if art == "Steuerdatei":  # with two files that it may insert
            yield p, "NETZ.EIN", dict(zip(("NETZ.EIN", "A.SF", "B.KF"), inhalt.split(b"\n%%%%\n"))), []
        elif art == "Bilddatei":
            yield p, "bild.ZRW", {"bild.ZRW": inhalt}, []
        elif art == "Tabelle":
            yield p, "NETZ.EIN", {**beispiel, "KooTABLE.DB": inhalt, "STRTABLE.DB": inhalt}, []
        elif art == "Ergebnisse":  # behind a byte that says which
            yield p, "NETZ.EIN", {**beispiel, p.name + ".DB": inhalt[1:]}, []
        elif art == "Einstellungsdatei":
            yield p, "NETZ.EIN", {**beispiel, "e.ini": inhalt}, ["--einstellungen", "e.ini"]


def funde(e, ort):
    if e.status is None:
        yield "Zeit überschritten"
    elif e.status not in (0, 1):
        yield f"Status {e.status}"
    elif e.status != 0 and not e.meldung.strip():
        yield "ohne Meldung"
    if "std::" in e.meldung or SANITIZER.search(e.meldung):
        yield f"Meldung {e.meldung.strip()[:80]}"
    if re.search(r"[\x00-\x09\x0b-\x1f\x7f-\x9f]", e.meldung):
        yield "Steuerzeichen in der Meldung"
    halb = halbe_dateien(os.path.join(ort, "ziel")) + [str(p) for p in Path(ort).rglob("*.neu")]
    if halb:
        yield f"nicht ganz: {halb}"


def main():
    p = argparse.ArgumentParser()
    p.add_argument("zarwik")
    p.add_argument("wurzel", type=Path)
    p.add_argument("--ohne-speichergrenze", action="store_true", help="for builds with sanitizers")
    o = p.parse_args()
    grenzen = {} if o.ohne_speichergrenze else {"RLIMIT_AS": SPEICHER}
    stand, gefunden, laengster = {}, 0, 0.0
    for pfad, datei, inhalte, optionen in saetze(o.wurzel):
        with tempfile.TemporaryDirectory() as ort:
            for name, inhalt in inhalte.items():
                Path(ort, name).write_bytes(inhalt)
            os.mkdir(os.path.join(ort, "ziel"))
            anfang = time.monotonic()
            e = lauf([os.path.abspath(o.zarwik), "--export", ",".join(DATEINAMEN), "--ziel", "ziel", "--groesse", "300x200",
                      "--ein", SCHALTER, *optionen, datei], ort, zeit=ZEIT, grenzen=grenzen)
            laengster = max(laengster, time.monotonic() - anfang)
            stand[e.status] = stand.get(e.status, 0) + 1
            for fund in funde(e, ort):
                gefunden += 1
                print(f"{pfad.parent.name}/{pfad.name}: {fund}")
    print(f"{stand.get(0, 0)} gelesen, {stand.get(1, 0)} mit Meldung; längster Lauf {laengster:.1f} s, höchstens "
          f"{resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss // 1024} MB; {gefunden} Funde")
    return 1 if gefunden or len(stand) < 2 else 0  # no corpus must not look like success


if __name__ == "__main__":
    sys.exit(main())
