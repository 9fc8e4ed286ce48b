#!/usr/bin/env python3
"""Prints the rows that the benchmark programs wrote as one table and keeps them as JSON.
Beside the JSON copy stands the table for docs/leistung.md (the same name with .md).
usage: tabelle.py ZEILEN ERGEBNIS.json   (ZEILEN: one JSON object a line, see Tabelle.h)"""
import json
import os
import sys
import time

KOEPFE = ["was", "Zarwik min", "Median", "Vergleich min", "Median", "Verhältnis", "Ziel", "erreicht"]


def zahl(wert):
    return f"{wert:.0f}" if abs(wert) >= 1000 or wert == int(wert) else f"{wert:.3g}"


def spalten(z):
    einheit = "" if z["einheit"] == "ms" else " " + z["einheit"]
    eigene = [zahl(w) + einheit for w in z["eigene"]]
    vergleich = [zahl(w) + einheit for w in z.get("vergleich", [])] or ["", ""]
    verhaeltnis = zahl(z["verhaeltnis"]) if "verhaeltnis" in z else ""
    ziel = ""
    if "grenze" in z:
        ziel = "≤ " + zahl(z["grenze"]) + (" " + z["einheit"] if z["ziel"] == "hoechstwert" else "")
    erreicht = {True: "ja", False: "NEIN"}.get(z.get("erreicht"), "")
    return [z["was"], *eigene, *vergleich, verhaeltnis, ziel, erreicht]


def dokument(tabelle):
    """The rows as the document has them: minimum / median, decimal commas."""
    zeilen = ["| was | Zarwik min / Median | Vergleich min / Median | Verhältnis | Ziel | erreicht |", "|---|---|---|---|---|---|"]
    for was, a, b, c, d, verhaeltnis, ziel, erreicht in tabelle:
        werte = [" / ".join(w for w in paar if w) for paar in ((a, b), (c, d))]
        felder = [*werte, verhaeltnis, ziel, erreicht.replace("NEIN", "**nein**")]
        zeilen.append("| " + " | ".join([was.strip(), *(f.replace(".", ",") for f in felder)]) + " |")
    return "\n".join(zeilen) + "\n"


def main():
    with open(sys.argv[1], encoding="utf-8") as f:
        zeilen = [json.loads(z) for z in f if z.strip()]
    tabelle = [KOEPFE] + [spalten(z) for z in zeilen]
    breiten = [max(len(z[i]) for z in tabelle) for i in range(len(KOEPFE))]
    for nr, z in enumerate(tabelle):
        print("  ".join(t.ljust(b) if i in (0, 7) else t.rjust(b) for i, (t, b) in enumerate(zip(z, breiten))).rstrip())
        if nr == 0:
            print("-" * (sum(breiten) + 2 * len(breiten) - 2))
    mit_ziel = [z for z in zeilen if "erreicht" in z]
    verfehlt = [z["was"] for z in mit_ziel if not z["erreicht"]]
    print(f"\nZeiten in ms, wo nichts anderes steht; Verhältnis: Median der Runden. "
          f"{len(mit_ziel) - len(verfehlt)} von {len(mit_ziel)} Zielen erreicht.")
    with open(sys.argv[2].removesuffix(".json") + ".md", "w", encoding="utf-8") as f:
        f.write(dokument(tabelle[1:]))
    with open(sys.argv[2], "w", encoding="utf-8") as f:
        json.dump({"zeit": time.strftime("%Y-%m-%dT%H:%M:%S"), "last": os.getloadavg()[0], "zeilen": zeilen}, f,
                  ensure_ascii=False, indent=1)


main()
