#!/usr/bin/env python3
"""Small seeded changes to geo/, model/, input/ and output/, one at a time: do the tests of the core notice?

usage: skripte/mutationen.py [--anzahl N] [--saat S] [--ort ORDNER] [--auch REGEX] [--zeit SEKUNDEN] [--nochmal]

Works on a copy of the tree in ORDNER (default: zarwik_mutationen among the temporary files), never on the tree itself.
Each mutant is built and run through kern_test; one that passes there is tried on the tests that run the whole program
and compare what it writes. The library's own assertions are on, as the tests also run under the sanitizers. Results
are kept there as they come in, one line each: a second start with the same seed goes on where the first one ended.
At the end the survivors are printed with their places and changes; whether one of them changes anything at all (an
equivalent mutant) is for the reader to say. Sources are changed, headers are not. Exit status 1 only where the
unchanged tree does not build or does not pass.
"""

import argparse
import difflib
import json
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

WURZEL = Path(__file__).resolve().parent.parent
RAEUME = ("geo", "model", "input", "output")
ERGEBNISSE = ("getötet", "getötet vom Programmtest", "überlebt", "baut nicht")
PROGRAMMTESTS = "^(ergebnisse|golden_export|geojson|hp2xx|pdf|svg|fenster_test)$"
PROGRAMMZEIT = 400  # seconds

# What can be swapped: pattern in code without strings and comments -> replacements.
TAUSCHE = [
    (r"(?<![<>=!\-])<(?![<=>])(?= )", ["<=", ">="]), (r"(?<= )<=(?!>)", ["<", ">"]),
    (r"(?<= )>(?= )", [">=", "<="]), (r"(?<= )>=(?= )", [">", "<"]),
    (r"==", ["!="]), (r"!=", ["=="]), (r"&&", ["||"]), (r"(?<= )\|\|(?= )", ["&&"]),
    (r"(?<= )\+(?= )", ["-"]), (r"(?<= )-(?= )", ["+"]), (r"(?<= )\*(?= )", ["/"]), (r"(?<= )/(?= )", ["*"]),
    (r"\+=", ["-="]), (r"-=", ["+="]), (r"\+\+", ["--"]), (r"(?<=[( ])!(?=[A-Za-z(])", [""]),
    (r"\btrue\b", ["false"]), (r"\bfalse\b", ["true"]), (r"std::min\b", ["std::max"]), (r"std::max\b", ["std::min"]),
    (r"\bbreak;", ["continue;"]),
]
KONSTANTE = re.compile(r"(?<![\w.'\"])(\d+\.\d+|\d+)(?![\w.'])")
# One statement on a line of its own that declares nothing and leaves nothing.
ANWEISUNG = re.compile(r"^\s+(?!return\b|break\b|continue\b|using\b|const\b|auto\b|static\b|throw\b|case\b|std::\w+<|"
                       r"[A-Z]\w*(::\w+)* "
                       r"\w+[;({=]|[A-Z]\w*[&*] )[\w*(].*[)\]\w];\s*(//.*)?$")


def ohne_texte(zeile):
    """The line with strings, characters and remarks blanked, same length."""
    muster = r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])\'|//.*$|#.*$'
    return re.sub(muster, lambda m: " " * len(m.group()), zeile.rstrip("\n"))


def aenderungen(datei):
    """Every change that could be made to a source: (line, kind, new line)."""
    zeilen = datei.read_text(encoding="utf-8").splitlines(keepends=True)
    block = False
    for nummer, zeile in enumerate(zeilen):
        kern = ohne_texte(zeile)
        if "/*" in kern:
            block = "*/" not in kern
            continue
        if block:
            block = "*/" not in kern
            continue
        # What the compiler alone looks at, and templates, are no behaviour.
        if re.search(r"static_assert|template|operator|#include|\bconcept\b", kern):
            continue
        for muster, neue in TAUSCHE:
            for m in re.finditer(muster, kern):
                for neu in neue:
                    yield nummer, "Tausch", zeile[:m.start()] + neu + zeile[m.end():]
        for m in KONSTANTE.finditer(kern):
            zahl = m.group()
            neu = str(float(zahl) * 1.5 + 1) if "." in zahl else str(int(zahl) + 1)
            yield nummer, "Konstante", zeile[:m.start()] + neu + zeile[m.end():]
        if ANWEISUNG.match(zeile) and (nummer == 0 or re.search(r"[;{}]\s*(//.*)?$", zeilen[nummer - 1])):
            yield nummer, "Anweisung weg", re.match(r"\s*", zeile).group() + ";\n"


