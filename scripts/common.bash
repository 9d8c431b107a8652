# What the scripts share. Sourced, it changes to the root of the project.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '== %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# step TEXT COMMAND...: says what it does, does it, and tells how long it took.
step() {
    local text=$1 start=$SECONDS
    shift
    say "$text"
    "$@"
    say "$text: done in $((SECONDS - start)) s"
}

# configure PRESET
configure() { cmake --preset "$1" --log-level=WARNING >/dev/null; }

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    configure "$preset"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# run_tests PRESET: ends with the summary line of CTest, and leaves it in the build folder.
run_tests() {
    QT_QPA_PLATFORM=offscreen ctest --preset "$1" -j "$(nproc)" --no-tests=error \
        --output-log "build/$1/tests.log"
}
