#!/usr/bin/env bash
# The batch mode from outside: files, exit status and messages. What cannot be read or written is in tests/stoerung.
# usage: stapel.sh ZARWIK WURZEL
set -uo pipefail
zarwik=$1
wurzel=$2
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
cd "$ordner" || exit 1
export HOME=$ordner/heim XDG_CONFIG_HOME=$ordner/heim/.config
mkdir -p "$XDG_CONFIG_HOME" aus
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
fehler=0

# erwarte STATUS BESCHREIBUNG ARGUMENTE...
erwarte() {
    local soll=$1 was=$2
    shift 2
    "$zarwik" "$@" >stdout 2>stderr
    local ist=$?
    [ $ist -eq "$soll" ] && return 0
    echo "$was: Status $ist statt $soll"
    cat stdout stderr
    fehler=1
}
pruefe() {
    local was=$1
    shift
    if ! "$@"; then
        echo "$was: nicht erfüllt ($*)"
        cat stderr
        fehler=1
    fi
}

erwarte 0 "Beispielnetz" --export zrw,png,bmp --ziel aus "$wurzel/beispiele/NETZ.EIN"
pruefe "keine Ausgabe" test ! -s stderr
pruefe "Zarwikdatei" test "$(stat -c %s aus/NETZ.ZRW)" -eq $((84 + 165 * (41 + 54) + 417 * 43))
pruefe "PNG" test "$(head -c 4 aus/NETZ.png | tail -c 3)" = PNG
pruefe "BMP" test "$(head -c 2 aus/NETZ.bmp)" = BM
pruefe "sonst nichts" test "$(ls aus)" = "$(printf 'NETZ.ZRW\nNETZ.bmp\nNETZ.png')"

pruefe "quadratisch, damit hohe Netze ganz darauf sind" test "$(od -An -tu4 -j64 -N8 aus/NETZ.ZRW | xargs)" = "1200 1200"
erwarte 0 "Größe" --export=zrw,png --groesse 500x400 --ziel=aus2 "$wurzel/beispiele/NETZ.EIN"
pruefe "Weite und Höhe" test "$(od -An -tu4 -j64 -N8 aus2/NETZ.ZRW | xargs)" = "500 400"
erwarte 0 "Schalter" --export png --aus punktnummern,fp --ein kurznr --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
pruefe "Schalter wirken" test "$(cmp -s aus/NETZ.png aus3/NETZ.png; echo $?)" = 1
printf '[ZRWPAR]\nNPCol=65280\n' >grün.ini
erwarte 0 "Einstellungen" --export zrw --einstellungen grün.ini --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
pruefe "Farbe der Neupunkte" test "$(od -An -tu4 -j102 -N4 aus3/NETZ.ZRW | xargs)" = 65280
mkdir -p "$XDG_CONFIG_HOME" && cp grün.ini "$XDG_CONFIG_HOME/ZRWINI.ini"
erwarte 0 "eigene Einstellungen" --export zrw --ziel aus2 "$wurzel/beispiele/NETZ.EIN"
pruefe "eigene gelten" test "$(od -An -tu4 -j102 -N4 aus2/NETZ.ZRW | xargs)" = 65280
rm "$XDG_CONFIG_HOME/ZRWINI.ini"

erwarte 0 "doppelter Maßstab" --export plt --massstab 12500 --ziel aus2 "$wurzel/beispiele/NETZ.EIN"
erwarte 0 "doppelte Auflösung" --export plt --dpi 1200 --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
pruefe "dasselbe in Punkten" cmp -s aus2/ZRW.PLT aus3/ZRW.PLT
rm -f aus2/ZRW.PLT aus3/ZRW.PLT
erwarte 0 "Vektorbilder" --export svg,pdf --quer --papier=a3 --groesse 500x400 --ziel aus2 "$wurzel/beispiele/NETZ.EIN"
pruefe "SVG" grep -q '<svg .* width="500" height="400"' aus2/NETZ.svg
pruefe "PDF" grep -qaF '/MediaBox[0 0 1190.5512 841.8898 ]' aus2/NETZ.pdf
erwarte 0 "Bild nach Druck" --export svg,pdf,svg --groesse 500x400 --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
pruefe "der Druck hinterlässt nichts" cmp -s aus2/NETZ.svg aus3/NETZ.svg
erwarte 0 "passender Maßstab" --export dxf --massstab passend --ziel aus2 "$wurzel/beispiele/NETZ.EIN"
erwarte 0 "derselbe genannt" --export dxf --massstab 250000 --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
pruefe "in der Zeichnung" cmp -s aus2/ZRW.DXF aus3/ZRW.DXF
for dpi in 1 100000; do
    erwarte 0 "$dpi dpi, Rahmen" --export pdf --dpi $dpi --ein blattrahmen,kmq --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
    erwarte 0 "$dpi dpi" --export pdf --dpi $dpi --ein legende,tk25,kmq --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
