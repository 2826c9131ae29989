# Roots of other systems, for whoever may mount and change roots. To be sourced.

# make_root RELEASE DIRECTORY: asks the archive that this machine's apt asks, in the way that it is told to.
make_root() {
    local mirror options=()
    if ! command -v mmdebstrap >/dev/null; then
        DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends mmdebstrap >&2
    fi
    mirror=$(apt-get indextargets 'Created-By: Packages' 'Origin: Debian' 'Component: main' --format '$(REPO_URI)' | head -n 1)
    while read -r option; do
        options+=(--aptopt="${option%;}")
    done < <(apt-config dump | grep -E '^Acquire::(https?::(Proxy|Verify|CaInfo)|Check-|Languages)')
    rm -rf "$2.new"
    mmdebstrap --variant=apt "${options[@]}" "$1" "$2.new" "${mirror:-http://deb.debian.org/debian}"
    mv "$2.new" "$2"
}

# mount_root DIRECTORY: what programs in it need. In a namespace of its own: what is mounted goes with it.
mount_root() {
    mount -t proc proc "$1/proc"
    mount --rbind /dev "$1/dev"
    mount -t tmpfs -o mode=1777 tmpfs "$1/dev/shm"
    mount -t tmpfs -o mode=1777 tmpfs "$1/tmp"
}
