#!/bin/sh
# Formats the C++ and C# sources in place; with --check, changes nothing and fails if there is
# something to change.
set -eu

cd "$(dirname "$0")/.."
cpp=$(git ls-files -- 'native/*.cpp' 'native/*.h' 'contract/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h')

# shellcheck disable=SC2086 # one argument a file; no path of ours has a space
if [ "${1:-}" = --check ]; then
    clang-format --dry-run -Werror $cpp
else
    clang-format -i $cpp
fi
