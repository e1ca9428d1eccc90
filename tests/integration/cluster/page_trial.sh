#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# What docs/many-events.md says: its script prints the numbers of the page, its programs read the files.
#   page_trial.sh VELQUON-EVENTS SOURCE-FOLDER
set -euo pipefail

program=$(realpath "$1") source=$(realpath "$2")
page=$source/docs/many-events.md script=$source/docs/many-events.py
python=/usr/bin/python3
"$python" -c 'import numpy, pandas' 2>/dev/null ||
  { echo "skipped: Debian's NumPy and pandas are not installed"; exit 77; }

d=$(mktemp -d /tmp/velquon-page-XXXXXX)
trap 'rm -rf "$d"' EXIT
die() { echo "FAILED: $*" >&2; exit 1; }

# blocks LANGUAGE: the page's code in a language, one block behind the other.
blocks() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/{/^\`\`\`/d; p}" "$page"; }

"$python" "$script" "$program" >"$d/printed"
[ -s "$d/printed" ] || die "the script prints nothing"
while read -r line; do
  grep -qxF "    $line" "$page" || die "the page does not say: $line"
done <"$d/printed"

cd "$d"
options=(--type lambda --energy 50 --field 5 --seed 3 --events 300)
"$program" "${options[@]}" >events.csv
for format in npy particles hepmc3; do
  "$program" "${options[@]}" --format $format --output .
done
blocks python >read.py
"$python" read.py >read.txt || die "the page's Python"
grep -qx "$(($(wc -l <events.csv) - 1)) points of .* events" read.txt || die "the array has other rows"

blocks cpp >read.cpp
g++ -O1 -o read read.cpp -lHepMC3
[ "$(./read events.hepmc3)" = \
  "$(awk -F, '$3 == 11 { n++ } END { print n + 0 }' particles.csv) electrons in 300 events" ] ||
  die "the C++ program counts otherwise"
echo "the page is right"
