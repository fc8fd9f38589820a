# Sourced by fresh-machine and installed-package: a minimal Debian 12 in a folder, to be entered by chroot.

# make_machine FOLDER PACKAGES: Debian as this machine gets it: its mirror, its keys, its way into the
# network. The names of the packages that it has from the beginning are separated by commas.
make_machine() {
    local -r machine=$1
    echo "Making a minimal Debian 12 in $machine ..."
    local mirror
    mirror=$(apt-get indextargets --format '$(SITE) $(RELEASE)' | awk '$2 == "bookworm" {print $1; exit}')
    debootstrap --variant=minbase --include="$2" bookworm "$machine" \
        "${mirror:-http://deb.debian.org/debian}" >"$machine.log" 2>&1 || {
        tail -n 20 "$machine.log" >&2
        return 1
    }
    rm -f "$machine.log"
    # Intended: nothing starts services in there.
    printf '#!/bin/sh\nexit 101\n' >"$machine/usr/sbin/policy-rc.d"
    chmod +x "$machine/usr/sbin/policy-rc.d"
    apt-config dump | grep -E '^Acquire::(http|https)::Proxy' >"$machine/etc/apt/apt.conf.d/proxy" || true
}

# mount_machine FOLDER: what a running system has, in a mount namespace of our own.
mount_machine() {
    local -r machine=$1
    mount --bind "$machine" "$machine"
    cp --dereference --remove-destination /etc/resolv.conf /etc/hosts "$machine/etc/"
    mount -t proc proc "$machine/proc"
    mount -t tmpfs -o mode=755 tmpfs "$machine/dev"
    mkdir "$machine/dev/pts" "$machine/dev/shm"
    local device
    for device in null zero full random urandom tty; do
        touch "$machine/dev/$device"
        mount --bind "/dev/$device" "$machine/dev/$device"
    done
    mount -t devpts -o newinstance,ptmxmode=0666,mode=620,gid=5 devpts "$machine/dev/pts"
    ln -s pts/ptmx "$machine/dev/ptmx"
    ln -s /proc/self/fd "$machine/dev/fd"
    mount -t tmpfs -o mode=1777 tmpfs "$machine/dev/shm"
    ln -sf /proc/self/mounts "$machine/etc/mtab"
}
