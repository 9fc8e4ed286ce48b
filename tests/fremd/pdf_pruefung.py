"""Sheets of the plot: paper, labels in their places, lines from end to end, as the picture file of the same view says."""
import math
import re
import statistics
import subprocess
import sys
from pathlib import Path

import zrwdatei as z

ZOLL, RAND, SCHRIFT = 25.4, 10.0, 8.25       # [mm], [mm], [pt]
PT, PIXEL = ZOLL / 72, ZOLL / 96             # [mm]
ANSTIEG, ABSTIEG = 0.905, 0.207              # top to baseline; baseline to the box's bottom in poppler [em]
PAPIER = {"A4": (210, 297), "A3": (297, 420), "A2": (420, 594), "A1": (594, 841), "A0": (841, 1189)}
DPI = 900                                    # of the picture: the gaps of dashes are 10 pixels long
fehler = []


def rufe(*worte):
    """What a program prints. It must be content with the file."""
    lauf = subprocess.run(worte, capture_output=True, encoding="utf-8")
    if lauf.returncode or lauf.stderr:
        fehler.append(f"{' '.join(worte)}: Status {lauf.returncode}: {lauf.stderr[:300]}")
    return lauf.stdout


def pruefe_nummern(ordner, bild, massstab, weite, hoehe):
    """Every label that stands alone is found in its place, to 0.1 mm, and none that lies beyond the sheet. The sheet lies
    where most of them say that its corner is."""
    worte = {}
    for wort in re.finditer(r'<word xMin="([\d.]+)" yMin="[\d.]+" xMax="([\d.]+)" yMax="([\d.]+)">(.*?)</word>',
                            rufe("pdftotext", "-bbox", f"{ordner}/NETZ.pdf", "-")):
        worte.setdefault(wort[4], []).append((float(wort[1]) * PT, (float(wort[3]) - ABSTIEG * SCHRIFT) * PT))
    orte = {}
    for rechts, hoch, nummer in bild.texte:
        x, y = ((rechts - bild.links) * 1000 / massstab, (bild.oben - hoch) * 1000 / massstab)
        orte[nummer] = (RAND + x + 10 * PIXEL, RAND + y - 5 * PIXEL + ANSTIEG * SCHRIFT * PT)
    da = [n for n in orte if n in worte]
    dx, dy = (statistics.median(worte[n][0][i] - orte[n][i] for n in da) for i in (0, 1))
    orte = {n: (x + dx, y + dy) for n, (x, y) in orte.items()}
    bild.links -= dx * massstab / 1000
    bild.oben += dy * massstab / 1000
    geprueft = 0
    for nummer, (x, y) in orte.items():
        if not (RAND < x < weite - RAND - 40 and RAND + 4 < y < hoehe - RAND - 4):
            if x > weite - RAND + 1 or y > hoehe - RAND + 5:
                fehler.extend(f"{ordner}: {nummer} liegt neben dem Blatt" for _ in worte.get(nummer, []))
            continue
        if any(abs(a - x) < 35 and abs(b - y) < 4 for n, (a, b) in orte.items() if n != nummer):
            continue
        geprueft += 1
        if not any(math.dist(w, (x, y)) < 0.1 for w in worte.get(nummer, [])):
            fehler.append(f"{ordner}: {nummer} fehlt bei {x:.2f} {y:.2f} mm: {worte.get(nummer)}")
    return geprueft, worte


def pruefe_linien(ordner, bild, massstab, mindestens):
    rufe("pdftoppm", "-r", str(DPI), "-mono", "-singlefile", f"{ordner}/NETZ.pdf", f"{ordner}/blatt")
    raster = z.Raster.aus_pbm(f"{ordner}/blatt.pbm")

    def ort(x, y):
        return tuple((RAND + v * 1000 / massstab) / ZOLL * DPI for v in (x - bild.links, bild.oben - y))
    fehler.extend(f"{ordner}: {f}" for f in z.pruefe_linien(bild, raster, ort, DPI / 96, mindestens, 0.95))


