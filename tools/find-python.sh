#!/bin/sh
# Prints the CPython 3.12 to build for: $PYTHON, then the path, then pyenv. Fails if there is none
# with headers.
is_wanted() {
    [ -n "$1" ] && "$1" - <<'EOF' >/dev/null 2>&1
import os, platform, sys, sysconfig
headers = os.path.join(sysconfig.get_path("include"), "Python.h")
ok = sys.version_info[:2] == (3, 12) and platform.python_implementation() == "CPython"
sys.exit(0 if ok and os.path.exists(headers) else 1)
EOF
}

resolve() {
    "$1" -c 'import sys; print(sys.executable)'
}

if [ -n "$PYTHON" ]; then
    is_wanted "$PYTHON" && { resolve "$PYTHON"; exit 0; }
    echo "PYTHON=$PYTHON is not a CPython 3.12 with headers" >&2
    exit 1
fi
for candidate in python3.12 python3 python; do
    found=$(command -v "$candidate") && is_wanted "$found" && { resolve "$found"; exit 0; }
done
for candidate in "${PYENV_ROOT:-$HOME/.pyenv}"/versions/3.12.*/bin/python3.12; do
    [ -x "$candidate" ] && is_wanted "$candidate" && { resolve "$candidate"; exit 0; }
done
echo "No CPython 3.12 with headers was found, on the path or in pyenv. Name one: make PYTHON=/path/to/python3.12;" \
    "or install one: pyenv install 3.12" >&2
exit 1
