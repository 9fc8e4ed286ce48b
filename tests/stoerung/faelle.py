#!/usr/bin/env python3
"""What goes wrong around the program: full and closed disks, files that change meanwhile, strange names and calls.

usage: faelle.py ZARWIK EINSTELLUNGEN_SICHERN WURZEL [--schreiben] [--ohne-speichergrenze]

Every case runs the real program and checks its status, its message and that the files are as they were, or new and
whole. --schreiben puts the table of the cases into docs/zuverlaessigkeit.md. Cases that need a small file system of
their own are named and left out where nothing can be mounted.
"""

import argparse
import os
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import threading
import time

from gemeinsam import DATEINAMEN, halbe_dateien, lauf, umgebung
from welt import ALT, NEU, NIEMAND, UNVERAENDERT, WURZEL_RECHTE, Welt, binde_ein, pruefe

EXPORT = ("--export", "zrw", "--ziel", "ziel")
ZIEL = "ziel/NETZ.ZRW"
KNAPP = {"RLIMIT_AS": 512 << 20}
BILD = ("--export", "svg", "--ein", "lagegen", "--ziel", "ziel")  # reads the tables


def voller_datentraeger(w):
    binde_ein(w, "ziel", "size=128k")
    return w.alle_formate()


def kein_eintrag_frei(w):
    binde_ein(w, "ziel", "nr_inodes=20")
    w.schreibe("ziel/fuellt", b"")
    try:
        for i in range(30):
            w.schreibe(f"ziel/fuellt{i}", b"")
    except OSError:
        pass
    return w.alle_formate()


def schreibgeschuetzt(w):
    binde_ein(w, "ziel", "size=1m")
    subprocess.run(["mount", "-o", "remount,ro", w.pfad("ziel")], check=True)
    return w.alle_formate()


def ordner_gesperrt(w):
    os.chmod(w.pfad("ziel"), 0o555)
    return w.alle_formate(nutzer=NIEMAND)


def beim_schreiben(*schritte):
    def tu(w):
        for schritt in schritte:
            schritt(w)
    return lambda w: w.waehrend(tu, "--export", "dxf", "--ziel", "ziel", "gross.ZRW")


def weg(name):
    return lambda w: os.remove(w.pfad(name))


def daneben_weg(w):
    for n in os.listdir(w.pfad("ziel")):
        if n.endswith(".neu"):
            os.remove(w.pfad("ziel/" + n))


def verweis_als_ziel(alt):
    def tu(w):
        w.schreibe("anderswo/NETZ.ZRW", ALT)
        if not alt:
            os.remove(w.pfad("anderswo/NETZ.ZRW"))
        verweis(ZIEL, "../anderswo/NETZ.ZRW")(w)
        e = w.laeuft(*EXPORT, "NETZ.EIN")
        if not os.path.islink(w.pfad(ZIEL)) or os.listdir(w.pfad("anderswo")) != ["NETZ.ZRW"] or \
                halbe_dateien(w.pfad("anderswo")):
            e.status = -1
        return e
    return tu


def zu_einstellungen(w, **mehr):
    w.merke()
    e = lauf([w.sichern, "1"], w.ort, XDG_CONFIG_HOME=w.pfad("eigen"), **mehr)
    w.meldungen.append(e.meldung.replace(w.ort + "/", ""))
    return e


def einstellungen_gesperrt(w):
    w.schreibe("eigen/ZRWINI.ini", ALT)
    os.chmod(w.pfad("eigen"), 0o555)
    os.chmod(w.pfad("eigen/ZRWINI.ini"), 0o444)
    return zu_einstellungen(w, nutzer=NIEMAND)


def einstellungen_voll(w):
    os.mkdir(w.pfad("eigen"))
    binde_ein(w, "eigen", "size=4k")
    w.schreibe("eigen/ZRWINI.ini", "[ZRWPAR]\n" + "x=1\n" * 900)
    return zu_einstellungen(w)


