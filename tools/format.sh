#!/bin/sh
# Formats the C++ and C# sources in place; with --check, changes nothing and fails if there is
# something to change.
set -eu

cd "$(dirname "$0")/.."
check=
dry_run=-i
if [ "${1:-}" = --check ]; then
    check=--verify-no-changes
    dry_run="--dry-run -Werror"
fi

# shellcheck disable=SC2046,SC2086 # one argument a file; no path of ours has a space
clang-format $dry_run $(git ls-files -- 'native/*.cpp' 'native/*.h' 'contract/*.h' \
    'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h')
if [ -n "$check" ]; then
    tools/line-lengths.py
fi
for folder in managed tests/managed tests/fixtures bench/managed; do
    dotnet format whitespace --folder "$folder" $check
done
