# Sourced by the commands: installs missing packages and makes the Wine prefix, both once.
# After it, $root is the repository's root and the working directory.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
mkdir -p build
source scripts/display.sh

trap clean_up EXIT

build_packages=(cmake ninja-build g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix)
run_packages=(googletest wine wine64 xvfb fonts-liberation)

say() { echo "== $*"; }

# Installs those of the named packages that are missing.
install_packages() {
    local package missing=() sudo=()
    command -v apt-get >/dev/null || return 0 # Elsewhere the tools have to be there already.
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    ((EUID == 0)) || sudo=(sudo)
    say "Installing ${missing[*]} (log: build/setup.log)"
    {
        "${sudo[@]}" apt-get update &&
            "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
    } >build/setup.log 2>&1 </dev/null || {
        tail -n 20 build/setup.log >&2
        echo "Could not install ${missing[*]}." >&2
        return 1
    }
}

# Adds the settings that the dialogs need to a prefix: GDI+ finds no Arial without the first, every dialog takes two
# seconds to close without a window manager and without the second, a crash waits for a click without the third.
set_up_prefix() { # COMMAND...: what runs Wine
    timeout 120 "$@" wineboot -i &&
        timeout 60 "$@" reg add 'HKCU\Software\Wine\Fonts\Replacements' /v Arial /t REG_SZ /d 'Liberation Sans' /f &&
        timeout 60 "$@" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d N /f &&
        timeout 60 "$@" reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
}

# A command has a prefix to itself until it ends: build/wine, or the first of build/wine-2, -3, ... that nobody uses.
# The programs of one prefix all go when the screen goes on which the first of them came up. What the command starts
# keeps the lock open as well, so that a prefix is not free as long as anything runs in it.
take_prefix() {
    local number
    for ((number = 1; ; ++number)); do
        prefix=build/wine
        ((number == 1)) || prefix+=-$number
        exec {prefix_lock}>"$prefix.lock"
        flock --exclusive --nonblock "$prefix_lock" && break
        exec {prefix_lock}>&-
    done
    export EFFECT_SETTINGS_PREFIX=$root/$prefix
}

is_ready() { # PREFIX
    # Looked at, not tried out: a Wine that is started without a screen would have no windows later.
    [[ -f $1/.ready && -f $1/drive_c/windows/system32/kernel32.dll ]] && grep -q 'Liberation Sans' "$1/user.reg"
}

make_prefix() {
    take_prefix
    ! is_ready "$prefix" || return 0
    if is_ready build/wine; then
        # Wine never writes into its own programs, but it does into its registry.
        rm -rf "$prefix"
        cp --archive --link build/wine "$prefix"
        cp --archive --remove-destination build/wine/*.reg "$prefix"
        return
    fi
    say "Making the Wine prefix $prefix (log: $prefix.log)"
    (
        start_display
        set_up_prefix scripts/run-wine || {
            echo "Starting afresh."
            rm -rf "$prefix"
            set_up_prefix scripts/run-wine
        }
    ) >"$prefix.log" 2>&1 </dev/null || {
        tail -n 20 "$prefix.log" >&2
        echo "Could not make the Wine prefix." >&2
        return 1
    }
    touch "$prefix/.ready"
}

# Configures and builds; commands that run at the same time take turns.
build() { # PRESET [ARGUMENT OF cmake --build...]
    (
        flock 9
        cmake --preset "$1" >build/configure.log || {
            cat build/configure.log >&2
            exit 1
        }
        cmake --build --preset "$@"
    ) 9>build/build.lock
}
