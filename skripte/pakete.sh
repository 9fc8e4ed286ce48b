# shellcheck shell=bash disable=SC2034
# Installs the Debian packages that a script needs; to be sourced. Does nothing, and says nothing, where all are there.
# usage: brauche PAKET...
brauche() {
    command -v dpkg-query >/dev/null || return 0 # another system: its owner sees to the packages
    local fehlend=() paket
    for paket in "$@"; do
        dpkg-query -W -f='${Status}' "$paket" 2>/dev/null | grep -q 'ok installed' || fehlend+=("$paket")
    done
    [ ${#fehlend[@]} -eq 0 ] && return 0
    echo "Installiere: ${fehlend[*]}"
    local als=()
    [ "$(id -u)" -eq 0 ] || als=(sudo)
    local auszug
    auszug=$(mktemp)
    if ! { "${als[@]}" apt-get update -qq &&
        "${als[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${fehlend[@]}"; } \
        >"$auszug" 2>&1; then
        tail -n 20 "$auszug" >&2
        echo "Die Pakete ließen sich nicht installieren." >&2
        rm -f "$auszug"
        return 1
    fi
    rm -f "$auszug"
}

# What building takes, and what the program needs to run.
paketeBauen="g++ cmake ninja-build ccache qt6-base-dev libgl-dev libsqlite3-dev zlib1g-dev libpugixml-dev"
paketeLaufen="libsqlite3-0 zlib1g libpugixml1v5 qt6-qpa-plugins qt6-translations-l10n fonts-liberation"
paketeSanitizer="clang libclang-rt-dev llvm"
paketeTesten="libgtest-dev python3 python3-ezdxf librecad hp2xx poppler-utils librsvg2-bin locales gdal-bin"
# Cross-compiling for Windows, and trying what comes of it.
paketeWindows="g++-mingw-w64-x86-64-posix cmake ninja-build make gcc libc6-dev tcl googletest dpkg-dev wine64"
