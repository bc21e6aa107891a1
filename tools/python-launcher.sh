#!/bin/sh
# The project's own interpreter: that of the release build, or of the preset in KORVAN_PRESET.
exec "$(dirname "$(readlink -f "$0")")/${KORVAN_PRESET:-release}/python" "$@"