def mit(vorbereitung, *worte, **mehr):
    def tu(w):
        vorbereitung(w)
        return w.laeuft(*worte, **mehr)
    return tu


def ruf(*worte, **mehr):
    return mit(lambda w: None, *worte, **mehr)


def oeffne(name, *vorbereitungen, **mehr):
    return mit(lambda w: [v(w) for v in vorbereitungen], *EXPORT, name, **mehr)


def nach(ziel, **mehr):
    return ruf("--export", "zrw", "--ziel", ziel, "NETZ.EIN", **mehr)


def ersetzt(name, lege):
    def tu(w):
        if os.path.exists(w.pfad(name)):
            os.remove(w.pfad(name))
        lege(w.pfad(name))
    return tu


def rohr(name):
    return ersetzt(name, os.mkfifo)


def ordner(name):
    return ersetzt(name, os.mkdir)


def verweis(name, wohin):
    return ersetzt(name, lambda pfad: os.symlink(wohin, pfad))


def datei(name, inhalt):
    return lambda w: w.schreibe(name, inhalt)


def einbindung(name, von="a.EIN"):
    return datei(von, f"$NT 3\n$PF 0\n$FP A              1 1 1\n$SF {name}\n")


def umbenannt(name):
    return lambda w: os.rename(w.pfad("NETZ.EIN"), w.pfad(name))


def riesiges_feld(w):
    feld = os.path.join(w.wurzel, "fuzz/korpus/Einstellungsdatei/riesiges_feld")
    return w.laeuft(*EXPORT, "--einstellungen", feld, "NETZ.EIN", grenzen=KNAPP)


def riesige_einstellungen(w):
    w.schreibe("heim/ZRWINI.ini", b"")
    os.truncate(w.pfad("heim/ZRWINI.ini"), 2 << 30)
    return w.laeuft(*EXPORT, "NETZ.EIN", grenzen=KNAPP)


def steckdose(name):
    def tu(w):
        hier = os.getcwd()
        os.chdir(w.ort)  # the name of a socket has about a hundred characters
        socket.socket(socket.AF_UNIX).bind(name)
        os.chdir(hier)
    return tu


def tiefer_pfad(w):
    """A folder whose name has almost as many characters as the system allows."""
    name = "ä" * 100
    hier = os.getcwd()
    os.chdir(w.ort)
    laenge = len(w.ort)
    tief = ""
    while laenge + 201 + 60 < 4000:
        tief += name + "/"
        laenge += 201
        os.mkdir(name)
        os.chdir(name)
    os.chdir(hier)
    shutil.copy(w.pfad("NETZ.EIN"), w.pfad(tief))
    for n in ("KOORD.KF", "RICHT.SF"):
        shutil.copy(w.pfad(n), w.pfad(tief))
    os.mkdir(w.pfad(tief) + "aus")
    e = w.laeuft("--export", "zrw", "--ziel", w.pfad(tief) + "aus", w.pfad(tief) + "NETZ.EIN")
    return e


def im_wechsel(name, haelfte, *worte, laeufe=25):
    """Another program writes a file over and over, in two halves, while it is read."""
    def tu(w):
        with open(w.pfad(name), "rb") as f:
            inhalt = f.read()
        w.merke()
        ende = threading.Event()

        def schreibe():
            while not ende.is_set():
                with open(w.pfad(name), "wb") as f:
                    f.write(inhalt[:haelfte])
                    f.flush()
                    time.sleep(0.004)
                    f.write(inhalt[haelfte:])
                time.sleep(0.004)
        faden = threading.Thread(target=schreibe)
        faden.start()
        try:
            return [w.laeuft(*worte) for _ in range(laeufe)]
        finally:
            ende.set()
            faden.join()
    return tu


