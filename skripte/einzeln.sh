#!/usr/bin/env bash
# Every source for itself:  skripte/einzeln.sh
# Builds go in bundles, where a source sees what those before it included; a file more, and the bundles are others.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
cmake --preset debug >/dev/null
python3 - build/debug/compile_commands.json <<'ENDE'
import concurrent.futures, json, os, re, subprocess, sys

def pruefe(b):
    befehl = re.sub(r"^\S*ccache ", "", b["command"]).replace(" -o ", " -fsyntax-only -o ")
    return subprocess.run(befehl, shell=True, cwd=b["directory"], stderr=subprocess.PIPE, text=True)

befehle = [b for b in json.load(open(sys.argv[1])) if "/build/" not in b["file"]]
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as faeden:
    fehler = [e.stderr for e in faeden.map(pruefe, befehle) if e.returncode]
print("\n".join(fehler), end="")
print(f"{len(befehle)} Quellen, {len(fehler)} lassen sich für sich nicht übersetzen")
sys.exit(bool(fehler))
ENDE
