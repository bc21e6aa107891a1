#!/bin/sh
# Makes sure of the type checker that judges the stubs: a pinned npm package, in build/npm.
set -eu

exec "$(dirname "$0")/ensure-npm-package.sh" pyright 1.1.414
