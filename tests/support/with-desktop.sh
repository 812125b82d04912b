#!/bin/sh
# Runs a command on a desktop of its own: an X server without a screen, a session bus and a window manager.
# Everything ends with the command.
if [ -z "$ONDRILO_PRIVATE_DESKTOP" ]; then
    export ONDRILO_PRIVATE_DESKTOP=1
    unset WAYLAND_DISPLAY XDG_SESSION_TYPE QT_QPA_PLATFORM
    # What is set on the desktop of a test must not be kept in the settings of whoever runs it.
    export GSETTINGS_BACKEND=memory
    exec xvfb-run -a -s "-screen 0 1280x900x24" dbus-run-session -- "$0" "$@"
fi
openbox >/dev/null 2>&1 &
manager=$!
for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    sleep 0.05
done
"$@"
status=$?
kill "$manager"
exit "$status"
