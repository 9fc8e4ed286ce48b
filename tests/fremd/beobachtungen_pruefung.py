"""List and statistics of the observations against the tables themselves: beobachtungen_pruefung.py ORDNER LISTE STATISTIK
or, to make a folder of other tables, beobachtungen_pruefung.py --aendere ORDNER."""
import csv
import glob
import json
import math
import os
import sys

from paradoxtafel import Tafel

XYZ = ("X", "Y", "Z")


def teile(stamm, richtungen):
    return [stamm + r for r in richtungen]


# table: from, to, observed value, V, TG, EV, GF, GRZW, EP, NMF, FF, NK
EINFACH = [["TG"], ["EV"], ["GF"], ["GRZW"], ["EP"], ["NMF"], "FF", ["NK"]]
TABELLEN = {
    "STRTABLE": ["P1", "P2", ["ST"], ["VS"]] + EINFACH,
    "RTGTABLE": ["PS", "PZ", ["RI"], ["VR"]] + EINFACH,
    "DHTABLE": ["P1", "P2", ["DH"], ["VH"], ["TG"], ["EV"], ["GF"], ["GRZW"], ["EH"], ["NMF"], "FF", ["NK"]],
    "GPSTABLE": ["P1", "P2", teile("D", XYZ), teile("V", XYZ), ["TG"], teile("EV", XYZ), teile("GF", "LQH"),
                 teile("GRZW", XYZ), teile("EP", "NEH"), teile("NMF", XYZ), "FF", teile("NKD", XYZ)],
    "WGSTABLE": ["PKT", None, [], teile("v", "YXH"), teile("TG", XYZ), teile("EV", XYZ), teile("GF", "YXH"),
                 teile("GRZW", "YXH"), teile("EP", "YXH"), teile("NMF", "YXH"), "FF", []],
    "WGSYXTABLE": ["PKT", None, [], teile("v", "YX"), teile("TG", "XY"), teile("EV", "XY"), teile("GF", "YX"),
                   teile("GRZW", "YX"), teile("EP", "YX"), teile("NMF", "YX"), "FF", []],
    "MLTABLE": ["PA", "PE", ["Sgem"], ["vS"], [], [], [], [], [], [], "GF", []],
    "STRKTRTable": ["P1", "P2", ["Sgem"], ["vS"], [], [], [], [], [], [], "GF", []],
}
NAMEN = ["Tabelle", "ID", "Von", "Nach", "Wert", "V", "TG", "EV", "GF", "GRZW", "EP", "NMF", "FF", "NK"]


def groesster(werte):
    return max((w for w in werte if w is not None), key=abs, default=None)


def zeilen(ordner, tabelle):
    von, nach, wert, *spalten, ff, nk = TABELLEN[tabelle]
    datei = os.path.join(ordner, tabelle + ".DB")
    if not os.path.exists(datei):
        return None, []
    tafel = Tafel(datei)
    prozent = any((tafel.wert(s, f) or 0) > 1.01 for s in tafel.orte for f in spalten[2])
    liste = []
    for satz in tafel.orte:
        w = [tafel.wert(satz, f) for f in wert]
        zahlen = [w[0] if len(w) == 1 else math.hypot(*w) if w and None not in w else None]
        for nummer, felder in enumerate(spalten):
            gefunden = [tafel.wert(satz, f) for f in felder]
            if nummer == 2:
                least = min((g for g in gefunden if g is not None), default=None)
                zahlen.append(least / 100 if prozent and least is not None else least)
            else:
                zahlen.append(groesster(gefunden))
        liste.append([tabelle, tafel.wert(satz, "ID"), tafel.wert(satz, von) or "",
                      (tafel.wert(satz, nach) or "") if nach else "", *zahlen,
                      int(bool(tafel.wert(satz, ff))), int(any(tafel.wert(satz, f) for f in nk))])
    return tafel, liste


def pruefe(ordner, listendatei, statistikdatei):
    alle, statistik = [], {}
    for nummer, tabelle in enumerate(TABELLEN):
        tafel, liste = zeilen(ordner, tabelle)
        if tafel is None:
            continue
        alle += [(z[6] is None, -abs(z[6] or 0), nummer, z[1], z) for z in liste]
        tg = [abs(z[6]) for z in liste if z[6] is not None]
        s = statistik[tabelle] = {"n": len(liste), "ff": sum(z[12] for z in liste)}
        if TABELLEN[tabelle][-1]:
            s["nk"] = sum(z[13] for z in liste)
        if TABELLEN[tabelle][4]:
            s.update(tg_unter_1=sum(t < 1 for t in tg), tg_unter_2=sum(t < 2 for t in tg), tg_max=max(tg))
    alle.sort(key=lambda a: a[:4])
    with open(listendatei, "rb") as f:
        roh = f.read()
    assert not roh.startswith(b"\xef\xbb\xbf"), "Byte Order Mark"
    gelesen = list(csv.reader(roh.decode("utf-8").splitlines(), delimiter=";"))
    assert gelesen[0] == NAMEN, gelesen[0]
    assert len(gelesen) == len(alle) + 1, f"{len(gelesen) - 1} Zeilen statt {len(alle)}"
    for ist, (*_, soll) in zip(gelesen[1:], alle):
        for name, i, s in zip(NAMEN, ist, soll):
            if isinstance(s, float):
                gleich = i != "" and math.isclose(float(i), s, rel_tol=1e-14 if name == "Wert" else 0.0)
            else:
                gleich = i == ("" if s is None else str(s))
            assert gleich, f"{soll}: {name} ist {i}"
    with open(statistikdatei, encoding="utf-8") as f:
        ist = json.load(f)
    assert ist == {"tabellen": statistik}, f"{ist}\nstatt\n{statistik}"
    print(f"{ordner}: {len(alle)} Beobachtungen in {len(statistik)} Tabellen, {sum(z[-1][12] for z in alle)} markiert")


def aendere(ordner):
    """Null values here and there, and shares in per cent."""
    for datei in glob.glob(os.path.join(ordner, "*.DB")):
        tafel = Tafel(datei)
        felder = TABELLEN.get(os.path.basename(datei)[:-3])
        if felder is None:
            continue
        for nummer, satz in enumerate(tafel.orte):
            for feld in felder[5]:
                tafel.setze(satz, feld, tafel.wert(satz, feld) * 100)
            for stelle, feld in enumerate(f for f in tafel.felder if f != "ID"):
                if nummer % (stelle + 3) == 1:
                    tafel.setze(satz, feld, None)
        tafel.schreibe(datei)


if sys.argv[1] == "--aendere":
    aendere(sys.argv[2])
else:
    pruefe(*sys.argv[1:])
