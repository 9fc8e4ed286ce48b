#!/usr/bin/env bash
# Every source for itself, and every room in one piece:  skripte/einzeln.sh
# Builds go in bundles, where a source sees what those before it included and kept to themselves; a file more, and the
# bundles are others. So that this changes nothing, each includes what it needs, and its own names are nobody else's.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
cmake --preset debug >/dev/null
python3 - build/debug <<'ENDE'
import collections, concurrent.futures, json, os, pathlib, re, subprocess, sys

bau = pathlib.Path(sys.argv[1]).resolve()
befehle = [b for b in json.loads((bau / "compile_commands.json").read_text()) if bau not in pathlib.Path(b["file"]).parents]
if not befehle:
    sys.exit(f"{bau} names no sources.")
raeume = collections.defaultdict(list)
for b in befehle:
    if raum := re.search(r"CMakeFiles/(zrw_(?:geo|model|input|output|ui))\.dir/", b["command"]):
        raeume[raum[1]].append(b)
for name, quellen in raeume.items():
    stueck = bau / f"{name}.cpp"
    stueck.write_text("".join(f'#include "{b["file"]}"\n' for b in quellen))
    befehle.append({**quellen[0], "command": quellen[0]["command"].replace(quellen[0]["file"], str(stueck))})

def pruefe(b):
    befehl = re.sub(r"^\S*ccache ", "", b["command"]).replace(" -o ", " -fsyntax-only -o ")
    return subprocess.run(befehl, shell=True, cwd=b["directory"], stderr=subprocess.PIPE, text=True)

with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as faeden:
    fehler = [e.stderr for e in faeden.map(pruefe, befehle) if e.returncode]
print("\n".join(fehler), end="")
print(f"{len(befehle) - len(raeume)} Quellen, {len(raeume)} Räume; {len(fehler)} lassen sich für sich nicht übersetzen")
sys.exit(bool(fehler))
ENDE
