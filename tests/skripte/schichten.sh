#!/usr/bin/env bash
# The rooms may include downwards only (app -> ui -> output -> input -> model -> geo), Qt lives in ui/ and app/, SQLite in
# input/. A room is named by the first part of the include path.
# usage: schichten.sh PROGRAMM WURZEL
set -euo pipefail
cd "$2"
raeume=(geo model input output ui app)
fehler=0
melde() {
    echo "$1"
    fehler=1
}
for ((i = 0; i < ${#raeume[@]}; ++i)); do
    raum=${raeume[i]}
    files=$(find "$raum" -name '*.cpp' -o -name '*.h')
    [ -n "$files" ] || melde "Raum $raum ist leer"
    for ((j = i + 1; j < ${#raeume[@]}; ++j)); do
        # shellcheck disable=SC2086
        if grep -nE "#include \"(\.\./)*${raeume[j]}/" $files; then melde "$raum darf ${raeume[j]} nicht einbinden"; fi
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
if grep -rnE '#include "\.\./' "${raeume[@]}"; then melde "Einbindungen beginnen beim Raum"; fi
exit $fehler
