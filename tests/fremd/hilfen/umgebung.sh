# shellcheck shell=bash
# Folder, programs and test networks of the checks with other programs; to be sourced with ZARWIK WURZEL.
zarwik=$1
wurzel=$2
python=/usr/bin/python3 # not the first of the path: that one may lack the Debian packages
# shellcheck disable=SC2154 # those who source this set it
for programm in $python $programme; do
    command -v "$programm" >/dev/null || { echo "Übersprungen: $programm ist nicht installiert." && exit 77; }
done
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
cd "$ordner" || exit 1
export HOME=$ordner XDG_CONFIG_HOME=$ordner XDG_RUNTIME_DIR=$ordner QT_QPA_PLATFORM=offscreen
export PYTHONPATH=$wurzel/tests/fremd PYTHONDONTWRITEBYTECODE=1
"$python" "$wurzel/tests/golden_export/netze.py" .

# exportiere ZIEL DATEI SCHALTER...: drawing, plotter file and picture file of one network
exportiere() {
    "$zarwik" --export dxf,plt,zrw --massstab 25000 --dpi 600 --ziel "$@"
}
