#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# doctor.sh SOURCE BUILD SCRATCH: one broken installation after the other, and whether the doctor names it.
set -euo pipefail
source=$1 build=$2 scratch=$3
rm -rf "$scratch"
mkdir -p "$scratch"/{bin,home,stage}
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/home LC_ALL=C
unset QT_PLUGIN_PATH LD_LIBRARY_PATH

# A Designer of our own, whose only plugin folder is ours.
cp /usr/lib/qt5/bin/designer "$scratch/bin/"
printf '[Paths]\nPrefix=..\nPlugins=plugins\n' >"$scratch/bin/qt.conf"
installed=$scratch/plugins/designer/libSorrelPlugin.so
DESTDIR=$scratch/stage cmake --install "$build" >/dev/null

failures=0
# expect RESULT TEXT: what the doctor must say now
expect() {
    local output result=0
    output=$("$source/tools/doctor" "$scratch/bin/designer" 2>&1) || result=$?
    if [[ $result != "$1" || $output != *"$2"* ]]; then
        printf 'expected %s and "%s", got %s and:\n%s\n\n' "$1" "$2" "$result" "$output"
        failures=1
    fi
}
install_plugin() {
    rm -rf "$scratch/plugins" "$scratch/home/QtProject"
    mkdir -p "$(dirname "$installed")"
    cp "$build/plugins/designer/libSorrelPlugin.so" "$installed"
}

mkdir -p "$scratch/plugins"
expect 1 "in none of the folders in which it looks ($scratch/plugins/designer"

install_plugin
expect 0 'The plugin would show.'
QT_PLUGIN_PATH=$build/plugins expect 0 'there are 2 copies of the plugin'

mv "$installed" "$scratch/plugins/"
expect 1 "lies in the wrong folder: move $scratch/plugins/libSorrelPlugin.so"

install_plugin
find "$scratch/stage" -name libSorrelPlugin.so -exec cp {} "$installed" \;
if ldd "$installed" | grep 'libSorrel.so.0 => not found' >/dev/null; then
    expect 1 'libraries of the plugin are not found: libSorrel.so.0;'
else
    echo 'the stand-in is installed on this machine; a missing library was not tried'
fi
LD_LIBRARY_PATH=$build/standin expect 0 "the control library as $build/standin/libSorrel.so.0"

install_plugin
sed -i 's/libSorrel\.so\.0/libVexaUi.so.0/g' "$installed"
cp "$build/standin/libSorrel.so.0" "$scratch/libVexaUi.so.0"
LD_LIBRARY_PATH=$scratch expect 0 'the control library under another name or within the plugin'

[[ $("$source/tools/doctor" --help) == usage:* ]] || { echo '--help is unknown'; failures=1; }
result=0
"$source/tools/doctor" --halp >/dev/null 2>&1 || result=$?
((result == 2)) || { echo "an unknown option ends with $result"; failures=1; }
if ((EUID)); then
    install_plugin
    chmod a-r "$installed"
    expect 1 "$installed cannot be read by"
fi

# The record of the build: minor version 16, then major version 6, then a debug build.
install_plugin
LC_ALL=C sed -i 's/\(QTMETADATA !.\x05\)\x0f/\1\x10/' "$installed"
expect 1 'was built with Qt 5.16, the program runs with Qt 5.15'
install_plugin
LC_ALL=C sed -i 's/\(QTMETADATA !.\)\x05/\1\x06/' "$installed"
expect 1 'was built with Qt 6.15'
install_plugin
LC_ALL=C sed -i 's/\(QTMETADATA !.\x05\x0f\)\x00/\1\x01/' "$installed"
expect 0 'is a debug build (build key 5.15d)'
install_plugin
echo 'no library' >"$installed"
expect 1 'is no Qt plugin, or a damaged one'

install_plugin
mkdir -p "$scratch/home/QtProject"
printf '[General]\nDisabledPlugins=%s\n' "$installed" >"$scratch/home/QtProject/Designer.conf"
expect 0 'The plugin would show.'
printf '[PluginManager]\nDisabledPlugins=/other/libOther.so, %s\n' "$installed" >"$scratch/home/QtProject/Designer.conf"
expect 1 "the plugin is switched off: take $installed out of DisabledPlugins in $scratch/home/QtProject/Designer.conf"

# A Qt Creator has settings of its own.
mv "$scratch/bin/designer" "$scratch/bin/qtcreator"
doctor() { "$source/tools/doctor" "$scratch/bin/qtcreator"; }
doctor >"$scratch/output" || { echo "Qt Creator is said to be bad:"; cat "$scratch/output"; failures=1; }
printf '[DesignerPluginManager]\nDisabledPlugins=%s\n' "$installed" >"$scratch/home/QtProject/QtCreator.ini"
if doctor >"$scratch/output" || ! grep -q 'QtCreator.ini' "$scratch/output"; then
    echo "not found: switched off in Qt Creator"
    failures=1
fi
exit $failures
