# Sourced by ./run, ./test and the tools, which set `root` to the folder of the project: quiet builds of the presets.

# Builds without a cache when its folder cannot be created.
[ -n "${HOME:-}" ] || HOME=$(unset HOME && printf '%s' ~)
export HOME
if ! mkdir -p "${CCACHE_DIR:-${XDG_CACHE_HOME:-$HOME/.cache}/ccache}" 2>/dev/null; then
    export CCACHE_DISABLE=1
fi

# quietly LOG COMMAND...: runs it with its output appended to LOG; prints the log when it fails.
quietly() {
    local log=$1 status=0
    shift
    "$@" >>"$log" 2>&1 </dev/null || status=$?
    [ "$status" = 0 ] || cat -- "$log" >&2
    return "$status"
}

# configure PRESET [OPTION...]: sets up build/PRESET; OPTIONs are further arguments for cmake.
# A build folder that was copied or moved here with its tree is set up anew.
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

# build PRESET [TARGET...]: builds a configured preset, by default all of it. Shows progress on standard error: on
# one line of a terminal, else every half minute.
build() {
    local preset=$1 log="$root/build/$1/build.log" builder status=0 waited=0
    shift
    quietly "$log" cmake --build "$root/build/$preset" ${1:+--target "$@"} &
    builder=$!
    while kill -0 "$builder" 2>/dev/null; do
        sleep 0.5
        waited=$((waited + 1))
        if [ -t 2 ]; then
            printf '\r   %s: %s ' "$preset" "$(steps_done "$log")" >&2
        elif [ $((waited % 60)) = 0 ]; then
            printf '   %s: %s, %d s\n' "$preset" "$(steps_done "$log")" $((waited / 2)) >&2
        fi
    done
    [ ! -t 2 ] || printf '\r\033[K' >&2
    wait "$builder" || status=$?
    return "$status"
}

# steps_done LOG: the last "[done/all]" in a build log.
steps_done() {
    local steps
    steps=$(tail -c 4096 -- "$1" | grep -oE '^\[[0-9]+/[0-9]+\]' | tail -n 1)
    printf '%s' "${steps:-starting}"
}
