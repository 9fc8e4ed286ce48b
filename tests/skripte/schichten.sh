#!/usr/bin/env bash
# Which rooms a room may include; Qt lives in ui/ and app/, SQLite in input/, zlib in output/. A room is named by the
# first part of the include path.
# usage: schichten.sh PROGRAMM WURZEL
set -euo pipefail
cd "$2"
declare -A darf=(
    [geo]=""
    [model]="geo"
    [input]="geo model"
    [output]="geo model"
    [ui]="geo model input output"
    [app]="geo model input output ui"
)
fehler=0
melde() {
    echo "$1"
    fehler=1
}
for raum in "${!darf[@]}"; do
    files=$(find "$raum" -name '*.cpp' -o -name '*.h')
    [ -n "$files" ] || melde "Raum $raum ist leer"
    for anderer in "${!darf[@]}"; do
        case " $raum ${darf[$raum]} " in *" $anderer "*) continue ;; esac
        # shellcheck disable=SC2086
        if grep -nE "#include \"(\.\./)*$anderer/" $files; then melde "$raum darf $anderer nicht einbinden"; fi
    done
    case $raum in
    ui | app) ;;
    *)
        # shellcheck disable=SC2086
        if grep -nE '#include [<"]Q[A-Za-z/]' $files; then melde "$raum kennt kein Qt"; fi
        ;;
    esac
    # shellcheck disable=SC2086
    if [ "$raum" != input ] && grep -nE '#include [<"]sqlite3' $files; then melde "SQLite gehört nach input"; fi
    # shellcheck disable=SC2086
    if [ "$raum" != output ] && grep -nE '#include [<"]zlib' $files; then melde "zlib gehört nach output"; fi
done
# What a compiler does not see: a room that reaches into another with a relative path.
if grep -rnE '#include "\.\./' "${!darf[@]}"; then melde "Einbindungen beginnen beim Raum"; fi
exit $fehler
