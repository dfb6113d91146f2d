# A screen and a sound card of one's own, to be sourced by bash scripts. Everything lives in one private folder and ends
# with stop_all, which the caller puts into its EXIT trap. Nothing here touches a running desktop or its sound server.
#
#   start_display [WIDTHxHEIGHT] [bare]   X server in memory, window manager, the cursor in the far corner, and a compositor
#                                         unless it is bare; exports DISPLAY
#   start_sound                    sound server with a null sink and a null source; exports PULSE_SERVER
#   stop_all                       ends what was started, by process id, and removes the folder
#   end_detached SIGNAL PROGRAMS TEMPORARY   ends what the programs of a folder have started detached, which is known by the
#                                            program's folder and by its temporary folder or one below it

voip_pids=()
voip_box=

# voip_start LOG PROGRAM ARGS...: starts a child in the background, in a home of its own, and remembers its process id.
voip_start() {
    local log=$1
    shift
    HOME=$voip_box XDG_RUNTIME_DIR=$voip_box/run XDG_CONFIG_HOME=$voip_box/config XDG_CACHE_HOME=$voip_box/cache \
        XDG_DATA_HOME=$voip_box/data DBUS_SESSION_BUS_ADDRESS=disabled: \
        "$@" >"$voip_box/$log.log" 2>&1 </dev/null &
    voip_pids+=($!)
}

# voip_wait_for SECONDS COMMAND...: polls the command until it succeeds or the time is over.
voip_wait_for() {
    local tries=$(($1 * 20))
    shift
    while ! "$@" >/dev/null 2>&1; do
        ((tries-- > 0)) || return 1
        sleep 0.05
    done
}

voip_make_box() {
    [ -n "$voip_box" ] && return
    voip_box=$(mktemp -d "${TMPDIR:-/tmp}/vd.XXXXXX") || return 1
    mkdir -m 700 "$voip_box/run"
}

start_display() {
    local size=${1:-1600x1000} kind=${2:-}
    voip_make_box || return 1
    # -displayfd picks a free number and writes it once the server takes clients. Without -noreset the server throws
    # everybody out when its first client goes before the second comes. -r: a key that is let go late, on a machine that
    # is busy, was pressed once.
    voip_start xserver sh -c 'exec Xvfb -displayfd 3 -screen 0 "$1x24" -r -noreset -nolisten tcp 3>"$2"' sh "$size" "$voip_box/display"
    if ! voip_wait_for 20 test -s "$voip_box/display"; then
        echo "The X server did not start:" >&2
        cat "$voip_box/xserver.log" >&2
        return 1
    fi
    DISPLAY=:$(cat "$voip_box/display")
    export DISPLAY
    unset WAYLAND_DISPLAY XAUTHORITY
    voip_start openbox openbox --sm-disable
    [ "$kind" = bare ] || voip_start picom picom --backend xrender --config /dev/null
    # A window that comes before its manager is placed and shown a second time.
    if ! voip_wait_for 20 xdotool get_num_desktops ||
        { [ "$kind" != bare ] && ! voip_wait_for 20 xdotool search --name '^picom$'; }; then
        echo "The window manager or the compositor did not start:" >&2
        cat "$voip_box"/openbox.log "$voip_box"/picom.log >&2
        return 1
    fi
    # Not in the middle, where the server puts it and windows open under it.
    xdotool mousemove "$((${size%x*} - 1))" "$((${size#*x} - 1))"
}

start_sound() {
    voip_make_box || return 1
    # Works as root too: no system mode, no daemon, a socket that only this folder's owner reaches.
    voip_start pulse env PULSE_RUNTIME_PATH="$voip_box/run" PULSE_STATE_PATH="$voip_box/run" \
        pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no --disable-shm=yes \
        -L "module-native-protocol-unix socket=$voip_box/pulse auth-anonymous=1" \
        -L "module-null-sink sink_name=null_sink" -L "module-null-source source_name=null_source"
    # The socket stands a moment before the server listens at it, and a client that is refused then goes without sound.
    if ! voip_wait_for 20 python3 -c 'import socket, sys; socket.socket(socket.AF_UNIX).connect(sys.argv[1])' "$voip_box/pulse"; then
        echo "The sound server did not start:" >&2
        cat "$voip_box/pulse.log" >&2
        return 1
    fi
    export PULSE_SERVER=unix:$voip_box/pulse
}

end_detached() {
    local exe
    for exe in /proc/[0-9]*/exe; do
        [[ $(readlink "$exe" 2>/dev/null) == "$2/"* ]] || continue
        grep -qz "^TMPDIR=$3" "${exe%exe}environ" 2>/dev/null || continue
        exe=${exe#/proc/}
        kill -s "$1" "${exe%/exe}" 2>/dev/null
    done
}

stop_all() {
    local i
    # Last started, first ended: the X server goes after its clients.
    for ((i = ${#voip_pids[@]} - 1; i >= 0; i--)); do
        kill "${voip_pids[i]}" 2>/dev/null && wait "${voip_pids[i]}" 2>/dev/null
    done
    voip_pids=()
    [ -n "$voip_box" ] && rm -rf "$voip_box"
    voip_box=
}
