# What the scripts share. Sourced, never run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Programs that run as root without a login have none, and Qt says so on every start.
if [ -z "${XDG_RUNTIME_DIR-}" ]; then
    XDG_RUNTIME_DIR=${TMPDIR:-/tmp}/runtime-$(id -u)
    mkdir -p -m 0700 "$XDG_RUNTIME_DIR"
    export XDG_RUNTIME_DIR
fi

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_packages PACKAGE...: those Debian packages that are not there yet; silent and quick if none is missing.
install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}\n' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "-- installing ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
}

# configure_preset PRESET [CMAKE-OPTION...]: configures build/PRESET, silently if it succeeds.
configure_preset() {
    local preset=$1
    shift
    (
        cd "$root"
        cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@" >"$(log_of "$preset")" ||
            { cat "$(log_of "$preset")" >&2; exit 1; }
    )
}

# build_preset PRESET [CMAKE-OPTION...]: configures and builds build/PRESET.
build_preset() {
    echo "-- building $1"
    configure_preset "$@"
    (cd "$root" && cmake --build --preset "$1" -- --quiet)
}

# build_target PRESET TARGET: configures build/PRESET and builds one target of it.
build_target() {
    configure_preset "$1"
    (cd "$root" && cmake --build --preset "$1" --target "$2" -- --quiet)
}

log_of() {
    mkdir -p "$root/build"
    echo "$root/build/configure-$1.log"
}
