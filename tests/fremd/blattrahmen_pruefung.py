"""Sheets with a frame: scale between two points, nothing outside the printable area, the plan within the frame alone."""
import math
import re
import subprocess
import sys

import zrwdatei as z

PT, RAND, DPI = 25.4 / 72, 10.0, 60
PLAN = (12.0, 6.5, 12.0, 48.5)  # from the printable area to the plan: left, top, right, bottom [mm]
fehler = []


def rufe(*worte):
    return subprocess.run(worte, capture_output=True, check=True).stdout


def pruefe_massstab(ordner, massstab):
    """Numbers stand beside their points, all at the same distance."""
    orte = {nummer: (rechts, hoch) for rechts, hoch, nummer in z.Bild(f"{ordner}/NETZ.ZRW").texte}
    seiten = rufe("pdftotext", "-bbox", f"{ordner}/NETZ.pdf", "-").decode().split("<page ")[1:]
    gemessen = 0
    for seite in seiten:
        da = [(t, float(x) * PT, float(y) * PT) for x, y, t in
              re.findall(r'<word xMin="([\d.]+)" yMin="([\d.]+)"[^>]*>(REF\d|ROTST|LERCHB|RABENL)</word>', seite)]
        for (a, ax, ay), (b, bx, by) in zip(da, da[1:]):
            soll = math.dist(orte[a], orte[b]) * 1000 / massstab
            gemessen += 1
            if abs(math.dist((ax, ay), (bx, by)) - soll) > 0.1:
                fehler.append(f"{ordner}: {a}-{b} {math.dist((ax, ay), (bx, by)):.2f} statt {soll:.2f} mm")
    if not gemessen:
        fehler.append(f"{ordner}: nichts gemessen")
    return len(seiten)


def pruefe_flaechen(ordner, blatt):
    """White beside the printable area, no colour beside the plan, some within."""
    ppm = rufe("pdftoppm", "-r", str(DPI), "-f", str(blatt), "-l", str(blatt), f"{ordner}/NETZ.pdf")
    weite, hoehe = (int(v) for v in ppm.split(b"\n")[1].split())
    bild = ppm[-3 * weite * hoehe:]
    mm = 25.4 / DPI
    bunt = 0
    for y in range(hoehe):
        for x in range(weite):
            farbe = bild[3 * (y * weite + x):3 * (y * weite + x) + 3]
            if farbe == b"\xff\xff\xff":
                continue
            abstand = (x * mm - RAND, y * mm - RAND, (weite - 1 - x) * mm - RAND, (hoehe - 1 - y) * mm - RAND)
            if min(abstand) < -mm:
                fehler.append(f"{ordner}: neben dem Blatt bei {x * mm:.1f} {y * mm:.1f} mm")
                return
            if max(farbe) - min(farbe) > 60:
                bunt += 1
                if any(a < p - 2 * mm for a, p in zip(abstand, PLAN)):
                    fehler.append(f"{ordner}: Plan neben dem Rahmen bei {x * mm:.1f} {y * mm:.1f} mm")
                    return
    if not bunt:
        fehler.append(f"{ordner}: leer")


for ordner, massstab, anzahl in (("a3", 200000, 1), ("satz", 100000, 6), ("a0", 100000, 1)):
    if (blaetter := pruefe_massstab(ordner, massstab)) != anzahl:
        fehler.append(f"{ordner}: {blaetter} Blätter")
    pruefe_flaechen(ordner, 1)
    text = rufe("pdftotext", "-raw", f"{ordner}/NETZ.pdf", "-").decode()
    fehler.extend(f"{ordner}: {t} fehlt" for t in (f"1:{massstab}", "Los 7", f"{anzahl} von {anzahl}", "Gauß-Krüger") if t not in text)
    if not re.search(rb"\+LiberationSans +TrueType +WinAnsi +yes yes ", rufe("pdffonts", f"{ordner}/NETZ.pdf")):
        fehler.append(f"{ordner}: Schrift nicht eingebettet")
print(*fehler[:20], sep="\n")
sys.exit(bool(fehler))
