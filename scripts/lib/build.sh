# Builds presets. To be sourced.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
program=$root/build/release/bin/tavi
# Another checkout of the same sources finds what this one has compiled.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=true
# It may keep what was compiled with precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros

# configure PRESET [OPTION...]: configures build/PRESET quietly.
configure() {
    local preset=$1
    shift
    (cd "$root" && cmake --preset "$preset" "$@" >/dev/null)
}

# build_program: builds build/release/bin/tavi. Whether the tests are configured stays as it is, so that running the
# program between two test runs rebuilds nothing; a tree that is new goes without them and their packages.
build_program() {
    local options=()
    if [ ! -e "$root/build/release/CMakeCache.txt" ]; then
        options=(-DTAVI_TESTS=OFF)
    fi
    echo "building $program" >&2
    configure release "${options[@]}"
    cmake --build "$root/build/release" --target tavi >&2
}
