# Sourced by ./test --x86: makes a 32-bit Debian with Wine once and mounts what its programs need.
# Debian's 64-bit Wine cannot run 32-bit programs. Where it can't be made, the status is 77.
x86_root=$root/build/x86-root
give_up() { # REASON
    echo "The 32-bit tests can't run: $1" >&2
    exit 77
}
{ ((EUID == 0)) && unshare --mount true; } || give_up "only root may mount what the 32-bit system needs."
# In a mount namespace of its own, nothing stays mounted, and deleting build/ never reaches into the mounts.
if [[ ! ${EFFECT_SETTINGS_UNSHARED:-} ]]; then
    export EFFECT_SETTINGS_UNSHARED=1
    exec {prefix_lock}>&- # The same command takes its prefix again.
    exec unshare --mount "$root/test" "${given[@]}"
fi

exec {x86_lock}>build/x86-root.lock
flock "$x86_lock" # There is one prefix in it.

if [[ ! -f $x86_root/.ready ]]; then
    install_packages debootstrap || give_up "no debootstrap."
    say "Making a 32-bit Debian in build/x86-root (log: build/x86-root.log)"
    rm -rf --one-file-system "$x86_root"
    mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Codename: bookworm' | head -n 1)
    timeout 300 debootstrap --variant=minbase --arch=i386 --include=wine32,wine,fonts-liberation bookworm "$x86_root" \
        ${mirror:+"$mirror"} >build/x86-root.log 2>&1 || {
        tail -n 20 build/x86-root.log >&2
        give_up "debootstrap made no system."
    }
fi
mkdir -p "$x86_root$root"
{
    mount -t proc proc "$x86_root/proc" && mount --bind /dev "$x86_root/dev" &&
        mount --bind "$root" "$x86_root$root"
} || give_up "could not mount what they need."
if [[ ! -f $x86_root/.ready ]]; then
    say "Making its Wine prefix"
    (start_display && set_up_prefix scripts/run-wine --x86) >>build/x86-root.log 2>&1 </dev/null || {
        tail -n 20 build/x86-root.log >&2
        give_up "Wine made no prefix."
    }
    touch "$x86_root/.ready"
fi
