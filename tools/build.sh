# Sourced by ./run, ./test and tools/package, which set `root` to the folder of the project: quiet builds of the presets.

# Cached objects are good for every clone, wherever it lies; without a folder to keep them in, the
# builds go without a cache.
[ -n "${HOME:-}" ] || HOME=$(unset HOME && printf '%s' ~)
export HOME CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=1
if ! mkdir -p "${CCACHE_DIR:-${XDG_CACHE_HOME:-$HOME/.cache}/ccache}" 2>/dev/null; then
    export CCACHE_DISABLE=1
fi

# quietly LOG COMMAND...: runs it with its output added to LOG, and shows the log when it fails.
quietly() {
    local log=$1 status=0
    shift
    "$@" >>"$log" 2>&1 </dev/null || status=$?
    [ "$status" = 0 ] || cat -- "$log" >&2
    return "$status"
}

# configure PRESET [OPTION...]: sets up build/PRESET; OPTIONs are further arguments for cmake.
# A build folder that came here with a copied or moved tree starts afresh.
configure() {
    local preset=$1 folder="$root/build/$1" fresh=()
    shift
    mkdir -p "$folder" || return
    : >"$folder/build.log" || return
    if [ -e "$folder/CMakeCache.txt" ] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        fresh=(--fresh)
    fi
    quietly "$folder/build.log" cmake "${fresh[@]}" -S "$root" --preset "$preset" "$@"
}

# build PRESET [TARGET]: builds a configured preset, by default all of it.
build() {
    quietly "$root/build/$1/build.log" cmake --build "$root/build/$1" ${2:+--target "$2"}
}
