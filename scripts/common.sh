# Functions that the scripts share. The scripts source this file from the root of the checkout.

jobs=$(nproc)
export CMAKE_BUILD_PARALLEL_LEVEL=$jobs
export CTEST_PARALLEL_LEVEL=$jobs
# ccache then needs no separate run of the preprocessor for what it does not have yet.
export CCACHE_DEPEND=1

say() { printf '\n== %s\n' "$*"; }

# ccache and Wine need a home directory. If there is none, use one in the build directory.
if [ ! -w "${HOME:-/nonexistent}" ]; then
    export HOME=$PWD/build/home
    mkdir -p "$HOME"
fi

# is_there PROOF: whether a command, or a file that matches a pattern, exists.
is_there() {
    case $1 in
        /*) compgen -G "$1" >/dev/null ;;
        *) command -v "$1" >/dev/null ;;
    esac
}

# missing_packages SET...: prints the packages of these sets that this machine does not have.
missing_packages() {
    local wanted=" $* " set package proof
    while read -r set package proof; do
        case $set in '' | '#'*) continue ;; esac
        if [[ $wanted == *" $set "* ]] && ! is_there "$proof"; then
            printf '%s ' "$package"
        fi
    done <scripts/packages.txt
}

# need SET...: installs the missing packages as root; otherwise says what to install, and fails.
need() {
    local missing
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return
    if [ "$(id -u)" -ne 0 ] || ! command -v apt-get >/dev/null; then
        echo "This machine lacks some Debian packages. Install them and start again:" >&2
        echo "    sudo apt-get update && sudo apt-get install -y $missing" >&2
        exit 1
    fi
    say "Installing $missing"
    # shellcheck disable=SC2086
    install_packages $missing || install_packages $missing
    missing=$(missing_packages "$@")
    if [ -n "$missing" ]; then
        echo "Installed, but still not found: $missing" >&2
        exit 1
    fi
}

install_packages() {
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -q && apt-get install -y -q --no-install-recommends "$@"
}

# Installs playwright-core, which drives the browser, in the version that package-lock.json names.
need_node_modules() {
    [ node_modules/.package-lock.json -nt package-lock.json ] && return
    say "Installing playwright-core"
    npm ci --no-audit --no-fund || npm ci --no-audit --no-fund
}

# configure PRESET [CMAKE_OPTION...]
configure() {
    mkdir -p build
    cmake --preset "$@" >"build/$1.configure.log" 2>&1 || { cat "build/$1.configure.log"; exit 1; }
}
