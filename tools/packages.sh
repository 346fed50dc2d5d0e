# Sourced by ./run, ./test and the tools: the Debian packages for each purpose, and their installation.

# To build the core, the command line, the desktop program with its manual, and their tests.
build_packages=(
    g++ cmake ninja-build pkg-config ccache cmark-gfm qt6-l10n-tools
    qt6-base-dev libxml2-dev libplist-dev libxxhash-dev libssl-dev libcli11-dev nlohmann-json3-dev
)

# Also, to run the desktop program: its icons, sessions without an X server, and Qt's dialogs in other languages.
window_packages=(libqt6svg6 qt6-wayland qt6-translations-l10n)

# Also, to build the plug-in and the program that print, and to print on paper.
print_packages=(qt6-webengine-dev libqpdf-dev cups-client)

# Also, to make the Debian package.
packaging_packages=(dpkg-dev file)

# Also, to run ./test: the formatter; the parser that the benchmark compares with; validators of the installed
# files, the package and the manual pages; the shells with completions; a display; PDF readers; and what
# computes checksums to compare with.
check_packages=(
    clang-format libxml2-utils mold
    appstream desktop-file-utils fakeroot libglib2.0-bin lintian mandoc shared-mime-info
    bash-completion zsh
    x11-utils xvfb
    poppler-utils
    xxhash
)

# Also, to run tools/lint.
lint_packages=(clang-tidy)

# missing_packages NAME...: prints those that are not installed, one a line.
missing_packages() {
    local installed=" " state name
    while read -r state name; do
        [ "$state" != installed ] || installed+="$name "
    done < <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null)
    for name in "$@"; do
        case "$installed" in
        *" $name "*) ;;
        *) printf '%s\n' "$name" ;;
        esac
    done
}

# as_root COMMAND...: runs it as root; asks for a password only on a terminal. Fails without the rights.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

# apt_get ARGUMENT...: apt-get without questions, with its output on standard error.
apt_get() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 "$@" >&2
}

# install_packages NAME...: installs the missing ones; does nothing when all are installed. On failure prints one
# sentence that names the missing packages.
install_packages() {
    local missing reason
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0

    if ! command -v apt-get >/dev/null; then
        reason="there is no apt-get"
    elif ! as_root true 2>/dev/null; then
        reason="that takes root or sudo"
    elif ! apt_get update || ! apt_get install --no-install-recommends "${missing[@]}"; then
        reason="apt-get failed"
    else
        return 0
    fi
    printf 'These Debian packages are missing and cannot be installed here (%s): %s\n' \
        "$reason" "${missing[*]}" >&2
    return 1
}
