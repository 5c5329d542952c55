# What the scripts share; sourced from the root of the checkout.

jobs=$(nproc)
export CMAKE_BUILD_PARALLEL_LEVEL=$jobs
export CTEST_PARALLEL_LEVEL=$jobs

say() { printf '\n== %s\n' "$*"; }

# Caches and Wine want a home directory; a machine without one gets it in the build directory.
if [ ! -w "${HOME:-/nonexistent}" ]; then
    export HOME=$PWD/build/home
    mkdir -p "$HOME"
fi

is_there() {
    case $1 in
        /*) compgen -G "$1" >/dev/null ;;
        *) command -v "$1" >/dev/null ;;
    esac
}

# missing_packages SET...: the packages of those sets whose proof is not on this machine.
missing_packages() {
    local wanted=" $* " set package proof
    while read -r set package proof; do
        case $set in '' | '#'*) continue ;; esac
        if [[ $wanted == *" $set "* ]] && ! is_there "$proof"; then
            printf '%s ' "$package"
        fi
    done <scripts/packages.txt
}

# need SET...: installs what is missing when it may, or says what to install and fails.
need() {
    local missing
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return
    if [ "$(id -u)" -ne 0 ] || ! command -v apt-get >/dev/null; then
        echo "Missing on this machine. Install the Debian packages and start again:" >&2
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
