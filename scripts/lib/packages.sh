# Installs Debian packages by the groups of packaging/packages.txt. To be sourced.

# install_packages GROUP...: installs what is missing of these groups, and nothing where all is there.
# Never removes a package: where one of these would take the place of another, that is the user's to decide. Starts none
# of the servers that tests start themselves.
install_packages() {
    local list groups release wanted missing log as_root=()
    list=$(dirname "${BASH_SOURCE[0]}")/../../packaging/packages.txt
    groups=" $* "
    release=$(. /etc/os-release && echo "${VERSION_ID:-}")
    # What is neither of the two releases is most likely newer than both.
    [ "$release" = 12 ] || release=13
    wanted=$(awk -v groups="$groups" -v release="$release" \
        '!/^#/ && index(groups, " " $1 " ") && (NF == 2 || $3 == release) { print $2 }' "$list" | sort -u)
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "error: this is no Debian system. It needs what these Debian $release packages hold:" $wanted >&2
        return 1
    fi
    missing=$(comm -23 <(echo "$wanted") <(
        dpkg-query -W -f='${Package} ${db:Status-Status}\n' $wanted 2>/dev/null | awk '$2 == "installed" { print $1 }' | sort -u))
    if [ -z "$missing" ]; then
        return 0
    fi
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "error: packages are missing, and there is neither root nor sudo. As root:" >&2
            echo "  apt-get install --no-install-recommends" $missing >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "installing:" $missing >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2 || true
    log=$(mktemp)
    if ! "${as_root[@]}" bash "$(dirname "${BASH_SOURCE[0]}")/install" $missing >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        echo "error: these packages could not be installed:" $missing >&2
        return 1
    fi
    rm -f "$log"
}
