# SPDX-License-Identifier: LGPL-2.1-or-later
# Shell functions of ./run, ./test and benchmarks/run: what the program needs on Debian 12, and how it gets there.
# Sourced, never executed.

# To build and run the client.
KIRV_BUILD_PACKAGES=(
    g++ cmake ninja-build ccache pkg-config
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev libqt5sql5-sqlite
    libqxmpp-dev libidn-dev libcommuni-dev qtkeychain-qt5-dev libsecret-1-0 libsodium-dev qttranslations5-l10n
    fonts-dejavu-core)
# The private servers of the demo, the tour and the system tests.
KIRV_SERVER_PACKAGES=(prosody ngircd openssl)
# To build with the other major of Qt and to run all tests; clang and its runtime are for the fuzzers.
KIRV_TEST_PACKAGES=(
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-svg-dev libqt6opengl6-dev libqt6sql6-sqlite
    qt6-translations-l10n qtkeychain-qt6-dev gnome-keyring dbus dnsmasq-base iproute2 util-linux
    binutils sqlite3 clang libclang-rt-14-dev lld clang-format clang-tidy git python3 python3-jsonschema reuse
    appstream desktop-file-utils doxygen man-db xvfb xauth at-spi2-core qt6-qpa-plugins)
# To build Debian packages, to look them over, to try them in a minimal system and to compare binary interfaces.
KIRV_DEB_PACKAGES=(abigail-tools binutils dpkg-dev debhelper lintian xz-utils debootstrap util-linux)

say() { printf '%s\n' "$*"; }
# Ends the script with a message for the user.
die() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Prints those of the given packages that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || say "$package"
    done
}

# Runs a command as root.
as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo -- "$@"; fi
}

apt_get_install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 install -y -q \
        --no-install-recommends "$@"
}

# Installs the given servers without ever starting their system services: the program runs private ones of its own.
install_servers() {
    as_root env DEBIAN_FRONTEND=noninteractive bash -s -- "$@" <<'SCRIPT'
policy=/usr/sbin/policy-rc.d
if ! [ -e "$policy" ]; then
    trap 'rm -f "$policy"' EXIT
    trap 'exit 130' INT TERM HUP
    printf '#!/bin/sh\nexit 101\n' >"$policy" && chmod 755 "$policy" || exit 1
fi
apt-get -o DPkg::Lock::Timeout=300 install -y -q --no-install-recommends "$@" </dev/null || exit 1
for server in prosody ngircd; do
    case " $* " in
    *" $server "*)
        service "$server" stop
        update-rc.d "$server" disable
        ;;
    esac
done >/dev/null 2>&1
exit 0
SCRIPT
}

# ensure_packages PACKAGE...: installs what is missing; does nothing, quickly, when nothing is.
ensure_packages() {
    [ "${KIRV_SKIP_INSTALL:-}" = 1 ] && return
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        die "this is not a Debian system, so nothing can be installed here." \
            "Install what these Debian packages hold, then start again with KIRV_SKIP_INSTALL=1: $*"
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -eq 0 ] && return

    say "Installing ${#missing[@]} missing packages: ${missing[*]}"
    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        die "packages can only be installed by root, and there is no sudo here." \
            "Run as root: apt-get install --no-install-recommends ${missing[*]}"
    fi
    require_space /var/cache 2500 "the packages"
    as_root apt-get -o DPkg::Lock::Timeout=300 update -q ||
        say "The lists of packages could not be refreshed; trying with those that are here."

    local package servers=() others=()
    for package in "${missing[@]}"; do
        case " ${KIRV_SERVER_PACKAGES[*]} " in
        *" $package "*) servers+=("$package") ;;
        *) others+=("$package") ;;
        esac
    done
    { [ ${#others[@]} -eq 0 ] || apt_get_install "${others[@]}"; } &&
        { [ ${#servers[@]} -eq 0 ] || install_servers "${servers[@]}"; } ||
        die "the packages could not be installed; the lines above say why." \
            "Debian 12 has all of them; without a network none can be fetched."
}

# require_space FOLDER MEGABYTES WHAT-FOR: ends the script when the disk is too full.
require_space() {
    local free
    free=$(df -Pm "$1" 2>/dev/null | awk 'NR == 2 { print $4 }')
    [ -z "$free" ] || [ "$free" -ge "$2" ] ||
        die "the disk of $1 has $free MB free; $3 take up to $2 MB."
}

# build_preset NAME [TARGET...]: configures and builds a preset of CMakePresets.json into build/NAME, or into the folder of
# the preset of which it builds a part. The output goes to build/logs; of a failure its end is shown.
build_preset() {
    local preset=$1 configuration=$1 log started=$SECONDS
    shift
    case $preset in
    protocols | walk | fuzz) configuration=sanitize ;;
    benchmarks) configuration=qt5 ;;
    esac
    mkdir -p build/logs
    log=build/logs/$preset.log
    say "Building build/$preset ..."
    if { { [ "build/$configuration/build.ninja" -nt CMakePresets.json ] || cmake --preset "$configuration"; } &&
        cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1; then
        say "Built build/$preset in $((SECONDS - started)) s."
    else
        grep -E 'error|Error|FAILED|No space left' "$log" | head -n 40 >&2
        say "... (the end of $log:)" >&2
        tail -n 30 "$log" >&2
        return 1
    fi
}
