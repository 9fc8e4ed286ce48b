#!/usr/bin/env python3
"""What goes wrong around the program: full and closed disks, files that change meanwhile, strange names and calls.

usage: faelle.py ZARWIK EINSTELLUNGEN_SICHERN WURZEL [--schreiben] [--ohne-speichergrenze]

Every case runs the real program and checks its status, its message and that the files are as they were, or new and
whole. --schreiben puts the table of the cases into docs/zuverlaessigkeit.md. Cases that only root can set up are
named and left out for other users.
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
BILD = ("--export", "svg", "--ein", "lagegen", "--ziel", "ziel")  # reads the tables


# --- writing ---------------------------------------------------------------------------------------------------

def voller_datentraeger(w):
    binde_ein(w, "ziel", "size=128k")
    return w.alle_formate("--ziel", "ziel", "gross.ZRW")


def kein_eintrag_frei(w):
    binde_ein(w, "ziel", "nr_inodes=20")
    w.schreibe("ziel/fuellt", b"")
    try:
        for i in range(30):
            w.schreibe(f"ziel/fuellt{i}", b"")
    except OSError:
        pass
    return w.alle_formate("--ziel", "ziel", "gross.ZRW")


def schreibgeschuetzt(w):
    binde_ein(w, "ziel", "size=1m")
    subprocess.run(["mount", "-o", "remount,ro", w.pfad("ziel")], check=True)
    return w.alle_formate("--ziel", "ziel", "gross.ZRW")


def groessengrenze(w):
    return w.alle_formate("--ziel", "ziel", "gross.ZRW", grenzen={"RLIMIT_FSIZE": 65536})


def ordner_gesperrt(w):
    os.chmod(w.pfad("ziel"), 0o555)
    return w.alle_formate("--ziel", "ziel", "gross.ZRW", nutzer=NIEMAND)


def ordner_verschwindet(w):
    return w.waehrend(lambda w: shutil.rmtree(w.pfad("ziel")), "--export", "dxf", "--ziel", "ziel", "gross.ZRW")


def daneben_verschwindet(w):
    def tu(w):
        for n in os.listdir(w.pfad("ziel")):
            if n.endswith(".neu"):
                os.remove(w.pfad("ziel/" + n))
    return w.waehrend(tu, "--export", "dxf", "--ziel", "ziel", "gross.ZRW")


def ziel_wird_ordner(w):
    def tu(w):
        os.remove(w.pfad("ziel/ZRW.DXF"))
        os.mkdir(w.pfad("ziel/ZRW.DXF"))
    return w.waehrend(tu, "--export", "dxf", "--ziel", "ziel", "gross.ZRW")


def ziel_ersetzt(w):
    def tu(w):
        os.remove(w.pfad("ziel/ZRW.DXF"))
        w.schreibe("ziel/ZRW.DXF", "Von einem anderen Programm.")
    return w.waehrend(tu, "--export", "dxf", "--ziel", "ziel", "gross.ZRW")


def eingabe_verschwindet(w):
    return w.waehrend(lambda w: os.remove(w.pfad("gross.ZRW")), "--export", "dxf", "--ziel", "ziel", "gross.ZRW")


def ziel_ist(art):
    def tu(w):
        os.remove(w.pfad("ziel/NETZ.ZRW"))
        {"ordner": os.mkdir, "rohr": os.mkfifo,
         # As nobody, who could not replace the device even if the program tried.
         "geraet": lambda p: os.symlink("/dev/full", p)}[art](w.pfad("ziel/NETZ.ZRW"))
        return w.laeuft(*EXPORT, "NETZ.EIN", nutzer=NIEMAND)
    return tu


def verweis_als_ziel(alt):
    def tu(w):
        w.schreibe("anderswo/NETZ.ZRW", ALT)
        if not alt:
            os.remove(w.pfad("anderswo/NETZ.ZRW"))
        verweis("ziel/NETZ.ZRW", "../anderswo/NETZ.ZRW")(w)
        e = w.laeuft(*EXPORT, "NETZ.EIN")
        if not os.path.islink(w.pfad("ziel/NETZ.ZRW")) or os.listdir(w.pfad("anderswo")) != ["NETZ.ZRW"] or \
                halbe_dateien(w.pfad("anderswo")):
            e.status = -1
        return e
    return tu


def wenig_speicher(w):
    return w.alle_formate("--ziel", "ziel", "gross.ZRW", grenzen={"RLIMIT_AS": 85 << 20})


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


# --- reading ---------------------------------------------------------------------------------------------------

def mit(vorbereitung, *worte, **mehr):
    def tu(w):
        vorbereitung(w)
        return w.laeuft(*worte, **mehr)
    return tu


def ruf(*worte, **mehr):
    return lambda w: w.laeuft(*worte, **mehr)


def rohr(name):
    return lambda w: (os.remove(w.pfad(name)) if os.path.exists(w.pfad(name)) else None, os.mkfifo(w.pfad(name)))


def ordner(name):
    return lambda w: (os.remove(w.pfad(name)) if os.path.exists(w.pfad(name)) else None, os.makedirs(w.pfad(name)))


def datei(name, inhalt):
    return lambda w: w.schreibe(name, inhalt)


def verweis(name, wohin):
    return lambda w: (os.remove(w.pfad(name)) if os.path.exists(w.pfad(name)) else None,
                      os.symlink(wohin, w.pfad(name)))


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
EINBINDUNG = "$NT 3\n$PF 0\n$FP A              1 1 1\n$SF {}\n"
NICHT = "Kann Datei nicht schreiben"
AUF = "Kann Datei nicht öffnen"

# (case, what happens, status, part of the message, files afterwards, what it needs)
FAELLE = [
    ("Schreiben", [
        ("Datenträger voll, alle Formate", voller_datentraeger, 1, f"{NICHT} (Datenträger voll)", UNVERAENDERT, "root"),
        ("kein Verzeichniseintrag frei, alle Formate", kein_eintrag_frei, 1, f"{NICHT} (Datenträger voll)",
         UNVERAENDERT, "root"),
        ("Datenträger schreibgeschützt, alle Formate", schreibgeschuetzt, 1,
         f"{NICHT} (Datenträger schreibgeschützt)", UNVERAENDERT, "root"),
        ("Grenze für Dateigrößen, alle Formate", groessengrenze, 1, f"{NICHT} (Datei zu groß)", UNVERAENDERT, ""),
        ("Ordner nur lesbar, alle Formate", ordner_gesperrt, 1, f"{NICHT} (keine Berechtigung)", UNVERAENDERT, ""),
        ("zu wenig Speicher, alle Formate", wenig_speicher, 1, "Der Speicher reicht nicht", UNVERAENDERT,
         "Speichergrenze"),
        ("Zielordner verschwindet beim Schreiben", ordner_verschwindet, 1, f"{NICHT} (nicht vorhanden)",
         UNVERAENDERT, ""),
        ("Datei neben dem Ziel verschwindet", daneben_verschwindet, 1, f"{NICHT} (nicht vorhanden)", UNVERAENDERT,
         ""),
        ("Ziel wird beim Schreiben zum Ordner", ziel_wird_ordner, 1, f"{NICHT} (ist ein Ordner)", UNVERAENDERT,
         ""),
        ("Ziel wird beim Schreiben ersetzt", ziel_ersetzt, 0, "", NEU, ""),
        ("Eingabe verschwindet beim Schreiben", eingabe_verschwindet, 0, "", NEU, ""),
        ("Ziel ist ein Ordner", ziel_ist("ordner"), 1, f"{NICHT} (ist ein Ordner)", UNVERAENDERT, ""),
        ("Ziel ist eine Pipe", ziel_ist("rohr"), 1, f"{NICHT} (keine gewöhnliche Datei)", UNVERAENDERT, ""),
        ("Ziel führt zu einem Gerät", ziel_ist("geraet"), 1, f"{NICHT} (keine gewöhnliche Datei)", UNVERAENDERT,
         ""),
        ("Ziel ist ein Verweis auf eine Datei", verweis_als_ziel(True), 0, "", NEU, ""),
        ("Ziel ist ein Verweis auf eine Datei, die es noch nicht gibt", verweis_als_ziel(False), 0, "", NEU, ""),
        ("Ziel ist ein Verweis in einen Ordner, den es nicht gibt",
         mit(verweis("ziel/NETZ.ZRW", "weg/NETZ.ZRW"), *EXPORT, "NETZ.EIN"), 1, f"{NICHT} (nicht vorhanden)",
         UNVERAENDERT, ""),
        ("Ziel ist ein Verweis auf sich selbst", mit(verweis("ziel/NETZ.ZRW", "NETZ.ZRW"), *EXPORT, "NETZ.EIN"), 1,
         f"{NICHT} (Verweise im Kreis)", UNVERAENDERT, ""),
        ("Ziel ist nur lesbar", mit(lambda w: os.chmod(w.pfad("ziel/NETZ.ZRW"), 0o444), *EXPORT, "NETZ.EIN",
                                    nutzer=NIEMAND), 1, f"{NICHT} (keine Berechtigung)", UNVERAENDERT, ""),
        ("Name mit 255 Zeichen", mit(lambda w: os.rename(w.pfad("NETZ.EIN"), w.pfad("n" * 251 + ".EIN")), *EXPORT,
                                     "n" * 251 + ".EIN"), 0, "", NEU, ""),
        ("Zielordner ist eine Datei", ruf("--export", "zrw", "--ziel", "KOORD.KF", "NETZ.EIN"), 1,
         "ein Teil des Pfades ist kein Ordner", UNVERAENDERT, ""),
        ("Zielordner ist ein Gerät", ruf("--export", "zrw", "--ziel", "/dev/full", "NETZ.EIN", nutzer=NIEMAND), 1,
         "ein Teil des Pfades ist kein Ordner", UNVERAENDERT, ""),
        ("Zielordner in einem Ordner, den es nicht gibt",
         ruf("--export", "zrw", "--ziel", "gibts/nicht", "NETZ.EIN"), 1, f"{NICHT} (nicht vorhanden)", UNVERAENDERT,
         ""),
        ("Zielordner mit 4 000 Zeichen in einem Namen", ruf("--export", "zrw", "--ziel", LANG, "NETZ.EIN"), 1,
         "Name zu lang", UNVERAENDERT, ""),
        ("Einstellungen: Ordner nur lesbar", einstellungen_gesperrt, 1, "nicht gespeichert", UNVERAENDERT, ""),
        ("Einstellungen: Datenträger voll", einstellungen_voll, 1, "nicht gespeichert", UNVERAENDERT, "root"),
    ]),
    ("Lesen", [
        ("Steuerdatei fehlt", ruf(*EXPORT, "fehlt.EIN"), 1, f"{AUF} (nicht vorhanden)", UNVERAENDERT, ""),
        ("Steuerdatei ist ein Ordner", ruf(*EXPORT, "ziel"), 1, f"{AUF} (keine gewöhnliche Datei)", UNVERAENDERT,
         ""),
        ("Steuerdatei ist eine Pipe", mit(rohr("NETZ.EIN"), *EXPORT, "NETZ.EIN"), 1,
         f"{AUF} (keine gewöhnliche Datei)", UNVERAENDERT, ""),
        ("Steuerdatei ist ein Gerät", ruf(*EXPORT, "/dev/zero"), 1, f"{AUF} (keine gewöhnliche Datei)",
         UNVERAENDERT, ""),
        ("Steuerdatei ist ein Socket", mit(steckdose("dose.EIN"), *EXPORT, "dose.EIN"), 1,
         f"{AUF} (keine gewöhnliche Datei)", UNVERAENDERT, ""),
        ("Steuerdatei ist ein Verweis auf sich selbst", mit(verweis("kreis.EIN", "kreis.EIN"), *EXPORT, "kreis.EIN"),
         1, f"{AUF} (Verweise im Kreis)", UNVERAENDERT, ""),
        ("Steuerdatei ohne Leserecht", nutzer_ohne_recht("NETZ.EIN"), 1, f"{AUF} (keine Berechtigung)",
         UNVERAENDERT, ""),
        ("Steuerdatei leer", mit(datei("leer.EIN", b""), *EXPORT, "leer.EIN"), 0, "keine lesbaren Punkte", None,
         ""),
        ("Steuerdatei nur aus Nullen", mit(datei("null.EIN", bytes(100000)), *EXPORT, "null.EIN"), 0,
         "keine lesbaren Punkte", None, ""),
        ("Zarwikdatei leer", mit(datei("leer.ZRW", b""), *EXPORT, "leer.ZRW"), 1, "keine vollständige Zarwikdatei",
         UNVERAENDERT, ""),
        ("Name mit Umlauten und Blanks", mit(lambda w: os.rename(w.pfad("NETZ.EIN"), w.pfad("Größe ä ß.EIN")),
                                             "--export", "zrw", "--ziel", "ziel", "Größe ä ß.EIN"), 0, "", None, ""),
        ("Name mit Umlauten, Sprache C", mit(lambda w: os.rename(w.pfad("NETZ.EIN"), w.pfad("Größe.EIN")),
                                             *EXPORT, "Größe.EIN", LC_ALL="C"), 0, "", None, ""),
        ("Name mit Zeilenende und Steuerzeichen", mit(datei("a\n\x1b[31mb.EIN", "$NT x\n"), *EXPORT,
                                                      "a\n\x1b[31mb.EIN"), 1, "Zahl fehlt", UNVERAENDERT, ""),
        ("Pfad mit fast 4 000 Zeichen", tiefer_pfad, 0, "", None, ""),
        ("Name mit 4 000 Zeichen", ruf(*EXPORT, LANG + ".EIN"), 1, f"{AUF} (Name zu lang)", UNVERAENDERT, ""),
        ("Pfad über eine Datei", ruf(*EXPORT, "KOORD.KF/NETZ.EIN"), 1, f"{AUF} (", UNVERAENDERT, ""),
        ("relative Pfade mit . und ..", relativ, 0, "", NEU, ""),
        ("ohne Standardströme", geschlossene_ausgaben, 0, "", NEU, ""),
        ("Einfügung fehlt", mit(datei("a.EIN", EINBINDUNG.format("fehlt.SF")), *EXPORT, "a.EIN"), 1,
         "Kann Datei fehlt.SF nicht öffenen!", UNVERAENDERT, ""),
        ("Einfügung mit Steuerzeichen im Namen", mit(datei("a.EIN", b"$NT 3\n$SF \x1b[31m\x7f\x81\x9by\n"), *EXPORT,
                                                     "a.EIN"), 1, "nicht öffenen!", UNVERAENDERT, ""),
        ("Einfügung ist eine Pipe", mit(lambda w: (rohr("p.SF")(w), datei("a.EIN", EINBINDUNG.format("p.SF"))(w)),
                                        *EXPORT, "a.EIN"), 1, "Kann Datei p.SF nicht", UNVERAENDERT, ""),
        ("Einfügung ist ein Gerät", mit(datei("a.EIN", EINBINDUNG.format("/dev/zero")), *EXPORT, "a.EIN"), 1,
         "Kann Datei /dev/zero nicht", UNVERAENDERT, ""),
        ("Einfügung führt zu einem Gerät",
         mit(lambda w: (verweis("z.SF", "/dev/zero")(w), datei("a.EIN", EINBINDUNG.format("z.SF"))(w)), *EXPORT,
             "a.EIN"), 1, "Kann Datei z.SF nicht", UNVERAENDERT, ""),
        ("Einfügung ist ein Ordner", mit(datei("a.EIN", EINBINDUNG.format("ziel")), *EXPORT, "a.EIN"), 1,
         "Kann Datei ziel nicht", UNVERAENDERT, ""),
        ("Einfügung ist die Datei selbst", mit(datei("a.EIN", EINBINDUNG.format("a.EIN")), *EXPORT, "a.EIN"), 0,
         None, None, ""),
        ("Einfügung liegt außerhalb", mit(datei("unten/a.EIN", EINBINDUNG.format("../RICHT.SF")), *EXPORT,
                                          "unten/a.EIN"), 0, "", None, ""),
    ]),
    ("Tabellen und Einstellungen", [
        ("Tabelle ohne Leserecht", nutzer_ohne_recht("KooTABLE.DB"), 0, "KooTABLE.DB", NEU, ""),
        ("Tabelle ist eine Pipe", mit(rohr("KooTABLE.DB"), *BILD, "NETZ.EIN"), 0, "", NEU,
         ""),
        ("Tabelle ist ein Ordner", mit(ordner("KooTABLE.DB"), *BILD, "NETZ.EIN"), 0, "", NEU,
         ""),
        ("Tabelle ist keine", mit(datei("KooTABLE.DB", b"x" * 5000), *BILD, "NETZ.EIN"), 0,
         "KooTABLE.DB", NEU, ""),
        ("Tabelle wird beim Lesen geschrieben (25 Läufe)",
         im_wechsel("KooTABLE.DB", 9000, *BILD, "NETZ.EIN"), 0, None, NEU, ""),
        ("Steuerdatei wird beim Lesen geschrieben (25 Läufe)", im_wechsel("NETZ.EIN", 17000, *EXPORT, "NETZ.EIN"),
         (0, 1), None, None, ""),
        ("Einstellungsdatei fehlt", ruf(*EXPORT, "--einstellungen", "fehlt.ini", "NETZ.EIN"), 1, AUF, UNVERAENDERT,
         ""),
        ("Einstellungsdatei ist eine Pipe", mit(rohr("p.ini"), *EXPORT, "--einstellungen", "p.ini", "NETZ.EIN"), 1,
         AUF, UNVERAENDERT, ""),
        ("Einstellungsdatei ist keine", mit(datei("b.ini", os.urandom(5000)), *EXPORT, "--einstellungen", "b.ini",
                                            "NETZ.EIN"), 0, "", NEU, ""),
        ("Einstellungsdatei mit Wert eigener Art und Größe, Speicher 512 MB",
         lambda w: w.laeuft(*EXPORT, "--einstellungen",
                            os.path.join(w.wurzel, "fuzz/korpus/Einstellungsdatei/riesiges_feld"), "NETZ.EIN",
                            grenzen={"RLIMIT_AS": 512 << 20}), 0, "", NEU, "Speichergrenze"),
        ("eigene Einstellungen sind eine Pipe", mit(rohr("heim/ZRWINI.ini"), *EXPORT, "NETZ.EIN"), 1,
         f"{AUF} (keine gewöhnliche Datei)", UNVERAENDERT, ""),
        ("eigene Einstellungen sind ein Ordner", mit(ordner("heim/ZRWINI.ini"), *EXPORT, "NETZ.EIN"), 1,
         f"{AUF} (keine gewöhnliche Datei)", UNVERAENDERT, ""),
        ("eigene Einstellungen führen zu einem Gerät", mit(verweis("heim/ZRWINI.ini", "/dev/zero"), *EXPORT,
                                                           "NETZ.EIN"), 1, f"{AUF} (keine gewöhnliche Datei)",
         UNVERAENDERT, ""),
        ("eigene Einstellungen mit 2 GB, Speicher 512 MB",
         mit(lambda w: subprocess.run(["truncate", "-s", "2G", w.pfad("heim/ZRWINI.ini")], check=True), *EXPORT,
             "NETZ.EIN", grenzen={"RLIMIT_AS": 512 << 20}), 1, "zu groß", UNVERAENDERT, "Speichergrenze"),
    ]),
    ("Aufruf", [
        ("Option ohne Wert", ruf("--export"), 2, "--export erwartet einen Wert", UNVERAENDERT, ""),
        ("ohne Datei", ruf("--export", "zrw"), 2, "Es fehlt der Name der Datei", UNVERAENDERT, ""),
        ("leerer Name", ruf("--export", "zrw", ""), 2, "Es fehlt der Name der Datei", UNVERAENDERT, ""),
        ("leere Liste von Formaten", ruf("--export", "", "NETZ.EIN"), 2, "--export erwartet eine Liste",
         UNVERAENDERT, ""),
        ("unbekanntes Format", ruf("--export", "zrw,Bild", "NETZ.EIN"), 2, 'Unbekanntes Format "Bild"', UNVERAENDERT,
         ""),
        ("unbekannte Option", ruf("--wasdenn", "NETZ.EIN"), 2, 'Unbekannte Option "--wasdenn"', UNVERAENDERT, ""),
        ("zwei Dateien", ruf("--export", "zrw", "a", "b"), 2, "Nur eine Datei ist möglich", UNVERAENDERT, ""),
        ("20 000 Dateien", ruf("--export", "zrw", *map(str, range(20000))), 2, "Nur eine Datei ist möglich",
         UNVERAENDERT, ""),
        ("10 000-mal dieselbe Option", ruf(*(["--export", "zrw"] * 10000)), 2, "Es fehlt der Name der Datei",
         UNVERAENDERT, ""),
        ("Argument mit 100 000 Zeichen", ruf("--export", "zrw", "x" * 100000), 1, f"{AUF} (Name zu lang)",
         UNVERAENDERT, ""),
        ("Liste mit 100 000 Zeichen", ruf("--export", "zrw," * 25000 + "x", "NETZ.EIN"), 2,
         'Unbekanntes Format "x"', UNVERAENDERT, ""),
        ("Bytes, die kein UTF-8 sind", ruf("--export", "zrw", b"gr\xfc\xdfe.EIN"), 1,
         f"{AUF} (nicht vorhanden)", UNVERAENDERT, ""),
        ("Steuerzeichen in einer Option", ruf("--\x1b[31m\n\x07"), 2, "Unbekannte Option", UNVERAENDERT, ""),
        ("Optionen nach --", ruf("--export", "zrw", "--", "--help"), 1, AUF, UNVERAENDERT, ""),
        ("Größe außerhalb", ruf("--export", "png", "--groesse", "99999999999999999999x1", "NETZ.EIN"), 2,
         "--groesse erwartet", UNVERAENDERT, ""),
        ("Maßstab unendlich", ruf("--export", "pdf", "--massstab", "1e999", "NETZ.EIN"), 2, "--massstab erwartet",
         UNVERAENDERT, ""),
        ("Auflösung negativ", ruf("--export", "plt", "--dpi", "-1", "NETZ.EIN"), 2, "--dpi erwartet", UNVERAENDERT,
         ""),
    ]),
]


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
    if WURZEL_RECHTE and "STOERUNG_EIGENER_RAUM" not in os.environ:
        # The small file systems of the cases are seen by this process and its children only.
        os.environ["STOERUNG_EIGENER_RAUM"] = "1"
        os.execvp("unshare", ["unshare", "-m", "--propagation", "private", sys.executable, "-B", *sys.argv])
    fehler = anzahl = ausgelassen = 0
    zeilen = []
    with tempfile.TemporaryDirectory(prefix="stoerung") as ort:
        os.chmod(ort, 0o755)
        # Another user must be able to reach the programs wherever they were built.
        zarwik, sichern = (shutil.copy(os.path.abspath(x), ort) for x in (o.zarwik, o.sichern))
        for gruppe, faelle in FAELLE:
            zeilen += ["", f"### {gruppe}", "", "| Fall | Status | Meldung (ohne Dateiname) | Dateien danach |",
                       "|---|---|---|---|"]
            for name, tu, status, text, danach, braucht in faelle:
                if (braucht == "root" and not WURZEL_RECHTE) or \
                        (braucht == "Speichergrenze" and o.ohne_speichergrenze):
                    print(f"ausgelassen (braucht {braucht}): {name}")
                    ausgelassen += 1
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
    print(f"{anzahl} Fälle, {fehler} mit Mangel, {ausgelassen} ausgelassen")
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
