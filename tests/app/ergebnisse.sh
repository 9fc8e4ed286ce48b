#!/usr/bin/env bash
# Results of the adjustment in the batch mode: flagged observations are marked and overlays drawn where the tables
# lie beside the control file; a damaged table is told and costs nothing else.
# usage: ergebnisse.sh ZARWIK WURZEL
set -euo pipefail
zarwik=$1 wurzel=$2
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
export XDG_CONFIG_HOME=$ort/einstellungen
mkdir "$ort/mit" "$ort/ohne"
cp "$wurzel"/beispiele/*.EIN "$wurzel"/beispiele/*.KF "$wurzel"/beispiele/*.SF "$ort/ohne"
cp "$ort"/ohne/* "$wurzel"/beispiele/*.DB "$ort/mit"

bild() { # NAME FOLDER OPTION...
    local name=$1 ordner=$2
    shift 2
    "$zarwik" --export bmp --ziel "$ort/$name" "$@" "$ort/$ordner/NETZ.EIN" 2>"$ort/$name.txt"
}
bild ohne ohne
bild mit mit
for schalter in lageverb hoehenverb lagegen hoehengen; do bild "$schalter" mit --ein "$schalter"; done
bild balken ohne --ein lageverb
head -c 3000 "$ort/mit/KooTABLE.DB" >"$ort/mit/kurz" && mv "$ort/mit/kurz" "$ort/mit/KooTABLE.DB"
! bild kaputt mit --ein lagegen || { echo "Die unlesbare Tabelle blieb ohne Folge." && exit 1; }
mv "$ort/mit/STRTABLE.DB" "$ort/mit/strtable.db"
bild klein mit

python3 - "$ort" <<'PYTHON'
import struct, sys

ort = sys.argv[1]


def farben(name):
    """Number of pixels of each colour (red, green, blue)."""
    b = open(f"{ort}/{name}/NETZ.bmp", "rb").read()
    anfang, = struct.unpack_from("<I", b, 10)
    bits, = struct.unpack_from("<H", b, 28)
    zahl = {}
    for i in range(anfang, len(b) - 3, bits // 8):
        f = (b[i + 2], b[i + 1], b[i])
        zahl[f] = zahl.get(f, 0) + 1
    return zahl


GROB, ROT, BLAU = (128, 0, 0), (255, 0, 0), (0, 0, 255)
bilder = {n: farben(n) for n in ("ohne", "mit", "lageverb", "hoehenverb", "lagegen", "hoehengen", "balken", "kaputt",
                                 "klein")}
fehler = []


def pruefe(wahr, text):
    if not wahr:
        fehler.append(text)


def anzahl(name, farbe):
    return bilder[name].get(farbe, 0)


pruefe(anzahl("ohne", GROB) == 0, "Marken ohne Tabellen")
pruefe(anzahl("mit", GROB) > 100, "keine Marken mit Tabellen")
pruefe(anzahl("klein", GROB) == anzahl("mit", GROB), "Tabellen in anderer Schreibweise werden nicht gefunden")
for name, farbe in (("lageverb", ROT), ("lagegen", ROT), ("hoehenverb", BLAU), ("hoehengen", BLAU)):
    pruefe(anzahl(name, farbe) > anzahl("mit", farbe) + 100, f"{name} zeichnet nichts")
pruefe(anzahl("balken", ROT) <= anzahl("ohne", ROT), "ohne Tabellen wird eine Verbesserung gezeichnet")
pruefe(sum(bilder["balken"].values()) == sum(bilder["ohne"].values()), "anderes Bildmaß")
pruefe("KooTABLE.DB" in open(f"{ort}/kaputt.txt").read(), "die beschädigte Tabelle wird nicht genannt")
pruefe(anzahl("kaputt", GROB) == anzahl("mit", GROB), "die übrigen Tabellen markieren nicht")
for name in ("ohne", "mit", "lagegen", "klein"):
    pruefe(open(f"{ort}/{name}.txt").read() == "", f"{name}: Meldungen")
print("\n".join(fehler) or f"{anzahl('mit', GROB)} Bildpunkte in Marken, alles in Ordnung")
sys.exit(1 if fehler else 0)
PYTHON