def waehle(quelle, anzahl, saat, auch):
    """Files weigh by their lines, kinds by thirds: else every mutant would be a constant of a table."""
    zufall = random.Random(saat)
    dateien = sorted(p for raum in RAEUME for p in (quelle / raum).rglob("*.cpp")
                     if re.search(auch, str(p.relative_to(quelle))))
    alle = {d: list(aenderungen(d)) for d in dateien}
    gewichte = [len(alle[d]) ** 0.5 for d in dateien]
    gewaehlt, gesehen = [], set()
    while len(gewaehlt) < anzahl and len(gesehen) < sum(map(len, alle.values())):
        datei = zufall.choices(dateien, gewichte)[0]
        art = zufall.choice(("Tausch", "Tausch", "Konstante", "Anweisung weg"))
        moeglich = [a for a in alle[datei] if a[1] == art]
        if not moeglich:
            continue
        a = zufall.choice(moeglich)
        if (datei, a) in gesehen:
            continue
        gesehen.add((datei, a))
        gewaehlt.append((datei.relative_to(quelle), *a))
    return gewaehlt


def befehl(worte, zeit, log=None, nutzer=None):
    """Exit status, None after the time limit. The whole group of processes ends with it."""
    with subprocess.Popen(worte, stdout=log or subprocess.DEVNULL, stderr=subprocess.STDOUT, cwd=tempfile.gettempdir(),
                          start_new_session=True, user=nutzer, extra_groups=[] if nutzer else None) as kind:
        try:
            return kind.wait(timeout=zeit)
        except subprocess.TimeoutExpired:
            os.killpg(kind.pid, 9)
            kind.wait()
            return None


def richte_ein(ort, bau):
    """A copy of what git knows of the tree, and a build of it."""
    quelle = ort / "baum"
    if not quelle.exists():
        neu = ort / "baum.neu"
        shutil.rmtree(neu, ignore_errors=True)
        neu.mkdir(parents=True)
        liste = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=WURZEL,
                               check=True, capture_output=True).stdout.decode().split("\0")
        for name in filter(None, liste):
            if (WURZEL / name).is_file():
                (neu / name).parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(WURZEL / name, neu / name)  # new times: the build folder stays
        neu.rename(quelle)
    with open(ort / "bau.log", "ab") as log:
        # No warnings: a mutant may leave a variable unused, and that is no finding.
        status = befehl(["cmake", "-S", str(quelle), "-B", str(bau), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
                         "-DCMAKE_CXX_FLAGS_RELEASE=-O1", "-DCMAKE_CXX_FLAGS=-w -D_GLIBCXX_ASSERTIONS"], 300, log)
        status = status or baue(bau, 3600, log) or baue_programme(bau, 3600, log)
    if status:
        sys.exit(f"Der unveränderte Baum lässt sich nicht bauen, siehe {ort / 'bau.log'}")
    return quelle


def baue(bau, zeit, log=None, ziele=("kern_test",)):
    return befehl(["cmake", "--build", str(bau), "--target", *ziele, "-j", "1"], zeit, log)


def baue_programme(bau, zeit, log=None):
    return baue(bau, zeit, log, ("zarwik", "fenster_test"))


def teste(bau, zeit, log=None):
    """Runs the tests: with little memory, as an endless mutant may also grow, and never as root, as one may delete."""
    return befehl(["bash", "-c", 'ulimit -v 4194304; exec "$0" "$@"', str(bau / "tests/kern_test"), "--gtest_brief=1",
                   "--gtest_fail_fast"], zeit, log, "nobody" if os.geteuid() == 0 else None)


def teste_programm(bau, zeit, log=None):
    """Runs the tests that compare the files of the whole program, with the same cautions."""
    ergebnisse = bau / "Testing"
    ergebnisse.mkdir(exist_ok=True)
    ergebnisse.chmod(0o777)
    for datei in (*ergebnisse.glob("*"), *ergebnisse.glob("*/*")):
        datei.chmod(0o777)
    return befehl(["bash", "-c", 'ulimit -v 8388608; exec "$0" "$@"', "ctest", "--test-dir", str(bau), "-R",
                   PROGRAMMTESTS, "--stop-on-failure"], zeit, log, "nobody" if os.geteuid() == 0 else None)


def pruefe_mutant(quelle, bau, datei, nummer, neue_zeile, zeit):
    """@return getötet | getötet vom Programmtest | überlebt | baut nicht"""
    pfad = quelle / datei
    alt = pfad.read_text(encoding="utf-8")
    zeilen = alt.splitlines(keepends=True)
    zeilen[nummer] = neue_zeile
    try:
        pfad.write_text("".join(zeilen), encoding="utf-8")
        if baue(bau, 900) != 0:
            return "baut nicht"
        if teste(bau, zeit) != 0:
            return "getötet"
        if baue_programme(bau, 900) != 0:
            return "baut nicht"
        return "überlebt" if teste_programm(bau, PROGRAMMZEIT) == 0 else "getötet vom Programmtest"
    finally:
        pfad.write_text(alt, encoding="utf-8")


