#!/bin/bash
# usage: many_engines.sh PROGRAM [COUNT]
# Runs many_engines beside a sound server of its own that stops for a while, is killed and comes back, over and over, and
# beside a busy process for each processor, so that threads are interrupted anywhere. COUNT is 100 unless told.
set -u
program=$1
count=${2:-100}
# shellcheck source=tools/display.sh
. "$(dirname "$0")/../../tools/display.sh"
trap stop_all EXIT
trap 'exit 130' INT TERM
export QT_LOGGING_RULES="*.debug=false"
voip_make_box || exit 1
for ((hogs = $(nproc); hogs > 0; hogs--)); do
    voip_start hog bash -c 'while :; do :; done'
done
start_sound || exit 1

"$program" "$count" &
engines=$!
server=${voip_pids[-1]}
turn=0
while kill -0 "$engines" 2>/dev/null; do
    sleep 0.3
    kill -STOP "$server"
    sleep 0.3
    if ((++turn % 4 == 0)); then
        kill -KILL "$server"
        wait "$server" 2>/dev/null
        rm -f "$voip_box/pulse"
        unset 'voip_pids[-1]'
        start_sound || exit 1
        server=${voip_pids[-1]}
    else
        kill -CONT "$server"
    fi
done
wait "$engines"
