#!/bin/sh
# Runs clang-tidy over the native sources of a configured build folder: lint.sh <folder>.
set -eu

cd "$(dirname "$0")/.."
git ls-files -- 'native/*.cpp' | xargs -P "$(nproc)" -n 4 clang-tidy -p "$1" --quiet
