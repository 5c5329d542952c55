#!/bin/sh
# Runs a command in front of a screen of its own: with-display.sh COMMAND [ARGUMENTS...]
set -eu
command -v Xvfb >/dev/null || { echo "Xvfb is not installed" >&2; exit 1; }
number=$(mktemp)
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 &
server=$!
trap 'kill $server 2>/dev/null; wait $server 2>/dev/null; rm -f "$number"' EXIT
tries=0
while [ ! -s "$number" ] && [ $tries -lt 100 ]; do
    sleep 0.1
    tries=$((tries + 1))
done
DISPLAY=:$(cat "$number")
export DISPLAY
"$@"
