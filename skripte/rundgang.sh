#!/usr/bin/env bash
# Drives the real window through a day's work, as a user would: skripte/rundgang.sh ZARWIK [FOLDER FOR SCREENSHOTS]
# With --bilder in place of the folder the pictures of the documents (docs/bilder) are made anew.
# Needs no display: it starts one of its own. The plot that everything was undone in must be the one from the start.
set -euo pipefail
zarwik=$(readlink -f "$1")
wurzel=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
. "$wurzel/skripte/pakete.sh"
brauche xvfb xdotool openbox imagemagick
neu=
[ "${2:-}" != --bilder ] || neu=$wurzel/docs/bilder
bilder=$(readlink -f "$([ -n "$neu" ] && mktemp -d || echo "${2:-$(mktemp -d)}")")
ordner=$(mktemp -d)
mkdir -p "$bilder"
cp "$wurzel"/beispiele/*.EIN "$wurzel"/beispiele/*.?F "$wurzel"/beispiele/*.DB "$ordner"
cd "$ordner"
export XDG_CONFIG_HOME=$ordner XDG_RUNTIME_DIR=$ordner HOME=$ordner
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1400x950x24 2>/dev/null)
anzeige=$!
read -r -u 3 nummer
export DISPLAY=:$nummer
openbox >/dev/null 2>&1 &
verwalter=$!
"$zarwik" NETZ.EIN &
programm=$!
trap 'kill $programm $verwalter $anzeige 2>/dev/null; rm -rf "$ordner"' EXIT

fenster=$(timeout 20 xdotool search --sync --onlyvisible --name '^Zarwik .*NETZ.EIN' | tail -1)
oben=27 # the picture begins so much lower than the places below are measured from
xdotool windowsize --sync "$fenster" 1180 $((800 + oben))
sleep 0.5
nach() { xdotool mousemove --window "$fenster" "$1" $(($2 + oben)) && sleep 0.1; }
klick() { nach "$1" "$2" && xdotool click "${3:-1}" && sleep 0.3; }
ziehe() { nach "$1" "$2" && xdotool mousedown 1 && nach $((($1 + $3) / 2)) $((($2 + $4) / 2)) && nach "$3" "$4" &&
    xdotool mouseup 1 && sleep 0.3; }
taste() { xdotool key "$@" && sleep 0.4; }
bild() { import -window "${2:-$fenster}" "$bilder/$1.png"; }
speichere() { # the dialog takes the name, an existing file is replaced
    taste ctrl+s && sleep 0.5 && xdotool type "$ordner/$1" && taste Return && sleep 0.5
}
# Tools and commands by their keys, or by the letters of menu and entry.
declare -A knopf=([pan]=1 [zoom]=2 [punkt]=3 [nummer]=4 [beob]=5 [art]=6 [zentriere]=9 [alles]=Home
    [hidenr]="alt+w k" [hide]="alt+w t" [daten]="alt+w g" [vorschau]="alt+u v"
    [lageverb]="alt+e l" [lagegen]="alt+e a" [hoehengen]="alt+e e" [tk25]="alt+a 2")
modus() {
    local tasten
    read -ra tasten <<<"${knopf[$1]}"
    xdotool windowfocus --sync "$fenster"
    for t in "${tasten[@]}"; do taste "$t"; done
}

modus alles
bild 01_geoeffnet
speichere anfang.ZRW
sleep 5 # until the status line no longer names the file
nach 414 394
for _ in 1 2 3; do xdotool click 5; done # the wheel: closer
sleep 0.3
bild 02_vergroessert
for schalter in lageverb lagegen hoehengen; do modus $schalter; done
bild 10_ergebnisse
modus daten
klick 414 394 # point 10
timeout 20 xdotool search --sync --onlyvisible --name '^Abriss nach der Ausgleichung Punkt' >/dev/null
bild 11_abriss root
modus daten
taste F9
klick 414 394
nach 300 700
bild 14_seitenleiste
taste Escape F9
for schalter in lageverb lagegen hoehengen; do modus $schalter; done
taste ctrl+shift+e
ausgabe=$(timeout 20 xdotool search --sync --onlyvisible --name '^Ausgeben$' | tail -1)
sleep 2
bild 15_ausgeben "$ausgabe"
xdotool key Escape
sleep 0.5
modus vorschau
vorschau=$(timeout 20 xdotool search --sync --onlyvisible --name '^Druckvorschau$' | tail -1)
sleep 2
bild 12_vorschau "$vorschau"
xdotool key Escape
sleep 0.5
modus pan
ziehe 300 300 420 380
modus alles
modus punkt
ziehe 414 394 620 300 # point 10
bild 03_punkt_verschoben
modus nummer
ziehe 352 128 420 180 # number REF2, right of its point
modus hide
klick 319 419 # point 11
modus hidenr
klick 433 339 # number 34, by its point
bild 04_versteckt
modus beob
dialog=$(timeout 20 xdotool search --sync --onlyvisible --name '^Beobachtungstyp$' | tail -1)
imDialog() { xdotool mousemove --window "$dialog" "$1" "$2" click 1 && sleep 0.3; }
imDialog 175 71 # both directions
imDialog 16 254 # new lines
xdotool windowmove "$dialog" 900 300
klick 573 612 # REF5
klick 629 323 # to REF3
bild 05_beobachtung_eingefuegt root
modus art
art=$(timeout 20 xdotool search --sync --onlyvisible --name '^Punktart$' | tail -1)
xdotool windowmove "$art" 900 300
klick 203 447 # point 24
dialog=$art
imDialog 162 76  # FH
imDialog 243 298 # draw it
bild 06_punktart root
modus pan
for _ in $(seq 30); do taste ctrl+z; done
modus alles
speichere ende.ZRW
bild 07_zurueckgenommen
cmp anfang.ZRW ende.ZRW && echo "Zurückgenommen: der Plan ist der vom Anfang."
modus zentriere
klick 203 447 # 24 onto 8
klick 242 373
klick 321 520 # 14 onto 11
klick 319 419
bild 08_zentriert
speichere zentriert.ZRW
modus zentriere
cmp -s anfang.ZRW zentriert.ZRW && { echo "Zentrieren hat nichts geändert." && exit 1; }
taste ctrl+shift+o
xdotool type "$ordner/zentriert.ZRW"
taste Return
sleep 0.5
xdotool getwindowname "$fenster" | grep -q 'zentriert.ZRW$' || { echo "Nicht wieder geöffnet." && exit 1; }
bild 09_wieder_geoeffnet
modus tk25
taste ctrl+l # the legend: two lines of text, then its box
xdotool type 'Netz Vogelsberg (frei erfunden)'
taste Tab
xdotool type 'Stand der Ausgleichung 3'
taste Tab space Escape
ziehe 2 118 940 600
nach 1100 400
bild 13_gitter
xdotool key ctrl+q
sleep 0.5
xdotool key n
wait $programm
if [ -n "$neu" ]; then
    for paar in 01_geoeffnet=fenster 02_vergroessert=vergroessert 03_punkt_verschoben=punkt_verschieben \
        10_ergebnisse=ergebnisse 12_vorschau=vorschau 13_gitter=gitter 14_seitenleiste=seitenleiste; do
        convert "$bilder/${paar%=*}.png" -dither None -colors 256 "PNG8:$neu/${paar#*=}.png"
    done
    convert "$bilder/11_abriss.png" -crop "1182x$((822 + oben))+0+0" +repage -dither None -colors 256 \
        "PNG8:$neu/abriss.png"
    "$zarwik" --export png --ziel "$bilder" "$wurzel/beispiele/LINIEN.ZRW"
    cp "$bilder/LINIEN.png" "$neu/linienstile.png"
fi
echo "Rundgang beendet, Bilder in $bilder"
