# SPDX-License-Identifier: BSD-3-Clause
# shellcheck shell=bash
# Sourced by the scripts that photograph the real Qt Designer: a virtual display with a window manager, a settings
# folder of its own, and a Designer that loads the plugin of one folder alone.

# shellcheck source=tools/qt5tool.sh
source "$(dirname "${BASH_SOURCE[0]}")/qt5tool.sh"

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

cleanup() {
    if ((${#pids[@]})); then
        kill "${pids[@]}" 2>/dev/null || true
    fi
    wait 2>/dev/null || true
    rm -rf "$scratch"
}

# Sets DISPLAY and scratch, a folder that goes with the script.
start_session() { # PLUGINS [WIDTHxHEIGHT]
    local plugins=$1 screen=${2-1400x1000} system_plugins kind display_fd number
    scratch=$(mktemp -d)
    pids=()
    trap cleanup EXIT

    # A copy of the program with its own qt.conf finds our plugin and Qt's platform plugins, and no other.
    system_plugins=$("$(qt5_tool qmake)" -query QT_INSTALL_PLUGINS)
    mkdir -p "$scratch"/{bin,plugins,config/QtProject,runtime}
    chmod 700 "$scratch/runtime"
    cp "$(qt5_tool designer)" "$scratch/bin/"
    printf '[Paths]\nPlugins=%s\n' "$scratch/plugins" >"$scratch/bin/qt.conf"
    ln -s "$plugins/designer" "$scratch/plugins/designer"
    for kind in platforms imageformats iconengines xcbglintegrations platforminputcontexts; do
        [[ -d $system_plugins/$kind ]] && ln -s "$system_plugins/$kind" "$scratch/plugins/$kind"
    done

    # No welcome dialog, and in the widget box Qt's own groups closed, so that the groups of the plugin are in sight.
    cat >"$scratch/config/QtProject/Designer.conf" <<'END'
[newFormDialog]
ShowOnStartup=false
[WidgetBox]
Closed%20categories=Layouts, Spacers, Buttons, Item Views (Model-Based), Item Widgets (Item-Based), Containers, Input Widgets, Display Widgets, Scratchpad
END
    export XDG_CONFIG_HOME=$scratch/config HOME=$scratch XDG_RUNTIME_DIR=$scratch/runtime LC_ALL=C.UTF-8
    unset QT_PLUGIN_PATH WAYLAND_DISPLAY QT_QPA_PLATFORM

    exec {display_fd}<> <(:)
    Xvfb -displayfd "$display_fd" -screen 0 "${screen}x24" -nolisten tcp >"$scratch/xvfb.log" 2>&1 &
    pids+=($!)
    read -r -t 20 -u "$display_fd" number || fail "the virtual display did not start: $(tail -n 1 "$scratch/xvfb.log")"
    export DISPLAY=:$number

    openbox >/dev/null 2>&1 &
    pids+=($!)
}

# Sets designer, its process.
start_designer() { # [FORM.ui ...]
    "$scratch/bin/designer" "$@" >"$scratch/designer.log" 2>&1 &
    designer=$!
    pids+=("$designer")
    timeout 60 xdotool search --sync --onlyvisible --name 'Qt Designer' >/dev/null 2>&1 ||
        fail "Designer showed no window within a minute: $(tail -n 3 "$scratch/designer.log")"
}

# Waits until two pictures of the screen in a row are the same; the last one is $scratch/shot.png.
settle() {
    local previous='' now
    for _ in $(seq 40); do
        kill -0 "$designer" 2>/dev/null || fail "Designer ended: $(tail -n 3 "$scratch/designer.log")"
        import -window root "$scratch/shot.png"
        now=$(md5sum <"$scratch/shot.png")
        [[ $now == "$previous" ]] && break
        previous=$now
        sleep 0.25
    done
}