def nutzer_ohne_recht(name):
    def tu(w):
        os.chmod(w.pfad(name), 0)
        return w.laeuft(*BILD, "NETZ.EIN", nutzer=NIEMAND)
    return tu


def relativ(w):
    w.merke()
    e = lauf([w.zarwik, "--export", "zrw", "--ziel", "../ziel/./../ziel", "../heim/../NETZ.EIN"], w.pfad("heim"))
    w.meldungen.append(e.meldung)
    return e


def geschlossene_ausgaben(w):
    """With no standard streams the first file opened could become the one that messages go to."""
    w.merke()
    kind = subprocess.run(["sh", "-c", 'exec "$0" "$@" <&- >&- 2>&-', w.zarwik, "--export", ",".join(DATEINAMEN),
                           "--massstab", "100000", "--ziel", "ziel", "gross.ZRW"], cwd=w.ort, env=umgebung(w.ort))
    w.meldungen.append("")
    kind.status = kind.returncode
    return kind


LANG = "x" * 4000
EINBINDEN = "das Recht einzubinden"
NICHT = "Kann Datei nicht schreiben"
AUF = "Kann Datei nicht öffnen"
ORT_FEHLT = f"{NICHT} (nicht vorhanden)"
KEINE_DATEI = f"{AUF} (keine gewöhnliche Datei)"


# A case: name, what happens, status, part of the message, files afterwards, what it needs.
def misslingt(name, tu, text, status=1, danach=UNVERAENDERT, braucht=""):
    return name, tu, status, text, danach, braucht


def falsch(name, text, *worte):
    return misslingt(name, ruf(*worte), text, status=2)


def gelingt(name, tu, text="", danach=NEU, braucht=""):
    return name, tu, 0, text, danach, braucht


