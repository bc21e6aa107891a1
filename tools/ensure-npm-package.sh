#!/bin/sh
# Makes sure of an npm package of one version in build/npm: ensure-npm-package.sh <name> <version>
set -eu

name=$1
version=$2
folder=$(dirname "$0")/../build/npm
installed=$folder/node_modules/$name/package.json

if grep -qs "\"version\": \"$version\"" "$installed"; then
    exit 0
fi
if ! command -v npm >/dev/null; then
    if [ "$(id -u)" -ne 0 ] || ! command -v apt-get >/dev/null; then
        echo "npm is missing; this line installs it: sudo apt-get install --no-install-recommends nodejs npm" >&2
        exit 1
    fi
    echo "Installing: nodejs npm"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends nodejs npm >/dev/null
fi
mkdir -p "$folder"
npm install --prefix "$folder" --no-audit --no-fund --silent "$name@$version"
