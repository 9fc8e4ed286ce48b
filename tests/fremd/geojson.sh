#!/usr/bin/env bash
# What GDAL reads from the GeoJSON of the example: every point and line with its fields, in the right grid.
# usage: geojson.sh ZARWIK WURZEL
set -euo pipefail
programme='ogrinfo ogr2ogr'
. "$2/tests/fremd/hilfen/umgebung.sh"
"$zarwik" --export geojson --ziel . "$wurzel/beispiele/NETZ.EIN"
fehler=0
pruefe() { # EXPECTED WHAT SQL
    local ist
    ist=$(ogrinfo -q -dialect SQLite -sql "$3" NETZ.geojson | grep ' = ' | head -1 | sed 's/.* = //')
    [ "$ist" = "$1" ] || { echo "$2: $ist statt $1" && fehler=1; }
}
ogrinfo -so NETZ.geojson NETZ >auskunft.txt
grep -q '^Feature Count: 582' auskunft.txt || { echo "nicht 165 Punkte und 417 Linien" && fehler=1; }
grep -q 'ID\["EPSG",31467\]' auskunft.txt || { echo "nicht im Streifen 3 von DHDN" && fehler=1; }
pruefe 165 "Punkte" "select count(*) from NETZ where GeometryType(geometry)='POINT'"
pruefe 417 "Linien" "select count(*) from NETZ where beobachtungen is not null"
pruefe 165 "ausgeglichene Höhen oder Lagen" "select count(*) from NETZ where x_ausgeglichen is not null or h_ausgeglichen is not null"
# The 22 points of the levelling loop have no position, and none is invented for them.
pruefe 143 "Ellipsen" "select count(*) from NETZ where ellipse_a >= ellipse_b"
pruefe "KÜHBG" "Umlaut" "select nummer from NETZ where nummer like 'K%HBG'"
pruefe 7 "grobe Fehler" "select count(*) from NETZ where grob"
# On the map: Hohfels in geographic coordinates, from the grid that the file names.
ogr2ogr -f CSV -t_srs EPSG:4258 -where "nummer='HOHFELS'" -lco GEOMETRY=AS_XY karte.csv NETZ.geojson
read -r x y < <(tail -n +2 karte.csv | cut -d, -f1,2 | tr , ' ')
awk -v x="$x" -v y="$y" 'BEGIN { exit !(x > 9 && x < 9.5 && y > 50.4 && y < 50.7) }' ||
    { echo "Hohfels liegt bei $x $y" && fehler=1; }
[ $fehler -ne 0 ] || echo "GDAL liest 165 Punkte und 417 Linien; Hohfels liegt bei $x, $y."
exit $fehler
