#!/usr/bin/env bash
# Checks the spelling of every German text that users see: strings of the program, manual, README, docs.
# usage: skripte/rechtschreibung.sh     Exit status 1 after an unknown word; it is printed with its file and line.
# Words that the dictionary lacks, and texts that are to stay as they are, stand in skripte/woerter.txt.
set -euo pipefail
wurzel=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
. "$wurzel/skripte/pakete.sh"
brauche hunspell hunspell-de-de python3
cd "$wurzel"
exec python3 -B - <<'PYTHON'
import glob
import re
import subprocess
import sys

WORT = re.compile(r"[A-Za-zÀ-ÖØ-öø-ÿ]+(?:-[A-Za-zÀ-ÖØ-öø-ÿ]+)*")
# What these write is no language; of them only messages are texts.
SCHREIBER = re.compile(r"output/(Svgflaeche|Pdfflaeche|Geojson|DXFUnit|Plotdatei)|input/tabellen/(Datenbank|Codeseite)")
MELDUNG = re.compile(r"(Fehler|Meldung)[({][^;]*$")
# Queries, style sheets and formats are none either, nor what the compiler says to us.
KEIN_TEXT = re.compile(r"SELECT |CREATE |DROP |INSERT |PRAGMA |order by|[{};]\s*$|^[%&#<@:/\\]|://|\w\(\)|^[a-z]+$")


def zusicherungen(text):
    """(start, end) of what stands between the brackets of static_assert."""
    for m in re.finditer(r"static_assert\(", text):
        ende, tiefe = m.end(), 1
        while tiefe > 0 and ende < len(text):
            tiefe += {"(": 1, ")": -1}.get(text[ende], 0)
            ende += 1
        yield m.start(), ende


def quelltext(zeilen, nur_meldungen):
    """(line, text) of the strings of a C++ source; neighbouring literals belong together, comments are left out."""
    text = "".join(zeilen)
    teile = re.compile(r'//[^\n]*|/\*.*?\*/|\'(?:\\.|[^\'\\\n])\'|R"\((.*?)\)"|"((?:\\.|[^"\\\n])*)"|'
                       r'#include[^\n]*', re.S)
    nicht = list(zusicherungen(text))
    gesammelt, anfang, ende = "", 0, -1
    for m in teile.finditer(text):
        inhalt = m.group(1) if m.group(1) is not None else m.group(2)
        davor = text[max(0, m.start() - 200):m.start()]
        if inhalt is None or any(a <= m.start() < e for a, e in nicht) or \
                nur_meldungen and not MELDUNG.search(davor):
            continue
        inhalt = re.sub(r"\\x[0-9A-Fa-f]+|\\u[0-9A-Fa-f]{4}|\\.", " ", inhalt)
        if ende >= 0 and not text[ende:m.start()].strip():
            gesammelt += inhalt
        else:
            if gesammelt:
                yield anfang, gesammelt
            gesammelt, anfang = inhalt, text.count("\n", 0, m.start()) + 1
        ende = m.end()
    if gesammelt:
        yield anfang, gesammelt


def geschrieben(zeilen, _):
    """(line, text) of a document without its code, addresses, marks and the paragraph in English."""
    code = englisch = False
    for nummer, zeile in enumerate(zeilen, 1):
        if zeile.lstrip().startswith("```"):
            code = not code
        elif not code and not zeile.startswith("    "):
            if zeile.startswith("*In English:"):
                englisch = True
            if englisch:
                englisch = not zeile.rstrip().endswith("*")
                continue
            zeile = re.sub(r"`[^`]*`|\]\([^)]*\)|<!--.*?-->|<[^>]*>|https?://\S+|&\w+;", " ", zeile)
            # The manual page: remarks, requests, names in bold.
            zeile = re.sub(r"^['.]\\\".*|^\.(TH|B|BR)\b.*|^\.[A-Z]+|\\f[BI].*?\\f[RP]|\\\(\w\w|\\", " ", zeile)
            yield nummer, zeile


def worte():
    """Each word with the places where it stands."""
    stellen = {}
    quellen = sorted(f for raum in ("ui", "app", "geo", "model", "input", "output")
                     for f in glob.glob(raum + "/**/*", recursive=True) if f.endswith((".cpp", ".h")))
    deutsche = [f for f in glob.glob("*.md") if f != "CONTRIBUTING.md"]
    texte = sorted([*glob.glob("hilfe/*.md"), *glob.glob("docs/*.md"), *deutsche, "beispiele/README.md",
                    "paket/zarwik.1.in"])
    for datei in quellen + texte:
        with open(datei, encoding="utf-8") as f:
            zeilen = f.readlines()
        for nummer, text in (quelltext if datei in quellen else geschrieben)(zeilen, SCHREIBER.match(datei)):
            # A name without a blank is one of the program's own, unless it has an umlaut.
            if datei in quellen and (KEIN_TEXT.search(text) or not re.search(r"[ äöüßÄÖÜ]", text.strip())):
                if not re.fullmatch(r"&?[A-ZÄÖÜ][a-zäöüß&]{2,}(-[A-ZÄÖÜ][a-zäöüß]+)*[….:?!]*", text):
                    continue
            for m in WORT.finditer(text.replace("&", "")):
                wort = m.group()
                davor, danach = text[max(0, m.start() - 1):m.start()], text[m.end():m.end() + 1]
                # Keys, units, identifiers and names of files.
                if len(wort) < 3 or re.search(r"[a-zäöüß][A-Z]|[A-Z]{2}", wort) or davor in tuple("$._/\\=%-") or \
                        danach in tuple("_(=/") or davor.isdigit() or re.match(r"\.[a-zA-Z]", text[m.end():]):
                    continue
                stellen.setdefault(wort, []).append(f"{datei}:{nummer}")
    return stellen, len(quellen), len(texte)


erlaubt = set()
with open("skripte/woerter.txt", encoding="utf-8") as f:
    for zeile in f:
        erlaubt.update(zeile.split("#")[0].split())

stellen, quellen, texte = worte()
zu_pruefen = sorted(stellen.keys() - erlaubt)
antwort = subprocess.run(["hunspell", "-d", "de_DE", "-i", "utf-8", "-l"], input="\n".join(zu_pruefen) + "\n",
                         capture_output=True, text=True, encoding="utf-8")
if antwort.returncode != 0 or len(stellen) < 1000:
    sys.exit(f"Die Prüfung läuft nicht: {len(stellen)} Wörter, {antwort.stderr.strip()}")
# Of "Lage- und Höhennetz" the dictionary sees the parts.
unbekannt = [w for w in zu_pruefen if {w, *w.split("-")} & (set(antwort.stdout.split()) - erlaubt)]
for wort in unbekannt:
    print(f"{stellen[wort][0]}: {wort}" + (f" (noch {len(stellen[wort]) - 1}-mal)" if len(stellen[wort]) > 1 else ""))
unbenutzt = sorted(erlaubt - {t for w in stellen for t in (w, *w.split("-"))})
if unbenutzt:
    print(f"skripte/woerter.txt: nirgends mehr: {' '.join(unbenutzt)}")
print(f"{len(stellen)} Wörter aus {quellen} Quellen und {texte} Texten, {len(unbekannt)} unbekannt")
sys.exit(1 if unbekannt else 0)
PYTHON
