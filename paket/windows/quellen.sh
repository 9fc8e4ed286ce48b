# shellcheck shell=bash
# Sources of what Zarwik stands on, from Debian's source packages; to be sourced. Everything lies in one folder outside
# the tree, which may be thrown away, and is there once only.
ZRW_WINDOWS=${ZRW_WINDOWS:-${XDG_CACHE_HOME:-$HOME/.cache}/zarwik-windows}
export ZRW_WINDOWS

# What is unpacked must be these, whoever sent them: apt checks the signature of the package, this the upstream part.
summen='aaa776260ab4dc976db34aa7891819484c8676b5b2783123ebc6301e2ca5d655  sqlite3_3.40.1.orig.tar.xz
71feb7947e3c00ef125f83b79a4e529bde31171e5babe48b391f06758d1ab0a1  zlib_1.2.13.dfsg.orig.tar.bz2
5c5ad5d7caeb791420408042a7d88c2c6180781bf218feca259fd9d840a888e1  pugixml_1.13.orig.tar.gz
4f14b89a9463a540fd84a6718b8519a2297119b454ef547721015a9e9019ae9e  qt6-base_6.4.2+dfsg.orig.tar.xz'

# Sources lists and package lists of our own: most systems have none of sources, and theirs stay as they are.
apt_quellen() {
    apt-get -qq -o Dir::Etc::SourceList="$ZRW_WINDOWS/apt/quellen.sources" -o Dir::Etc::SourceParts=/dev/null \
        -o Dir::State::Lists="$ZRW_WINDOWS/apt/listen" -o Dir::Cache="$ZRW_WINDOWS/apt/zwischen" \
        -o APT::Sandbox::User="$(id -un)" "$@"
}

# From the same server as this system's own packages.
richte_apt_ein() {
    local server
    server=$(apt-get indextargets --format '$(REPO_URI)' 'Identifier: Packages' 'Codename: bookworm' 2>/dev/null |
        head -n 1)
    mkdir -p "$ZRW_WINDOWS"/apt/{listen,zwischen}/partial
    cat >"$ZRW_WINDOWS/apt/quellen.sources" <<ENDE
Types: deb-src
URIs: ${server:-http://deb.debian.org/debian}
Suites: bookworm
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
ENDE
    apt_quellen update
}

# usage: hole_quelle PAKET; its sources, with Debian's corrections, then lie in $ZRW_WINDOWS/quellen/PAKET
hole_quelle() {
    local paket=$1 laden=$ZRW_WINDOWS/quellen/$1.laden
    [ -d "$ZRW_WINDOWS/quellen/$paket" ] && return 0
    echo "Hole die Quellen von $paket"
    [ -n "$(find "$ZRW_WINDOWS/apt/listen" -name '*Sources*' -mtime -1 2>/dev/null)" ] || richte_apt_ein
    mkdir -p "$laden"
    rm -rf "$laden/baum"
    (
        cd "$laden" || exit
        apt_quellen source --download-only "$paket"
        # The part of the sums that is this package's: none would be as wrong as a false one.
        grep -F "  ${paket}_" <<<"$summen" | sha256sum --check --strict --quiet
        dpkg-source --no-check -x ./*.dsc baum >/dev/null 2>&1
    )
    mv "$laden/baum" "$ZRW_WINDOWS/quellen/$paket"
    rm -rf "$laden"
}