FAELLE = [
    ("Schreiben", [
        misslingt("Datenträger voll, alle Formate", voller_datentraeger, f"{NICHT} (Datenträger voll)", braucht=EINBINDEN),
        misslingt("kein Verzeichniseintrag frei, alle Formate", kein_eintrag_frei, f"{NICHT} (Datenträger voll)",
                  braucht=EINBINDEN),
        misslingt("Datenträger schreibgeschützt, alle Formate", schreibgeschuetzt,
                  f"{NICHT} (Datenträger schreibgeschützt)", braucht=EINBINDEN),
        misslingt("Grenze für Dateigrößen, alle Formate", lambda w: w.alle_formate(grenzen={"RLIMIT_FSIZE": 65536}),
                  f"{NICHT} (Datei zu groß)"),
        misslingt("Ordner nur lesbar, alle Formate", ordner_gesperrt, f"{NICHT} (keine Berechtigung)"),
        misslingt("zu wenig Speicher, alle Formate", lambda w: w.alle_formate(grenzen={"RLIMIT_AS": 85 << 20}),
                  "Der Speicher reicht nicht", braucht="Speichergrenze"),
        misslingt("Zielordner verschwindet beim Schreiben", beim_schreiben(lambda w: shutil.rmtree(w.pfad("ziel"))),
                  ORT_FEHLT),
        misslingt("Datei neben dem Ziel verschwindet", beim_schreiben(daneben_weg), ORT_FEHLT),
        misslingt("Ziel wird beim Schreiben zum Ordner", beim_schreiben(ordner("ziel/ZRW.DXF")),
                  f"{NICHT} (ist ein Ordner)"),
        gelingt("Ziel wird beim Schreiben ersetzt",
                beim_schreiben(weg("ziel/ZRW.DXF"), datei("ziel/ZRW.DXF", "Von einem anderen Programm."))),
        gelingt("Eingabe verschwindet beim Schreiben", beim_schreiben(weg("gross.ZRW"))),
        misslingt("Ziel ist ein Ordner", oeffne("NETZ.EIN", ordner(ZIEL)), f"{NICHT} (ist ein Ordner)"),
        misslingt("Ziel ist eine Pipe", oeffne("NETZ.EIN", rohr(ZIEL)), f"{NICHT} (keine gewöhnliche Datei)"),
        misslingt("Ziel führt zu einem Gerät", oeffne("NETZ.EIN", verweis(ZIEL, "/dev/full"), nutzer=NIEMAND),
                  f"{NICHT} (keine gewöhnliche Datei)"),
        gelingt("Ziel ist ein Verweis auf eine Datei", verweis_als_ziel(True)),
        gelingt("Ziel ist ein Verweis auf eine Datei, die es noch nicht gibt", verweis_als_ziel(False)),
        misslingt("Ziel ist ein Verweis in einen Ordner, den es nicht gibt",
                  oeffne("NETZ.EIN", verweis(ZIEL, "weg/NETZ.ZRW")), ORT_FEHLT),
        misslingt("Ziel ist ein Verweis auf sich selbst", oeffne("NETZ.EIN", verweis(ZIEL, "NETZ.ZRW")),
                  f"{NICHT} (Verweise im Kreis)"),
        misslingt("Ziel ist nur lesbar", oeffne("NETZ.EIN", lambda w: os.chmod(w.pfad(ZIEL), 0o444), nutzer=NIEMAND),
                  f"{NICHT} (keine Berechtigung)"),
        gelingt("Name mit 255 Zeichen", oeffne("n" * 251 + ".EIN", umbenannt("n" * 251 + ".EIN"))),
        misslingt("Zielordner ist eine Datei", nach("KOORD.KF"), "ein Teil des Pfades ist kein Ordner"),
        misslingt("Zielordner ist ein Gerät", nach("/dev/full", nutzer=NIEMAND), "ein Teil des Pfades ist kein Ordner"),
        misslingt("Zielordner in einem Ordner, den es nicht gibt", nach("gibts/nicht"), ORT_FEHLT),
        misslingt("Zielordner mit 4 000 Zeichen in einem Namen", nach(LANG), "Name zu lang"),
        misslingt("Einstellungen: Ordner nur lesbar", einstellungen_gesperrt, "nicht gespeichert"),
        misslingt("Einstellungen: Datenträger voll", einstellungen_voll, "nicht gespeichert", braucht=EINBINDEN),
    ]),
    ("Lesen", [
        misslingt("Steuerdatei fehlt", oeffne("fehlt.EIN"), f"{AUF} (nicht vorhanden)"),
        misslingt("Steuerdatei ist ein Ordner", oeffne("ziel"), KEINE_DATEI),
        misslingt("Steuerdatei ist eine Pipe", oeffne("NETZ.EIN", rohr("NETZ.EIN")), KEINE_DATEI),
        misslingt("Steuerdatei ist ein Gerät", oeffne("/dev/zero"), KEINE_DATEI),
        misslingt("Steuerdatei ist ein Socket", oeffne("dose.EIN", steckdose("dose.EIN")), KEINE_DATEI),
        misslingt("Steuerdatei ist ein Verweis auf sich selbst", oeffne("kreis.EIN", verweis("kreis.EIN", "kreis.EIN")),
                  f"{AUF} (Verweise im Kreis)"),
        misslingt("Steuerdatei ohne Leserecht", nutzer_ohne_recht("NETZ.EIN"), f"{AUF} (keine Berechtigung)"),
        misslingt("Steuerdatei leer", oeffne("leer.EIN", datei("leer.EIN", b"")), "keine Steuerdatei"),
        misslingt("Steuerdatei nur aus Nullen", oeffne("null.EIN", datei("null.EIN", bytes(100000))),
                  "keine Steuerdatei"),
        misslingt("Zarwikdatei leer", oeffne("leer.ZRW", datei("leer.ZRW", b"")), "keine vollständige Zarwikdatei"),
        gelingt("Name mit Umlauten und Blanks", oeffne("Größe ä ß.EIN", umbenannt("Größe ä ß.EIN")), danach=None),
        gelingt("Name mit Umlauten, Sprache C", oeffne("Größe.EIN", umbenannt("Größe.EIN"), LC_ALL="C"), danach=None),
        misslingt("Name mit Zeilenende und Steuerzeichen",
                  oeffne("a\n\x1b[31mb.EIN", datei("a\n\x1b[31mb.EIN", "$NT x\n")), "Zahl fehlt"),
        gelingt("Pfad mit fast 4 000 Zeichen", tiefer_pfad, danach=None),
        misslingt("Name mit 4 000 Zeichen", oeffne(LANG + ".EIN"), f"{AUF} (Name zu lang)"),
        misslingt("Pfad über eine Datei", oeffne("KOORD.KF/NETZ.EIN"), f"{AUF} ("),
        gelingt("relative Pfade mit . und ..", relativ),
        gelingt("ohne Standardströme", geschlossene_ausgaben),
        misslingt("Einfügung fehlt", oeffne("a.EIN", einbindung("fehlt.SF")), "Kann Datei fehlt.SF nicht öffenen!"),
        misslingt("Einfügung mit Steuerzeichen im Namen",
                  oeffne("a.EIN", datei("a.EIN", b"$NT 3\n$SF \x1b[31m\x7f\x81\x9by\n")), "nicht öffenen!"),
        misslingt("Einfügung ist eine Pipe", oeffne("a.EIN", rohr("p.SF"), einbindung("p.SF")),
                  "Kann Datei p.SF nicht"),
        misslingt("Einfügung ist ein Gerät", oeffne("a.EIN", einbindung("/dev/zero")), "Kann Datei /dev/zero nicht"),
        misslingt("Einfügung führt zu einem Gerät", oeffne("a.EIN", verweis("z.SF", "/dev/zero"), einbindung("z.SF")),
                  "Kann Datei z.SF nicht"),
        misslingt("Einfügung ist ein Ordner", oeffne("a.EIN", einbindung("ziel")), "Kann Datei ziel nicht"),
        gelingt("Einfügung ist die Datei selbst", oeffne("a.EIN", einbindung("a.EIN")), None, danach=None),
        gelingt("Einfügung liegt außerhalb", oeffne("unten/a.EIN", einbindung("../RICHT.SF", "unten/a.EIN")),
                "nennen unbekannte Punkte", danach=None),
    ]),
    ("Tabellen und Einstellungen", [
        misslingt("Tabelle ohne Leserecht", nutzer_ohne_recht("KooTABLE.DB"), "KooTABLE.DB", danach=NEU),
        gelingt("Tabelle ist eine Pipe", mit(rohr("KooTABLE.DB"), *BILD, "NETZ.EIN")),
        gelingt("Tabelle ist ein Ordner", mit(ordner("KooTABLE.DB"), *BILD, "NETZ.EIN")),
        misslingt("Tabelle ist keine", mit(datei("KooTABLE.DB", b"x" * 5000), *BILD, "NETZ.EIN"), "KooTABLE.DB",
                  danach=NEU),
        misslingt("Tabelle wird beim Lesen geschrieben (25 Läufe)", im_wechsel("KooTABLE.DB", 9000, *BILD, "NETZ.EIN"),
                  None, status=(0, 1), danach=NEU),
        misslingt("Steuerdatei wird beim Lesen geschrieben (25 Läufe)",
                  im_wechsel("NETZ.EIN", 17000, *EXPORT, "NETZ.EIN"), None, status=(0, 1), danach=None),
        misslingt("Einstellungsdatei fehlt", ruf(*EXPORT, "--einstellungen", "fehlt.ini", "NETZ.EIN"), AUF),
        misslingt("Einstellungsdatei ist eine Pipe",
                  mit(rohr("p.ini"), *EXPORT, "--einstellungen", "p.ini", "NETZ.EIN"), AUF),
        gelingt("Einstellungsdatei ist keine",
                mit(datei("b.ini", os.urandom(5000)), *EXPORT, "--einstellungen", "b.ini", "NETZ.EIN")),
        gelingt("Einstellungsdatei mit Wert eigener Art und Größe, Speicher 512 MB", riesiges_feld,
                braucht="Speichergrenze"),
        misslingt("eigene Einstellungen sind eine Pipe", oeffne("NETZ.EIN", rohr("heim/ZRWINI.ini")), KEINE_DATEI),
        misslingt("eigene Einstellungen sind ein Ordner", oeffne("NETZ.EIN", ordner("heim/ZRWINI.ini")), KEINE_DATEI),
        misslingt("eigene Einstellungen führen zu einem Gerät",
                  oeffne("NETZ.EIN", verweis("heim/ZRWINI.ini", "/dev/zero")), KEINE_DATEI),
        misslingt("eigene Einstellungen mit 2 GB, Speicher 512 MB", riesige_einstellungen, "zu groß",
                  braucht="Speichergrenze"),
    ]),
    ("Aufruf", [
        falsch("Option ohne Wert", "--export erwartet einen Wert", "--export"),
        falsch("ohne Datei", "Es fehlt der Name der Datei", "--export", "zrw"),
        falsch("leerer Name", "Es fehlt der Name der Datei", "--export", "zrw", ""),
        falsch("leere Liste von Formaten", "--export erwartet eine Liste", "--export", "", "NETZ.EIN"),
        falsch("unbekanntes Format", 'Unbekanntes Format "Bild"', "--export", "zrw,Bild", "NETZ.EIN"),
        falsch("unbekannte Option", 'Unbekannte Option "--wasdenn"', "--wasdenn", "NETZ.EIN"),
        falsch("zwei Dateien", "Nur eine Datei ist möglich", "--export", "zrw", "a", "b"),
        falsch("20 000 Dateien", "Nur eine Datei ist möglich", "--export", "zrw", *map(str, range(20000))),
        falsch("10 000-mal dieselbe Option", "Es fehlt der Name der Datei", *(["--export", "zrw"] * 10000)),
        misslingt("Argument mit 100 000 Zeichen", ruf("--export", "zrw", "x" * 100000), f"{AUF} (Name zu lang)"),
        falsch("Liste mit 100 000 Zeichen", 'Unbekanntes Format "x"', "--export", "zrw," * 25000 + "x", "NETZ.EIN"),
        misslingt("Bytes, die kein UTF-8 sind", ruf("--export", "zrw", b"gr\xfc\xdfe.EIN"), f"{AUF} (nicht vorhanden)"),
        falsch("Steuerzeichen in einer Option", "Unbekannte Option", "--\x1b[31m\n\x07"),
        misslingt("Optionen nach --", ruf("--export", "zrw", "--", "--help"), AUF),
        falsch("Größe außerhalb", "--groesse erwartet", "--export", "png", "--groesse", "99999999999999999999x1",
               "NETZ.EIN"),
        falsch("Maßstab unendlich", "--massstab erwartet", "--export", "pdf", "--massstab", "1e999", "NETZ.EIN"),
        falsch("Auflösung negativ", "--dpi erwartet", "--export", "plt", "--dpi", "-1", "NETZ.EIN"),
    ]),
]


