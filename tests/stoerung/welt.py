"""One case of disturbance: a folder with a network and old files, the program in it, and what must hold afterwards."""

import os
import pwd
import re
import shutil
import signal
import subprocess
import time

from gemeinsam import DATEINAMEN, SANITIZER, bilddatei, dateiname, halbe_dateien, lauf, umgebung

WURZEL_RECHTE = os.geteuid() == 0
NIEMAND = "nobody" if WURZEL_RECHTE else None  # root passes by every access right
ALT = b"Diese alte Datei soll bleiben.\n"
UNVERAENDERT, NEU = "wie vorher", "neu und ganz"


class Welt:
    """One case: a folder with an example network, and a folder `ziel` with an old file of every format."""

    def __init__(self, ort, zarwik, sichern, wurzel):
        self.ort, self.zarwik, self.sichern, self.wurzel = ort, zarwik, sichern, wurzel
        for name in os.listdir(os.path.join(wurzel, "beispiele")):
            if name.endswith((".EIN", ".KF", ".SF", ".DB", ".PX")):
                shutil.copy(os.path.join(wurzel, "beispiele", name), ort)
        self.schreibe("gross.ZRW", bilddatei(20000))
        for stamm in ("NETZ", "gross"):
            for format_ in DATEINAMEN:
                self.schreibe("ziel/" + dateiname(format_, stamm), ALT)
        self.meldungen = []
        self.eingebunden = []
        self.soll = None
        os.makedirs(self.pfad("heim"))

    def pfad(self, name):
        return os.path.join(self.ort, name)

    def schreibe(self, name, inhalt):
        os.makedirs(os.path.dirname(self.pfad(name)), exist_ok=True)
        with open(self.pfad(name), "wb") as f:
            f.write(inhalt.encode() if isinstance(inhalt, str) else inhalt)

    def bild(self):
        """Every file of the case with its content, every other entry with its kind."""
        alles = {}
        for ordner, unter, dateien in os.walk(self.ort):
            if ordner == self.ort:
                unter.remove("heim")  # the program's own settings may come and go
            for name in dateien + unter:
                p = os.path.join(ordner, name)
                if os.path.islink(p):
                    alles[p] = os.readlink(p)
                elif os.path.isfile(p) and os.access(p, os.R_OK):
                    with open(p, "rb") as f:
                        alles[p] = f.read()
                else:
                    alles[p] = os.lstat(p).st_mode >> 12
        return alles

    def merke(self):
        """From here on the files are to stay: a case prepares, remembers and runs."""
        self.soll = self.bild()

    def laeuft(self, *worte, nutzer=None, grenzen=None, **mehr):
        if nutzer:
            for ordner, _, dateien in os.walk(self.ort):
                os.chown(ordner, *_niemand())
                for name in dateien:
                    os.lchown(os.path.join(ordner, name), *_niemand())
        if self.soll is None:
            self.merke()
        e = lauf([self.zarwik, *worte], self.ort, nutzer=nutzer, grenzen=grenzen,
                 **{"XDG_CONFIG_HOME": self.pfad("heim"), **mehr})
        self.meldungen.append(e.meldung.replace(self.ort + "/", ""))
        return e

    def alle_formate(self, **mehr):
        """Each format in a run of its own; they must behave alike."""
        return [self.laeuft("--export", f, "--massstab", "200000", "--ziel", "ziel", "gross.ZRW", **mehr)
                for f in DATEINAMEN]

    def waehrend(self, tu, *worte):
        """Holds the program while it writes, lets something happen, and lets it go on."""
        self.merke()
        for _ in range(50):
            kind = subprocess.Popen([self.zarwik, *worte], cwd=self.ort, env=umgebung(self.pfad("heim")),
                                    stdout=subprocess.PIPE, stderr=subprocess.PIPE)
            while kind.poll() is None and not self.daneben():
                time.sleep(0.0002)
            kind.send_signal(signal.SIGSTOP)
            time.sleep(0.01)
            if kind.poll() is None and self.daneben():
                break
            kind.send_signal(signal.SIGCONT)
            kind.communicate()
        else:
            raise RuntimeError("das Schreiben ist nicht zu erwischen")
        tu(self)
        self.merke()
        self.soll = {p: i for p, i in self.soll.items() if not p.endswith(".neu")}
        kind.send_signal(signal.SIGCONT)
        _, err = kind.communicate(timeout=10)
        self.meldungen.append(err.decode().replace(self.ort + "/", ""))
        kind.status, kind.meldung = kind.returncode, err.decode()
        return kind

    def daneben(self):
        return os.path.isdir(self.pfad("ziel")) and any(n.endswith(".neu") for n in os.listdir(self.pfad("ziel")))


def _niemand():
    p = pwd.getpwnam(NIEMAND)
    return p.pw_uid, p.pw_gid


def binde_ein(w, ordner, optionen):
    """A small file system of the case's own, in this process's mount namespace only."""
    alt = {n: open(w.pfad(f"{ordner}/{n}"), "rb").read() for n in os.listdir(w.pfad(ordner))}
    subprocess.run(["mount", "-t", "tmpfs", "-o", optionen, "tmpfs", w.pfad(ordner)], check=True)
    w.eingebunden.append(w.pfad(ordner))
    for name, inhalt in alt.items():
        w.schreibe(f"{ordner}/{name}", inhalt)


def pruefe(w, ergebnisse, status, text, danach):
    """@return the faults of a case; none where all is as it must be"""
    maengel = []
    erlaubt = status if isinstance(status, tuple) else (status,)
    for e in ergebnisse if isinstance(ergebnisse, list) else [ergebnisse]:
        if e.status not in erlaubt:
            maengel.append("endet nicht" if e.status is None else f"Status {e.status}")
    for m in w.meldungen:
        if text is not None and (text not in m or (text == "" and status == 0 and m)):
            maengel.append(f"Meldung {m.strip()[:300]!r}")
        if text and len(m.splitlines()) != 1:
            maengel.append(f"{len(m.splitlines())} Zeilen")
        if SANITIZER.search(m):
            maengel.append("Sanitizer")
        if re.search(r"[\x00-\x09\x0b-\x1f\x7f-\x9f]", m):
            maengel.append("Steuerzeichen in der Meldung")
    ist = w.bild()
    if danach == UNVERAENDERT and ist != w.soll:
        anders = sorted({p for p in ist.keys() | w.soll.keys() if ist.get(p) != w.soll.get(p)})
        maengel.append(f"Dateien verändert: {[a[len(w.ort) + 1:] for a in anders][:4]}")
    if danach == NEU:
        geaendert = [p for p in ist if ist[p] != w.soll.get(p)]
        halb = [n for n in halbe_dateien(w.pfad("ziel")) if ist[w.pfad("ziel/" + n)] != ALT]
        if not geaendert or halb or any("/ziel/" not in p and "/anderswo/" not in p for p in geaendert):
            maengel.append(f"nichts Neues oder nicht ganz: {halb}")
    if any(".neu" in p for p in ist):
        maengel.append("eine Datei neben dem Ziel bleibt liegen")
    return maengel
