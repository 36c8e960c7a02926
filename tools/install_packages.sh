#!/usr/bin/env bash
# tools/install_packages.sh GROUP… : installs the Debian packages of these groups of
# tools/packages.txt that are missing. Says one line and is quick when none is.
set -euo pipefail
list=$(dirname -- "${BASH_SOURCE[0]}")/packages.txt

if (($# == 0)); then
    echo "usage: $0 GROUP…   (groups are those of $list)" >&2
    exit 2
fi
if ! command -v dpkg-query >/dev/null; then
    echo "No Debian package tools here: taking it that what tools/packages.txt names is installed."
    exit 0
fi

wanted=()
for group in "$@"; do
    mapfile -t -O "${#wanted[@]}" wanted < <(sed -n "s/^$group: *//p" "$list" | tr -s ' ' '\n')
done
if ((${#wanted[@]} == 0)); then
    echo "$0: no packages in the groups: $*" >&2
    exit 2
fi

# One question for all; a name that dpkg has never heard of only makes it end with an error.
installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null |
    sed -n 's/ installed$//p' || true)
mapfile -t missing < <(printf '%s\n' "${wanted[@]}" | grep -vxF -e "$installed" || true)
if ((${#missing[@]} == 0)); then
    echo "Packages for $*: all installed."
    exit 0
fi

echo "Installing ${#missing[@]} packages: ${missing[*]}"
as_root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "$0: needs root, or sudo, to install: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get -qq update
"${as_root[@]}" apt-get -qq install -y --no-install-recommends "${missing[@]}"
