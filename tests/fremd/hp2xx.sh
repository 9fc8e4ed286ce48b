#!/usr/bin/env bash
# A plotter understands every command of the plotter file and draws the lines where the picture file has them. Symbols
# and labels are held byte for byte by tests/golden_export.
# usage: hp2xx.sh ZARWIK WURZEL
set -euo pipefail
programme='hp2xx'
. "$2/tests/fremd/hilfen/umgebung.sh"
exportiere netz "$wurzel/beispiele/NETZ.EIN"
exportiere ohne "$wurzel/beispiele/NETZ.EIN" --aus punktnummern
for netz in 02_symbole 03_linienstile 04_richtungen; do exportiere $netz $netz.ZRW; done
"$python" - <<'PY'
import re
import subprocess
import sys
from pathlib import Path

import zrwdatei as z

BREITE, KANTE = 40000, 200  # of a square sheet [dots], [mm]
JE_DOT = 150 / 25.4 * KANTE / BREITE
for ordner in ("02_symbole", "03_linienstile", "04_richtungen", "netz", "ohne"):
    # The operator puts the pen in: the file itself does not.
    Path("blatt.plt").write_bytes(b"IN;SP1;" + Path(ordner, "ZRW.PLT").read_bytes())
    lauf = subprocess.run(f"hp2xx -m pbm -d 150 -w {KANTE} -h {KANTE} -x 0 -X {BREITE} -y -{BREITE} -Y 0 "
                          "-f blatt.pbm blatt.plt".split(),
                          stdin=subprocess.DEVNULL, capture_output=True, encoding="latin1")
    fremd = re.search(r"ignored: +(\d+)\s+Unexpected event\(s\): +(\d+)", lauf.stderr)
    if lauf.returncode or not fremd or fremd.groups() != ("0", "0"):
        sys.exit(f"hp2xx versteht {ordner} nicht:\n{lauf.stderr[-1000:]}")
bild = z.Bild("ohne/NETZ.ZRW")
# The sheet has room for half the pen, two dots, on each side.
fehler = z.pruefe_linien(bild, z.Raster.aus_pbm("blatt.pbm"),
                         lambda x, y: tuple((v + 2) * JE_DOT + 1 for v in bild.dot(x, y)), JE_DOT, 180, 0.85)
print(*fehler[:20], sep="\n")
sys.exit(bool(fehler))
PY
