# Sourced by the checks of this folder, which CTest gives where things are:
# SOURCE_DIR, BUILD_DIR; PACKAGE_DIR with the packages, package.deb and print.deb, and their files below root/;
# VERSION; WINDOW and PRINT (ON or OFF: print.deb is there); CMAKE, CPACK (the programs).

set -euo pipefail
export LC_ALL=C.UTF-8 LANGUAGE=en

here=$SOURCE_DIR/tests/packaging
root=$PACKAGE_DIR/root
export here root

scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT

# What runs here sees nothing of the user, and leaves nothing.
mkdir -m 700 "$scratch/home" "$scratch/runtime"
export HOME=$scratch/home XDG_RUNTIME_DIR=$scratch/runtime
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME XDG_CACHE_HOME XDG_DATA_DIRS DBUS_SESSION_BUS_ADDRESS

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}

# expect WHAT EXPECTED ACTUAL: compares two texts.
expect() {
    [ "$2" = "$3" ] && return
    printf 'FAILED: %s (- expected, + actual)\n' "$1" >&2
    diff -u <(printf '%s\n' "$2") <(printf '%s\n' "$3") | tail -n +3 >&2 || true
    exit 1
}

# files_below FOLDER: mode and path of each file in it.
files_below() {
    (cd -- "$1" && find . ! -type d -printf '%m %P\n' | LC_ALL=C sort -k 2)
}

# desktop_files: mode and path of what is installed with the window: those of the list, and the manual as it was made.
desktop_files() {
    cat "$here/files-desktop.txt"
    (cd -- "$BUILD_DIR" && find share/vantrell/manual ! -type d -printf '644 %p\n')
}

# check_folder_modes FOLDER: that everybody may enter all folders in it.
check_folder_modes() {
    expect "modes of the folders" "" "$(find "$1" -mindepth 1 -type d ! -perm 755)"
}

# subcommands_of [SUBCOMMAND]: those that the help of the command line lists, one a line.
subcommands_of() {
    "$root/usr/bin/vantrell-cli" "$@" --help | sed -n '/^Subcommands:/,$ s/^  \([a-z][a-z-]*\) .*/\1/p'
}

# all_subcommands: every call of the command line that does something, one a line.
all_subcommands() {
    local name inner
    for name in $(subcommands_of); do
        inner=$(subcommands_of "$name")
        if [ -n "$inner" ]; then
            printf '%s\n' "$inner" | sed "s/^/$name /"
        else
            printf '%s\n' "$name"
        fi
    done
}

# options_of PROGRAM [SUBCOMMAND...]: the options that its help lists, one a line, sorted.
options_of() {
    "$root/usr/bin/$1" "${@:2}" --help | sed -n 's/, -/,-/; s/^  \(-[^ ]*\).*/\1/p' | tr ',' '\n' | sort
}

# choices_of OPTION PROGRAM [SUBCOMMAND...]: the values that its help allows for the option, one a line,
# sorted.
choices_of() {
    local option=$1
    shift
    "$root/usr/bin/$1" "${@:2}" --help | sed -n "s/^  $option TEXT:{\([^}]*\)}.*/\1/p" |
        tr ',' '\n' | sort
}

# sort_columns_of SUBCOMMAND: the columns that the help names for --sort, one a line.
sort_columns_of() {
    "$root/usr/bin/vantrell-cli" "$1" --help | sed -n 's/^  --sort TEXT .*: \(.*\)/\1/p' |
        sed 's/, QVCUSTOM_.*//; s/, /\n/g'
}
