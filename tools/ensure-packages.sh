#!/bin/sh
# Makes sure of the Debian packages of the groups that are named (see debian-packages.txt):
# installs what is missing when run as root, else prints the line that does and fails.
set -eu

list=$(dirname "$0")/debian-packages.txt

if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian: install the likes of these yourself, see $list" >&2
    exit 0
fi

wanted=
for group in "$@"; do
    wanted="$wanted $(sed -n "s/^$group //p" "$list" | tr '\n' ' ')"
done

# One query for all: a second `make` must not pay for this.
installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' 2>/dev/null | sed -n 's/^installed //p')
missing=
for package in $wanted; do
    echo "$installed" | grep -qxF "$package" || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

if [ "$(id -u)" -ne 0 ]; then
    echo "Debian packages are missing. This line installs them:" >&2
    echo "    sudo apt-get install --no-install-recommends$missing" >&2
    exit 1
fi

echo "Installing:$missing"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
# shellcheck disable=SC2086 # one argument a package
apt-get install -y -qq --no-install-recommends $missing >/dev/null
