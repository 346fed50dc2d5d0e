# Sourced by ./run, ./test and tools/package: which Debian packages each purpose needs, and their installation.

# What building the core, the command line, the desktop program and their tests takes.
build_packages=(
    g++ cmake ninja-build pkg-config ccache
    qt6-base-dev libxml2-dev libplist-dev libcli11-dev nlohmann-json3-dev
)

# What the desktop program takes beyond that to run: its icons, and sessions without an X server.
window_packages=(libqt6svg6 qt6-wayland)

# What building the plug-in and the program that print takes beyond that, and printing on paper.
print_packages=(qt6-webengine-dev libqpdf-dev cups-client)

# What making the Debian package takes beyond building.
packaging_packages=(dpkg-dev file)

# What checking takes beyond that: the formatter; the parser that the benchmark measures against; the
# validators of what is installed, of the package and of the manual pages; the shells that complete; a
# display to start the program on; and what reads PDF files back.
check_packages=(
    clang-format libxml2-utils
    appstream desktop-file-utils fakeroot libglib2.0-bin lintian mandoc shared-mime-info
    bash-completion zsh
    x11-utils xvfb
    poppler-utils
)

# What tools/lint takes beyond building.
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

# as_root COMMAND...: runs it with the rights to install; a password is asked for only on a terminal.
# Fails where there are no such rights.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

# apt_get ARGUMENT...: apt-get without questions, its talk on standard error.
apt_get() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 "$@" >&2
}

# install_packages NAME...: installs what is missing among them; asks no one and fetches nothing
# when nothing is. Fails with one sentence that names what is missing where it cannot install.
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
