# Sourced by the commands: installs missing packages and makes the Wine prefix, both once.
# After it, $root is the repository's root and the working directory.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
mkdir -p build
source scripts/display.sh

# Every running command shares this lock; the last one may end what runs in the Wine prefix.
exec {prefix_lock}>build/wine.lock
flock --shared "$prefix_lock"
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

make_prefix() {
    # Looked at, not tried out: a Wine that is started without a screen would have no windows later.
    [[ -f build/wine/.ready && -f build/wine/drive_c/windows/system32/kernel32.dll ]] &&
        grep -q 'Liberation Sans' build/wine/user.reg && return
    say "Making the Wine prefix build/wine (log: build/wine.log)"
    (
        start_display
        set_up_prefix scripts/run-wine || {
            echo "Starting afresh."
            rm -rf build/wine
            set_up_prefix scripts/run-wine
        }
    ) >build/wine.log 2>&1 </dev/null || {
        tail -n 20 build/wine.log >&2
        echo "Could not make the Wine prefix." >&2
        return 1
    }
    touch build/wine/.ready
}
