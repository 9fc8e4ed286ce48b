#!/usr/bin/env bash
# ezdxf reads the exchange drawing without complaint and finds every figure of the network in its place.
# usage: dxf_ezdxf.sh ZARWIK WURZEL
set -euo pipefail
programme=''
. "$2/tests/fremd/hilfen/umgebung.sh"
if ! "$python" -c 'import importlib.util, sys; sys.exit(importlib.util.find_spec("ezdxf") is None)'; then
    echo "Übersprungen: ezdxf ist nicht installiert."
    exit 77
fi
klein=(02_symbole 03_linienstile 04_richtungen)
for netz in "${klein[@]}"; do exportiere "$netz" "$netz.ZRW"; done
exportiere netz "$wurzel/beispiele/NETZ.EIN"
exportiere gitter "$wurzel/beispiele/NETZ.EIN" --ein tk25,kmq
# The small networks; those whose control file is faulty give no drawing.
for datei in "$wurzel"/tests/golden/*/*.EIN; do
    ziel=$(basename "$(dirname "$datei")")-$(basename "$datei" .EIN)
    if exportiere "$ziel" "$datei" 2>/dev/null; then klein+=("$ziel"); fi
done
[ ${#klein[@]} -ge 28 ] || { echo "nur ${#klein[@]} kleine Netze" && exit 1; }
"$python" "$wurzel/tests/fremd/dxf_ezdxf.py" netz gitter "${klein[@]}"
