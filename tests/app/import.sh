#!/usr/bin/env bash
# Networks of another program become the same pictures as control files written by hand, whatever their axes; what is
# damaged or monstrous is told with its line, leaves nothing behind and takes no more memory than it should.
# usage: import.sh ZARWIK WURZEL
set -euo pipefail
zarwik=$1 wurzel=$2
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
export XDG_CONFIG_HOME=$ort/einstellungen
fehler=0
scheitere() {
    echo "$1"
    [ ! -s "$ort/meldung" ] || cat "$ort/meldung"
    fehler=1
}
rufe() { # STATUS ARGUMENT...
    local soll=$1 status=0
    shift
    "$zarwik" "$@" >"$ort/meldung" 2>&1 || status=$?
    [ "$status" = "$soll" ] || scheitere "$*: Status $status statt $soll"
}

# Points, kinds, lines and attributes as by hand, for eight directions of the axes and both of the angles.
for name in LAGE HOEHEN VEKTOREN; do
    mkdir -p "$ort/$name"
    rufe 0 --export zrw,geojson --ziel "$ort/$name" "$wurzel/tests/app/import/$name.EIN"
    for achsen in ne sw es wn en nw se ws; do
        winkel=left-handed
        case $achsen in e* | n[w]) winkel=right-handed ;; esac
        python3 "$wurzel/tests/app/import/drehe.py" "$wurzel/beispiele/gama/$name.gkf" $achsen $winkel >"$ort/$name.gkf"
        rufe 0 --import "$ort/$name.gkf" --ziel "$ort/$name-$achsen" --export zrw,geojson
        for endung in ZRW geojson; do
            cmp -s "$ort/$name/$name.$endung" "$ort/$name-$achsen/$name.$endung" ||
                scheitere "$name.$endung ist mit den Achsen $achsen anders."
        done
    done
    # The values of the observations do not reach the picture; the control file has them.
    for achsen in sw es wn en nw se ws; do
        cmp -s "$ort/$name-ne/$name.EIN" "$ort/$name-$achsen/$name.EIN" ||
            scheitere "$name.EIN ist mit den Achsen $achsen anders."
    done
done

# With results; what is there stays unless it may be replaced.
cp "$wurzel"/beispiele/gama/LAGE.* "$ort"
rufe 0 --import "$ort/LAGE.gkf" --ergebnisse "$ort/LAGE.xml" --export geojson --ein relative-ellipsen
grep -q '"grob":true' "$ort/LAGE.zarwik/LAGE.geojson" || scheitere "Kein grober Fehler in den Ergebnissen."
grep -q '41 Beobachtungen\|Beobachtungen importiert' "$ort/meldung" || scheitere "Die Zahl der Beobachtungen fehlt."
[ "$(find "$ort/LAGE.zarwik" -name '*TABLE.DB' -o -name '*Table.DB' | wc -l)" = 11 ] || scheitere "Nicht elf Tabellen."
vorher=$(cat "$ort"/LAGE.zarwik/* | sha256sum)
rufe 1 --import "$ort/LAGE.gkf"
grep -q 'liegt schon' "$ort/meldung" || scheitere "Vorhandene Dateien werden nicht genannt."
[ "$vorher" = "$(cat "$ort"/LAGE.zarwik/* | sha256sum)" ] || scheitere "Etwas wurde trotzdem ersetzt."
rufe 0 --import "$ort/LAGE.gkf" --ersetzen --grenze 99 --ergebnisse "$ort/LAGE.xml" --export geojson
! grep -q '"grob":true' "$ort/LAGE.zarwik/LAGE.geojson" || scheitere "Die Grenze gilt nicht."
rufe 0 --import "$ort/LAGE.gkf" --ersetzen
[ ! -e "$ort/LAGE.zarwik/STRTABLE.DB" ] || scheitere "Alte Ergebnisse bleiben liegen."
rufe 2 --import
rufe 2 --import "$ort/LAGE.gkf" "$ort/LAGE.xml"
rufe 2 --ersetzen --export png "$ort/LAGE.gkf"
rufe 2 --import "$ort/LAGE.gkf" --grenze 0
rufe 1 --export png --ziel "$ort" "$ort/LAGE.gkf"
grep -q -- '--import' "$ort/meldung" || scheitere "Wer ein Netz von GNU Gama ausgibt, erfährt nicht, wie es geht."

# Monsters: a message, nothing written, at most 512 MB.
python3 - "$ort" <<'PY'
import sys
ort = sys.argv[1]
kopf = '<gama-local><network><points-observations><point id="A" x="1" y="1"/>\n'
fuss = "</points-observations></network></gama-local>"
def schreibe(name, *teile):
    with open(f"{ort}/{name}.gkf", "w") as datei:
        for teil in teile:
            datei.write(teil)
schreibe("leer", " " * 100_000_000)
schreibe("blanks", "<gama-local><network>\n", " " * 100_000_000, "</network></gama-local>")
schreibe("tief", kopf, "<a>" * 1_000_000, "</a>" * 1_000_000, fuss)
schreibe("offen", kopf, "<a>" * 1_000_000)
schreibe("bombe", '<!DOCTYPE g [\n<!ENTITY a "aaaaaaaaaa">\n<!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;">]>\n', kopf, "&b;" * 1000, fuss)
schreibe("viele", kopf, '<point id="B"/>\n' * 2_000_000, "<")
schreibe("elemente", "<gama-local>", "<a/>" * 25_000_000)
PY
for name in leer blanks tief offen bombe viele elemente; do
    python3 - "$zarwik" "$ort/$name.gkf" "$ort/meldung" <<'PY' || scheitere "$name.gkf"
import resource, subprocess, sys
with open(sys.argv[3], "wb") as meldung:
    status = subprocess.run([sys.argv[1], "--import", sys.argv[2]], stdout=meldung, stderr=meldung, timeout=60).returncode
gross = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024
if status != 1 or gross > 512:
    sys.exit(f"Status {status}, {gross:.0f} MB")
PY
    [ "$name" = elemente ] || grep -q 'Zeile [0-9]' "$ort/meldung" || scheitere "$name.gkf: Die Zeile fehlt."
    [ ! -e "$ort/$name.zarwik" ] || scheitere "$name.gkf: Es wurde etwas geschrieben."
    rm "$ort/$name.gkf"
done
exit $fehler
