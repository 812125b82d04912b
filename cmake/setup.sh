# Sourced by ./run, ./test and ./bench: the root folder and the installation of what packages.txt lists.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1

say() { printf '\n== %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_packages [LIST]: installs the packages of the list that are missing; needs the network only if there are any.
install_packages() {
    local missing=() package
    while read -r package; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done < <(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "${1:-packages.txt}")
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

# Whether there is a sound server (its socket, or one named elsewhere) or at least a sound card.
has_sound() {
    local runtime=${XDG_RUNTIME_DIR:-/run/user/$(id -u)}
    [ -n "${PULSE_SERVER:-}" ] || [ -S "$runtime/pulse/native" ] || [ -S "$runtime/pipewire-0" ] ||
        grep -qs '^ *[0-9]' /proc/asound/cards
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    say "Building ($preset)"
    cmake --preset "$preset" -D CMAKE_CXX_COMPILER_LAUNCHER=ccache >build-configure.log 2>&1 ||
        { cat build-configure.log; rm -f build-configure.log; return 1; }
    rm -f build-configure.log
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
