# SPDX-License-Identifier: BSD-3-Clause
# shellcheck shell=bash
# Sourced by the scripts that start programs of Qt 5.

# The path of a program of Qt 5, such as designer or qmake, wherever this system keeps it.
qt5_tool() { # NAME
    local path
    for path in "/usr/lib/qt5/bin/$1" "/usr/lib64/qt5/bin/$1" "$(command -v "$1-qt5")" "$(command -v "$1")"; do
        [[ -x $path ]] && printf '%s' "$path" && return
    done
    printf '%s of Qt 5 is not installed\n' "$1" >&2
    return 1
}
