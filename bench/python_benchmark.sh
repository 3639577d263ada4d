#!/bin/sh
# Runs python_calculate.py against the Python module of the build directory given
# (default: build), with the interpreter the module was built for. numexpr, a peer of
# the benchmark only, is installed here when missing (Debian: python3-numexpr), as root
# or through sudo; without it, its runs are skipped.
set -e
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-build}
python=${PYTHON:-/usr/bin/python3}
if ! "$python" -c "import numexpr" 2>/dev/null && command -v apt-get >/dev/null; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo=sudo
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends \
        python3-numexpr >/dev/null 2>&1 || echo "note: python3-numexpr could not be installed."
fi
PYTHONPATH="$build/python" exec "$python" "$here/python_calculate.py"
