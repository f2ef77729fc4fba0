# Sourced by run, test and bench: installs the Debian packages that are missing and builds a preset.

kestrel_packages() {
    local wanted=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev libsqlite3-dev libzip-dev
        libgtest-dev libbenchmark-dev clang libclang-rt-dev sqlite3 poppler-utils xvfb xauth
        libreoffice-calc-nogui libreoffice-writer-nogui
        libgl1-mesa-dev libxkbcommon-dev fonts-dejavu-core fonts-liberation fonts-comic-neue fonts-droid-fallback)
    local missing=()
    local name
    for name in "${wanted[@]}"; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'install ok installed' || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing Debian packages: ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

kestrel_build() { # preset [targets...]
    local preset=$1
    shift
    echo "Building ($preset) ..."
    cmake --preset "$preset" >"/tmp/kestrelmoor-configure-$(id -u).log" 2>&1 ||
        { cat "/tmp/kestrelmoor-configure-$(id -u).log"; return 1; }
    if [ $# -gt 0 ]; then cmake --build --preset "$preset" --target "$@"; else cmake --build --preset "$preset"; fi
}
