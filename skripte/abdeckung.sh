#!/usr/bin/env bash
# Lines and branches of the core that its tests run through: skripte/abdeckung.sh [BUILD FOLDER]
# Prints the files with the least, then the sum. Exit status 1 below the share of lines that is kept.
set -euo pipefail
wurzel=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
bau=${1:-$wurzel/build/abdeckung}
mindestens=93 # per cent of the lines
. "$wurzel/skripte/pakete.sh"
# shellcheck disable=SC2086,SC2154
brauche $paketeBauen gcovr libgtest-dev
cd "$wurzel"
# Without optimising, so that a line is a line; relative to the tree, so that ccache may help.
cmake -S . -B "$bau" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=g++ \
    -DCMAKE_CXX_FLAGS_DEBUG="-O0 --coverage -fprofile-abs-path" >/dev/null
cmake --build "$bau" --target kern_test -- --quiet
find "$bau" -name '*.gcda' -delete
"$bau/tests/kern_test" --gtest_brief=1

bericht=$bau/abdeckung.json
gcovr --root "$wurzel" --filter 'geo/' --filter 'model/' --filter 'input/' --filter 'output/' \
    --exclude-unreachable-branches --exclude-throw-branches --json-summary "$bericht" "$bau"
python3 - "$bericht" "$mindestens" <<'PYTHON'
import json
import sys

bericht = json.load(open(sys.argv[1], encoding="utf-8"))
dateien = bericht["files"]
if len(dateien) < 40:
    sys.exit(f"Nur {len(dateien)} Dateien gemessen: Die Messung ist nicht ganz.")


def anteil(treffer, alle):
    return 100 * treffer / alle if alle else 100


def zeile(name, b):
    return (f"{name:44} {anteil(b['line_covered'], b['line_total']):5.1f} % von {b['line_total']:5} Zeilen, "
            f"{anteil(b['branch_covered'], b['branch_total']):5.1f} % von {b['branch_total']:5} Zweigen")


print("Am wenigsten:")
for d in sorted(dateien, key=lambda d: anteil(d["line_covered"], d["line_total"]))[:12]:
    print(zeile(d["filename"], d))
print()
for raum in ("geo", "model", "input", "output"):
    hier = [d for d in dateien if d["filename"].startswith(raum + "/")]
    print(zeile(raum, {k: sum(d[k] for d in hier) for k in
                       ("line_covered", "line_total", "branch_covered", "branch_total")}))
print(zeile("zusammen", bericht))
if anteil(bericht["line_covered"], bericht["line_total"]) < float(sys.argv[2]):
    sys.exit(f"Weniger als {sys.argv[2]} % der Zeilen.")
PYTHON