def pruefe_nochmal(quelle, bau, fertig, stand, zeit):
    """Survivors on the tree and the tests of now; where the line has gone, the result stays."""
    for f in fertig:
        if f["ergebnis"] != "überlebt":
            continue
        zeilen = (quelle / f["datei"]).read_text(encoding="utf-8").splitlines(keepends=True)
        orte = [i for i, z in enumerate(zeilen) if z == f["alt"]]
        if not orte:
            continue
        ort = min(orte, key=lambda i: abs(i + 1 - f["zeile"]))
        f["ergebnis"] = pruefe_mutant(quelle, bau, Path(f["datei"]), ort, f["neu"], zeit)
        print(f"{f['datei']}:{ort + 1} {f['art']}: {f['ergebnis']}", flush=True)
        stand.write_text("".join(json.dumps(g, ensure_ascii=False) + "\n" for g in fertig), encoding="utf-8")


def main():
    p = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    p.add_argument("--anzahl", type=int, default=200)
    p.add_argument("--saat", type=int, default=1)
    p.add_argument("--ort", type=Path, default=Path(tempfile.gettempdir(), "zarwik_mutationen"))
    p.add_argument("--auch", default=".", help="nur Dateien, deren Name passt")
    p.add_argument("--nochmal", action="store_true", help="Überlebende noch einmal, mit den Tests von jetzt")
    p.add_argument("--zeit", type=float, help="Sekunden für kern_test (sonst das Dreifache des unveränderten)")
    o = p.parse_args()
    ort = o.ort.resolve()
    ort.mkdir(parents=True, exist_ok=True)
    bau = ort / "bau"
    if o.nochmal:
        shutil.rmtree(ort / "baum", ignore_errors=True)
    quelle = richte_ein(ort, bau)
    anfang = time.monotonic()
    with open(ort / "test.log", "wb") as log:
        if teste(bau, 600, log) != 0:
            sys.exit(f"Der unveränderte Baum besteht seine Tests nicht, siehe {ort / 'test.log'}")
        dauer = time.monotonic() - anfang
        if teste_programm(bau, 600, log) != 0:
            sys.exit(f"Der unveränderte Baum besteht seine Programmtests nicht, siehe {ort / 'test.log'}")
    zeit = o.zeit or 3 * dauer + 10
    stand = ort / f"ergebnisse_{o.saat}.jsonl"
    fertig = [json.loads(z) for z in stand.read_text(encoding="utf-8").splitlines()] if stand.exists() else []
    if o.nochmal:
        pruefe_nochmal(quelle, bau, fertig, stand, zeit)
        berichte(fertig, o.saat)
        return 0
    bekannt = {(f["datei"], f["zeile"], f["neu"]) for f in fertig}
    # More candidates than asked for: those that do not compile are not counted.
    for datei, nummer, art, neue_zeile in waehle(quelle, 3 * o.anzahl, o.saat, o.auch):
        if sum(f["ergebnis"] != "baut nicht" for f in fertig) >= o.anzahl:
            break
        if (str(datei), nummer + 1, neue_zeile) in bekannt:
            continue
        anfang = time.monotonic()
        alte = (quelle / datei).read_text(encoding="utf-8").splitlines(keepends=True)[nummer]
        ergebnis = pruefe_mutant(quelle, bau, datei, nummer, neue_zeile, zeit)
        f = {"datei": str(datei), "zeile": nummer + 1, "art": art, "alt": alte, "neu": neue_zeile,
             "ergebnis": ergebnis, "dauer": round(time.monotonic() - anfang, 1)}
        fertig.append(f)
        with open(stand, "a", encoding="utf-8") as log:
            log.write(json.dumps(f, ensure_ascii=False) + "\n")
        print(f"{len(fertig)}: {f['datei']}:{f['zeile']} {art}: {ergebnis} ({f['dauer']} s)", flush=True)
    berichte(fertig, o.saat)
    return 0


def berichte(fertig, saat):
    print("\nÜberlebende:")
    for f in fertig:
        if f["ergebnis"] == "überlebt":
            print(f"\n{f['datei']}:{f['zeile']} ({f['art']})")
            print("".join(list(difflib.unified_diff([f["alt"]], [f["neu"]], n=0))[3:]), end="")
    zahl = {e: sum(f["ergebnis"] == e for f in fertig) for e in ERGEBNISSE}
    getoetet = zahl["getötet"] + zahl["getötet vom Programmtest"]
    gezaehlt = getoetet + zahl["überlebt"]
    anteil = 100 * getoetet / gezaehlt if gezaehlt else 0
    dauer = sum(f["dauer"] for f in fertig) / max(1, len(fertig))
    print(f"\n{gezaehlt} Mutanten, Saat {saat}: {getoetet} getötet ({anteil:.0f} %), davon "
          f"{zahl['getötet vom Programmtest']} erst vom Programmtest, {zahl['überlebt']} überlebt; "
          f"{zahl['baut nicht']} bauen nicht und zählen nicht; im Mittel {dauer:.0f} s je Mutant")


if __name__ == "__main__":
    sys.exit(main())
