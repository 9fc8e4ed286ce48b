#!/usr/bin/env python3
"""Kills the real program at random moments while it writes; afterwards every file is the old one or the new one.

usage: abbruch.py ZARWIK EINSTELLUNGEN_SICHERN [--anzahl N] [--saat S]

Half of the kills are spread over the whole run, half over the time in which a file beside the target exists. The
outputs do not hold the time, so that "whole" is a comparison of bytes. Exit status 1 after any half file, and where
the kills were so badly placed that they never met an old or never a new file.
"""

import argparse
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time
from collections import Counter

from gemeinsam import DATEINAMEN, bilddatei, dateiname, halbe_dateien, umgebung

PUNKTE = 20000


class Auftrag:
    """One way of saving: what is started, where it writes, and the two contents that its files may have."""

    def __init__(self, name, worte, ordner, dateien, heim, endet=True):
        self.name = name
        self.worte = worte
        self.ordner = ordner
        self.dateien = dateien
        self.heim = heim
        self.endet = endet  # the window runs on after writing
        self.alt = {}
        self.neu = {}
        self.dauer = 0.0    # [s] of a whole run
        self.fenster = 0.0  # [s] from the first sight of a file beside to the end

    def lege_alte(self):
        for name in os.listdir(self.ordner):
            os.remove(os.path.join(self.ordner, name))
        for name, inhalt in self.alt.items():
            with open(os.path.join(self.ordner, name), "wb") as f:
                f.write(inhalt)

    def inhalte(self):
        gelesen = {}
        for name in self.dateien:
            try:
                with open(os.path.join(self.ordner, name), "rb") as f:
                    gelesen[name] = f.read()
            except FileNotFoundError:
                gelesen[name] = None
        return gelesen

    def starte(self):
        return subprocess.Popen(self.worte, cwd=self.heim, env=umgebung(self.heim), stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def fertig(self, kind):
        if kind.poll() is not None:
            return True
        return not self.endet and self.inhalte() != self.alt and not self.schreibt()

    def schreibt(self):
        """Whether a file beside a target exists: the moment in which a kill would hurt."""
        with os.scandir(self.ordner) as eintraege:
            return any(e.name not in self.dateien for e in eintraege)

    def messe(self):
        """A whole run: the new contents, the duration, and how long the writing took."""
        self.lege_alte()
        anfang = time.monotonic()
        kind = self.starte()
        erstes = None
        while not self.fertig(kind):
            if erstes is None and self.schreibt():
                erstes = time.monotonic()
            if time.monotonic() - anfang > 60:
                kind.kill()
                sys.exit(f"{self.name}: wird nicht fertig")
            time.sleep(0.0002)
        ende = time.monotonic()
        kind.kill()
        kind.wait()
        self.dauer = ende - anfang
        self.fenster = ende - (erstes or ende)
        self.neu = self.inhalte()
        if None in self.neu.values() or self.neu == self.alt:
            sys.exit(f"{self.name}: ein ganzer Lauf schreibt nichts Neues")

    def toete(self, zufall, gezielt):
        """@return (in the middle of writing?, {file: alt | neu | nichts | HALB})"""
        self.lege_alte()
        anfang = time.monotonic()
        kind = self.starte()
        if gezielt:
            while kind.poll() is None and not self.schreibt() and time.monotonic() - anfang < 5 * self.dauer:
                time.sleep(0.0001)
            time.sleep(zufall.uniform(0, 1.05) * self.fenster)
        else:
            time.sleep(zufall.uniform(0, 1.1) * self.dauer)
        kind.kill()
        kind.wait()
        befund = {}
        for name, inhalt in self.inhalte().items():
            befund[name] = ("nichts" if inhalt is None else "alt" if inhalt == self.alt[name] else
                            "neu" if inhalt == self.neu[name] else "HALB")
        return self.schreibt(), befund


def auftraege(zarwik, sichern, ort):
    """Every format alone, both drawings together, a picture file onto itself, the session and the settings."""
    gross, klein = bilddatei(PUNKTE), bilddatei(3)
    for name, inhalt in (("netz.ZRW", gross), ("klein/netz.ZRW", klein)):
        os.makedirs(os.path.dirname(os.path.join(ort, name)), exist_ok=True)
        with open(os.path.join(ort, name), "wb") as f:
            f.write(inhalt)
    stapel = [zarwik, "--massstab", "200000"]
    alle = []
    for formate in [*DATEINAMEN, "dxf,plt"]:
        ordner = os.path.join(ort, "ziel_" + formate.replace(",", "_"))
        os.makedirs(ordner)
        dateien = [dateiname(f, "netz") for f in formate.split(",")]
        a = Auftrag(formate, [*stapel, "--export", formate, "--ziel", ordner, "netz.ZRW"], ordner, dateien, ort)
        subprocess.run([*stapel, "--export", formate, "--ziel", ordner, "klein/netz.ZRW"], cwd=ort, check=True,
                       env=umgebung(ort), stderr=subprocess.DEVNULL)
        if halbe_dateien(ordner):
            sys.exit(f"{formate}: schon die alte Datei ist nicht ganz")
        alle.append(a)

    ordner = os.path.join(ort, "ziel_selbst")
    os.makedirs(ordner)
    shutil.copy(os.path.join(ort, "netz.ZRW"), ordner)
    selbst = os.path.join(ordner, "netz.ZRW")
    alle.append(Auftrag("zrw auf sich", [*stapel, "--export", "zrw", "--ziel", ordner, selbst], ordner, ["netz.ZRW"],
                        ort))

    # The window keeps the last files as soon as one is opened, and runs on.
    heim = os.path.join(ort, "heim_fenster")
    os.makedirs(heim)
    with open(os.path.join(heim, "ZRWSITZUNG.ini"), "w", encoding="ascii") as f:
        f.write("[Sitzung]\nDateien=" + ", ".join(f"/weg/netz{i}.EIN" for i in range(8)) + "\nOrdner=/weg\n")
    alle.append(Auftrag("Sitzung", [zarwik, os.path.join(ort, "klein/netz.ZRW")], heim, ["ZRWSITZUNG.ini"], heim,
                        endet=False))

    # The settings are saved by a dialog that nobody can press here; its code runs in a program of its own, again and
    # again, as once takes a moment only.
    heim = os.path.join(ort, "heim_einstellungen")
    os.makedirs(heim)
    subprocess.run([sichern, "1"], cwd=heim, env=umgebung(heim), check=True)
    alle.append(Auftrag("Einstellungen", [sichern, "2", "99"], heim, ["ZRWINI.ini"], heim))
    for a in alle:
        a.alt = a.inhalte()
        if None in a.alt.values():
            sys.exit(f"{a.name}: die alte Datei fehlt")
        a.messe()
    return alle


def main():
    p = argparse.ArgumentParser()
    p.add_argument("zarwik")
    p.add_argument("sichern")
    p.add_argument("--anzahl", type=int, default=500)
    p.add_argument("--saat", type=int, default=1)
    o = p.parse_args()
    zufall = random.Random(o.saat)
    with tempfile.TemporaryDirectory() as ort:
        alle = auftraege(os.path.abspath(o.zarwik), os.path.abspath(o.sichern), ort)
        summe = Counter()
        for i in range(o.anzahl):
            a = alle[i % len(alle)]
            mitten, befund = a.toete(zufall, gezielt=i // len(alle) % 2 == 0)
            summe["mitten im Schreiben"] += mitten
            summe.update(befund.values())
            schlecht = {n: was for n, was in befund.items() if was in ("nichts", "HALB")}
            if schlecht:
                print(f"{a.name}, Abbruch {i}: {schlecht}")
    print(f"{o.anzahl} Abbrüche, Saat {o.saat}: " + ", ".join(f"{n}-mal {was}" for was, n in sorted(summe.items())))
    getroffen = summe["alt"] and summe["neu"] and summe["mitten im Schreiben"]
    return 0 if getroffen and not summe["nichts"] and not summe["HALB"] else 1


if __name__ == "__main__":
    sys.exit(main())