# The small file systems of the cases are seen by this process and its children only.
EIGENER_RAUM = ("unshare", "-m", "--propagation", "private")


def darf_einbinden():
    """Ordinary containers and a bare chroot do not let even root mount anything."""
    with tempfile.TemporaryDirectory(prefix="stoerung") as ort:
        return WURZEL_RECHTE and subprocess.run([*EIGENER_RAUM, "mount", "-t", "tmpfs", "tmpfs", ort],
                                                stderr=subprocess.DEVNULL, check=False).returncode == 0


def kurz(meldungen, status):
    verschiedene = sorted({re.sub(r"^\S+: ", "", m.strip().splitlines()[0]) if m.strip() else "–"
                           for m in meldungen})
    if len(verschiedene) > 1 and not isinstance(status, tuple):
        verschiedene = [v for v in verschiedene if v != "–"][:2] or ["–"]
    gekuerzt = [v if len(v) < 110 else v[:60].rsplit(" ", 1)[0] + " … " + v[-45:].split(" ", 1)[1]
                for v in verschiedene[:3]]
    return " / ".join(gekuerzt).replace("|", "\\|")


def main():
    p = argparse.ArgumentParser()
    p.add_argument("zarwik")
    p.add_argument("sichern")
    p.add_argument("wurzel")
    p.add_argument("--schreiben", action="store_true")
    p.add_argument("--ohne-speichergrenze", action="store_true", help="for builds with sanitizers")
    o = p.parse_args()
    eigener_raum = "STOERUNG_EIGENER_RAUM" in os.environ
    if not eigener_raum and darf_einbinden():
        os.environ["STOERUNG_EIGENER_RAUM"] = "1"
        os.execvp(EIGENER_RAUM[0], [*EIGENER_RAUM, sys.executable, "-B", *sys.argv])
    fehler = anzahl = 0
    ausgelassen = {}
    zeilen = []
    with tempfile.TemporaryDirectory(prefix="stoerung") as ort:
        os.chmod(ort, 0o755)
        # Another user must be able to reach the programs wherever they were built.
        zarwik, sichern = (shutil.copy(os.path.abspath(x), ort) for x in (o.zarwik, o.sichern))
        for gruppe, faelle in FAELLE:
            zeilen += ["", f"### {gruppe}", "", "| Fall | Status | Meldung (ohne Dateiname) | Dateien danach |",
                       "|---|---|---|---|"]
            for name, tu, status, text, danach, braucht in faelle:
                if (braucht == EINBINDEN and not eigener_raum) or \
                        (braucht == "Speichergrenze" and o.ohne_speichergrenze):
                    ausgelassen.setdefault(braucht, []).append(name)
                    continue
                w = Welt(tempfile.mkdtemp(dir=ort), zarwik, sichern, os.path.abspath(o.wurzel))
                os.chmod(w.ort, 0o755)
                ergebnisse = tu(w)
                maengel = pruefe(w, ergebnisse, status, text, danach)
                for ordner_ in w.eingebunden:
                    subprocess.run(["umount", ordner_], check=True)
                anzahl += 1
                fehler += bool(maengel)
                if maengel:
                    print(f"{gruppe}, {name}: {'; '.join(dict.fromkeys(maengel))}")
                zahl = "0 oder 1" if isinstance(status, tuple) else status
                ganz = {UNVERAENDERT: UNVERAENDERT, NEU: NEU, None: "neue Datei, ganz"}[danach]
                zeilen.append(f"| {name} | {zahl} | {kurz(w.meldungen, status)} | {ganz} |")
    for braucht, namen in ausgelassen.items():
        print(f"{len(namen)} ausgelassen, weil {braucht} fehlt: {'; '.join(namen)}")
    print(f"{anzahl} Fälle, {fehler} mit Mangel")
    if o.schreiben:
        schreibe_tafel(os.path.join(o.wurzel, "docs/zuverlaessigkeit.md"), zeilen)
    return 1 if fehler else 0


def schreibe_tafel(pfad, zeilen):
    with open(pfad, encoding="utf-8") as f:
        text = f.read()
    anfang, ende = "<!-- Anfang der Tafel -->", "<!-- Ende der Tafel -->"
    vorn, rest = text.split(anfang)
    _, hinten = rest.split(ende)
    with open(pfad, "w", encoding="utf-8") as f:
        f.write(vorn + anfang + "\n" + "\n".join(zeilen) + "\n\n" + ende + hinten)


if __name__ == "__main__":
    sys.exit(main())
