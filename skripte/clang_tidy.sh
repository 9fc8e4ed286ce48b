#!/usr/bin/env bash
# clang-tidy with clang's static analyzer over all rooms:  skripte/clang_tidy.sh [BUILD FOLDER]  (default: build/release)
# Takes the sources in the bundles they are built in: most of the time goes into the headers, which are then looked
# through once for eight sources. Fails where something is found, and leaves it in build/tidy/gefunden.txt.
set -euo pipefail
wurzel=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
bau=$(readlink -f "${1:-$wurzel/build/release}")
aus=$wurzel/build/tidy
rm -rf "$aus"
mkdir -p "$aus"/{kern,fenster}

# The analyzer goes into included sources only where a file is called so; the window has a configuration of its own.
python3 - "$bau" "$aus" <<'ENDE'
import json, pathlib, re, shutil, sys
bau, aus = map(pathlib.Path, sys.argv[1:])
for ort, ziele in {"kern": r"zrw_(?:geo|model|input|output)", "fenster": r"zrw_ui|zarwik"}.items():
    befehle = []
    for b in json.loads((bau / "compile_commands.json").read_text()):
        teil = re.search(rf"/({ziele})\.dir/Unity/unity_(\d+)_cxx\.cxx$", b["file"])
        if teil:
            datei = aus / ort / f"{teil[1]}_UnifiedSource{teil[2]}.cpp"
            shutil.copy(b["file"], datei)
            befehle.append({**b, "file": str(datei), "command": b["command"].replace(b["file"], str(datei))})
    if not befehle:
        sys.exit(f"{bau} is not built in bundles.")
    (aus / ort / "compile_commands.json").write_text(json.dumps(befehle))
ENDE

pruefe() { # FOLDER CONFIGURATION
    find "$aus/$1" -name '*.cpp' -print0 | xargs -0 -P "$(nproc)" -n 1 clang-tidy --quiet -p "$aus/$1" \
        --config-file="$2" --checks=-bugprone-suspicious-include 2>&1 | { grep -v 'warnings generated' || true; } |
        tee -a "$aus/gefunden.txt"
}
cd "$wurzel"
gut=1
pruefe kern .clang-tidy || gut=0
pruefe fenster ui/.clang-tidy || gut=0
if [ $gut = 0 ] || grep -qE '(warning|error):' "$aus/gefunden.txt"; then
    echo "clang-tidy hat etwas gefunden." >&2
    exit 1
fi