def pruefe_inhalt():
    """A sheet that the program chose by itself holds something: all of the plan, where one is enough."""
    for datei, seiten, muss in (("ohne/NETZ", 1, {"REF1", "REF2", "REF3", "REF4", "REF5", "KÜHBG"}),
                                ("klein/klein", 1, {"A", "B"}), ("klein2/klein", 1, {"B"})):
        worte = set(rufe("pdftotext", f"{datei}.pdf", "-").split())
        if not muss <= worte or f"Pages: {seiten}" not in re.sub(" +", " ", rufe("pdfinfo", f"{datei}.pdf")):
            fehler.append(f"{datei}: {muss - worte} fehlt")
    orte = [float(v) * PT for w in ("A", "B") for v in re.findall(rf'yMin="([\d.]+)"[^>]*>{w}<',
                                                                  rufe("pdftotext", "-bbox", "klein/klein.pdf", "-"))]
    if len(orte) != 2 or abs(sum(orte) / 2 - PAPIER["A4"][1] / 2) > 4:
        fehler.append(f"klein: nicht in der Mitte: {orte} mm")
    rufe("pdftoppm", "-r", "50", "-mono", "-singlefile", "netz3/NETZ.pdf", "netz3/blatt")
    if not any(Path("netz3/blatt.pbm").read_bytes()[12:]):
        fehler.append("netz3: leer")
    meldungen = Path("meldung").read_text(encoding="utf-8")
    if not re.search(r"^Helvetica +Type 1 +WinAnsi +no ", rufe("pdffonts", "leer/NETZ.pdf"), re.M):
        fehler.append("leer: nicht Helvetica")
    for teil in ("lässt sich nicht einbetten", "2 Blätter; geschrieben ist das erste (Zeile 1, Spalte 1)", "mehr als 400 Blätter"):
        if teil not in meldungen:
            fehler.append(f"Meldung fehlt: {teil}: {meldungen}")


def main():
    pruefe_inhalt()
    # folder, paper, on its long side, scale denominator, labels that stand alone, lines
    for ordner, papier, quer, massstab, allein, linien in (
            ("a0", "A0", True, 50000, 100, 0), ("a4", "A4", False, 100000, 1, 0), ("quer", "A4", True, 200000, 10, 180)):
        weite, hoehe = PAPIER[papier][::-1 if quer else 1]
        seite = re.search(r"Page size: +([\d.]+) x ([\d.]+)", rufe("pdfinfo", f"{ordner}/NETZ.pdf"))
        if math.dist((weite, hoehe), [float(v) * PT for v in seite.groups()]) > 0.02:
            fehler.append(f"{ordner}: Seite {seite[0]}")
        bild = z.Bild(f"{ordner}/NETZ.ZRW")
        geprueft, worte = pruefe_nummern(ordner, bild, massstab, weite, hoehe)
        print(f"{ordner}: {geprueft} Nummern am Platz")
        if geprueft < allein:
            fehler.append(f"{ordner}: nur {geprueft} Nummern geprüft")
        if linien:
            pruefe_linien(ordner, bild, massstab, linien)
        fehler.extend(f"{ordner}: {t} fehlt" for t in ("Maßstab", f"1:{massstab}", "Höhe") if t not in worte)
        rufe("pdftocairo", "-svg", f"{ordner}/NETZ.pdf", f"{ordner}/blatt.svg")
        if not re.search(r"\+LiberationSans +TrueType +WinAnsi +yes yes ", rufe("pdffonts", f"{ordner}/NETZ.pdf")):
            fehler.append(f"{ordner}: Schrift nicht eingebettet")
        ebenen = re.findall(rb"/Type/OCG/Name\((\w+)\)", Path(ordner, "NETZ.pdf").read_bytes())
        if ebenen != [b"PUNKTE", b"PUNKTNR", b"BEOB", b"GITTER", b"LEGENDE"]:
            fehler.append(f"{ordner}: Ebenen {ebenen}")
    if not re.search(r"Title: +Netz Vogelsberg \(frei erfunden\)\n", rufe("pdfinfo", "a4/NETZ.pdf")):
        fehler.append("Titel fehlt")
    print(*fehler[:20], sep="\n")
    return bool(fehler)


sys.exit(main())