done
rm -f aus2/NETZ.svg aus2/NETZ.pdf aus3/NETZ.svg aus3/NETZ.pdf

erwarte 0 "Nummern geordnet" --export zrw,png,dxf --nummern-ordnen bild --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
pruefe "keine überlappt" test ! -s stderr
pruefe "sie stehen anders" test "$(cmp -s aus/NETZ.png aus3/NETZ.png; echo $?)" = 1
erwarte 0 "wie gelesen" --export zrw --ziel aus2 aus3/NETZ.ZRW
erwarte 0 "noch einmal" --export zrw --nummern-ordnen bild --ziel aus3 aus3/NETZ.ZRW
pruefe "geordnete bleiben" cmp -s aus2/NETZ.ZRW aus3/NETZ.ZRW
erwarte 0 "für den Druck" --export dxf,zrw --nummern-ordnen=druck --massstab 50000 --ziel aus2 "$wurzel/beispiele/NETZ.EIN"
pruefe "Plätze für den Druck" test "$(cmp -s aus2/NETZ.ZRW aus3/NETZ.ZRW; echo $?)" = 1
erwarte 0 "ohne" --export dxf --ziel aus2/ohne --massstab 50000 "$wurzel/beispiele/NETZ.EIN"
pruefe "die Zeichnung folgt nicht" cmp -s aus2/ZRW.DXF aus2/ohne/ZRW.DXF
rm -rf aus2/ohne aus2/ZRW.DXF aus3/ZRW.DXF
# With its numbers in order this plan fits another scale than before.
erwarte 0 "Maßstab vor dem Ordnen" --export dxf,pdf --quer --nummern-ordnen druck --ziel aus2 "$wurzel/beispiele/NETZ.EIN"
erwarte 0 "derselbe genannt" --export dxf,pdf --quer --nummern-ordnen druck --massstab 200000 --ziel aus3 "$wurzel/beispiele/NETZ.EIN"
pruefe "derselbe im Dokument" cmp -s aus2/NETZ.pdf aus3/NETZ.pdf
pruefe "und in der Zeichnung" cmp -s aus2/ZRW.DXF aus3/ZRW.DXF
rm -f aus[23]/NETZ.pdf aus[23]/ZRW.DXF

mkdir -p aus4/NETZ.png
erwarte 1 "ein Format geht nicht" --export png,zrw,bmp --ziel aus4 "$wurzel/beispiele/NETZ.EIN"
pruefe "die anderen sind da" test -s aus4/NETZ.ZRW -a -s aus4/NETZ.bmp

# Point lines that cannot be read are all printed, and the rest is written.
{ printf '$NT 1\n$FP A              1 1 1\n'; for i in $(seq 30); do printf '    P%-13s x\n' "$i"; done; } >punkte.EIN
erwarte 0 "Lesefehler" --export zrw --ziel aus punkte.EIN
pruefe "alle gemeldet" test "$(grep -c 'Lesefehler bei Punkt' stderr)" -eq 30
pruefe "Rest geschrieben" test "$(stat -c %s aus/punkte.ZRW)" -eq $((84 + 41 + 54))

for falsch in "--export" "--export pdff x" "--export zrw" "--gibtsnicht" "--groesse 5x5 x" "--groesse 99999x800 x" \
    "--ein nichts x" "--export dxf --massstab 0 x" "--export dxf --massstab 1:500 x" "--export plt --dpi 0 x" \
    "--export plt --dpi 1.5 x" "--export pdf --papier A5 x" "--export pdf --papier" "--export pdf --quer=1 x" \
    "--export pdf --blaetter 0 x" "--export pdf --ueberlappung 21 x" "--export pdf --stift 0.2 x" \
    "--export png --nummern-ordnen karte x" "--export png --ellipsenmassstab 0 x" "--export pdf --ellipsenmassstab nan x" \
    "--export zrw a b" "--groesse 800x600 x"; do
    # shellcheck disable=SC2086
    erwarte 2 "falscher Aufruf $falsch" $falsch
    pruefe "$falsch: eine Zeile" test "$(wc -l <stderr)" -eq 1
done
erwarte 0 "Hilfe" --help
pruefe "Hilfe nennt alles" grep -q 'kurznr' stdout
erwarte 0 "Version" --version
pruefe "Version" grep -qE '^Zarwik [0-9]+\.' stdout

# A comma locale changes nothing.
for sprache in de_DE.UTF-8 C; do
    LC_ALL=$sprache "$zarwik" --export zrw --ziel aus3 "$wurzel/beispiele/NETZ.EIN" 2>/dev/null
    pruefe "Sprache $sprache" cmp -s aus/NETZ.ZRW aus3/NETZ.ZRW
done
exit $fehler
