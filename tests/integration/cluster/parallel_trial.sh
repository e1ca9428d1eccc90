#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Seeds run by GNU parallel are, to the byte, those of one process; a second run leaves them alone.
#   parallel_trial.sh VELQUON-EVENTS SCRIPT
set -euo pipefail

program=$(realpath "$1") script=$(realpath "$2")
parallel --version 2>/dev/null | grep -q '^GNU parallel' ||
  { echo "skipped: GNU parallel is not installed"; exit 77; }

d=$(mktemp -d /tmp/velquon-parallel-XXXXXX)
trap 'rm -rf "$d"' EXIT
mkdir "$d/bin" "$d/runs" "$d/alone"
ln -s "$program" "$d/bin/velquon-events"
export PATH=$d/bin:$PATH HOME=$d
options=(--type lambda --energy 50 --events 200 --format particles)

PARALLEL='-j2' "$script" 1-6 "${options[@]}" --output "$d/runs"
stamps=$(stat -c %Y.%i "$d"/runs/*)
rm "$d/runs/seed-3.csv"
"$script" 1-6 "${options[@]}" --output "$d/runs"
velquon-events "${options[@]}" --seeds 1-6 --output "$d/alone"
diff -r "$d/runs" "$d/alone"
[ "$(grep -c . <<<"$stamps")" -eq 6 ]
[ "$(stat -c %Y.%i "$d"/runs/* | grep -cFxf <(echo "$stamps"))" -ge 5 ]

status=0
"$script" backwards "${options[@]}" 2>"$d/usage" || status=$?
[ "$status" -eq 2 ] && grep -q '^usage: ' "$d/usage"
echo "six seeds by parallel are those of one process"
