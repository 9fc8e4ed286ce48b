#!/usr/bin/env bash
# The pictures of the icons are those that were made of their SVG sources: after a change, skripte/bilder.sh.
# usage: bilder.sh PROGRAMM WURZEL
set -euo pipefail
cd "$2/ui/bilder"
sha256sum --check --strict --quiet summen.txt
diff <(find . -name '*.svg' -o -name '*.png' | sed 's|^\./||' | sort) <(sed 's|^[0-9a-f]*  ||' summen.txt | sort)
diff <(find . -name '*.png' | sed 's|^\./||' | sort) <(sed -n 's|.*<file>\(.*\)</file>|\1|p' bilder.qrc | sort)
