#!/usr/bin/env bash
# What an installation of this build puts where, and that its parts agree: desktop entry, file types, icons, man page,
# links of the manual, versions.
# usage: paket.sh ZARWIK WURZEL
set -euo pipefail
zarwik=$1
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
DESTDIR=$ort cmake --install "$(dirname "$zarwik")" --prefix /usr >"$ort/auszug" || {
    cat "$ort/auszug"
    exit 1
}
export XDG_CONFIG_HOME=$ort/einstellungen
cd "$ort/usr"
"$zarwik" --help >"$ort/hilfe"
gzip -dc share/man/man1/zarwik.1.gz >"$ort/zarwik.1"
gzip -dc share/doc/zarwik/changelog.gz >"$ort/changelog"

# What else is installed is pictures, the manual and the tables of the example.
diff - <(find . -type f ! -path '*/handbuch/*' ! -name '*.DB' ! -name '*.PX' | sort) <<'LISTE'
./bin/zarwik
./share/applications/zarwik.desktop
./share/doc/zarwik/beispiele/KOORD.KF
./share/doc/zarwik/beispiele/LINIEN.ZRW
./share/doc/zarwik/beispiele/NETZ.EIN
./share/doc/zarwik/beispiele/README.md
./share/doc/zarwik/beispiele/RICHT.SF
./share/doc/zarwik/beispiele/gama/HOEHEN.gkf
./share/doc/zarwik/beispiele/gama/HOEHEN.xml
./share/doc/zarwik/beispiele/gama/LAGE.gkf
./share/doc/zarwik/beispiele/gama/LAGE.xml
./share/doc/zarwik/beispiele/gama/VEKTOREN.gkf
./share/doc/zarwik/beispiele/gama/VEKTOREN.xml
./share/doc/zarwik/changelog.gz
./share/doc/zarwik/copyright
./share/icons/hicolor/scalable/apps/zarwik.svg
./share/icons/hicolor/scalable/mimetypes/application-x-gama-local.svg
./share/icons/hicolor/scalable/mimetypes/application-x-zarwik-bild.svg
./share/icons/hicolor/scalable/mimetypes/application-x-zarwik-steuerdatei.svg
./share/man/man1/zarwik.1.gz
./share/metainfo/zarwik.metainfo.xml
./share/mime/packages/zarwik.xml
LISTE
[ "$(find share/doc/zarwik/beispiele -name '*.DB' -o -name '*.PX' | wc -l)" -eq 20 ]
"bin/zarwik" --export png --ziel "$ort/aus" share/doc/zarwik/beispiele/NETZ.EIN
[ -s "$ort/aus/NETZ.png" ]

python3 - "$2" "$ort" "$("$zarwik" --version)" <<'PY'
import configparser, pathlib, re, sys
import xml.etree.ElementTree as xml
wurzel, ort, version = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3].split()[1]
share = ort / 'usr/share'
fehler = []
def pruefe(gut, text):
    if not gut:
        fehler.append(text)

eintrag = configparser.RawConfigParser()
eintrag.optionxform = str
eintrag.read_string((share / 'applications/zarwik.desktop').read_text('utf-8'))
eintrag = eintrag['Desktop Entry']
symbole = {p.stem for p in share.glob('icons/hicolor/scalable/*/*.svg')}
pruefe(eintrag['Exec'].split() == ['zarwik', '%f'], 'Exec')
pruefe(eintrag['Icon'] in symbole, 'Icon')

arten = {}
for art in xml.parse(share / 'mime/packages/zarwik.xml').getroot():
    arten[art.get('type')] = {x.get('pattern') for x in art if x.tag.endswith('}glob')}
pruefe(sorted(arten.values(), key=str) == [{'*.ein'}, {'*.gkf'}, {'*.zrw'}], f'Muster {arten}')
pruefe(set(eintrag['MimeType'].strip(';').split(';')) == set(arten), 'MimeType')
pruefe({a.replace('/', '-') for a in arten} < symbole, 'Symbole der Dateiarten')
for bild in share.glob('icons/hicolor/scalable/*/*.svg'):
    xml.parse(bild)

angaben = xml.parse(share / 'metainfo/zarwik.metainfo.xml').getroot()
pruefe({x.text for x in angaben.iter('mediatype')} == set(arten), 'mediatype')
pruefe(next(angaben.iter('release')).get('version') == version, 'Version der Angaben')
pruefe((ort / 'changelog').read_text('utf-8').startswith(f'zarwik ({version})'), 'Version des changelog')

# Options, formats and switches, as the program itself lists them.
hilfe = (ort / 'hilfe').read_text('utf-8')
seite = (ort / 'zarwik.1').read_text('utf-8').replace('\\-', '-')
worte = set(re.findall(r'--[a-z]+', hilfe))
worte |= set(re.search(r'durch Kommas getrennt: (.*)', hilfe)[1].split(', '))
worte |= set(re.search(r'Schalter für .*:\n(.*)', hilfe)[1].split())
pruefe(len(worte) > 20, f'Hilfe: {worte}')
for wort in worte:
    pruefe(re.search(rf'(?<![\w-]){re.escape(wort)}(?!\w)', seite), f'Die Handbuchseite kennt {wort} nicht')
pruefe(f'Zarwik {version}' in seite, 'Version der Handbuchseite')

themen = sorted((share / 'doc/zarwik/handbuch/hilfe').glob('*.md'))
pruefe([t.name for t in themen] == sorted(t.name for t in (wurzel / 'hilfe').glob('*.md')), 'Themen')
for thema in themen:
    for ziel in re.findall(r'\]\(([^)#:]+)\)', thema.read_text('utf-8')):
        pruefe((thema.parent / ziel).is_file(), f'{thema.name}: {ziel} fehlt')
print('\n'.join(fehler))
sys.exit(bool(fehler))
PY
