#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Checks scripts/fuzz, scripts/lint and scripts/install-packages.
#   check_scripts.sh CHECK SOURCE
set -euo pipefail

check=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/scripts" "$work/programs" "$work/build/fuzz/tests/fuzz" "$work/build/ci"
cp "$source/scripts/fuzz" "$source/scripts/lint" "$source/scripts/install-packages" "$work/scripts/"
cd "$work"
export PATH=$work/programs:$PATH

failures=0
fail() {
  echo "FAILED: $*" >&2
  failures=$((failures + 1))
}
# run EXPECTED_STATUS COMMAND...: what it prints is then in $printed.
run() {
  local status=0
  printed=$("${@:2}" 2>&1) || status=$?
  [ "$status" -eq "$1" ] || fail "${*:2} ends with $status instead of $1: $printed"
}
printed_has() {
  grep -qF -- "$1" <<<"$printed" || fail "'$1' is not printed: $printed"
}
program() { # NAME: from standard input
  { echo '#!/usr/bin/env bash'; cat; } >"$1"
  chmod +x "$1"
}

# A fuzzer that learns one input a run, as libFuzzer keeps them: in the first folder.
fuzzers() {
  local name
  for name in fuzz_event_file fuzz_event_layout fuzz_pc_layout fuzz_measurement_file; do
    program build/fuzz/tests/fuzz/$name <<'END'
for word in "$@"; do
  case $word in
    -*) ;;
    *) mktemp "$word/XXXXXX" >/dev/null; break ;;
  esac
done
echo 'stat::number_of_executed_units: 42'
END
  done
}

check_fuzz_keeps_what_it_learns() {
  fuzzers
  run 0 scripts/fuzz 1
  printed_has 'fuzz_event_layout: 42 executions, a corpus of 1 inputs'
  run 0 scripts/fuzz 1
  printed_has 'fuzz_event_layout: 42 executions, a corpus of 2 inputs'
  [ -z "$(find build/fuzz/findings -type f)" ] || fail "there are findings"
}

check_fuzz_names_a_finding() {
  fuzzers
  program build/fuzz/tests/fuzz/fuzz_pc_layout <<'END'
for word in "$@"; do
  case $word in
    -artifact_prefix=*) prefix=${word#*=} ;;
  esac
done
echo 'does not hold: an event has 1 to 5000 points' >&2
echo bytes >"${prefix}crash-1"
echo "artifact_prefix='$prefix'; Test unit written to ${prefix}crash-1" >&2
exit 77
END
  run 1 scripts/fuzz 1
  printed_has 'does not hold: an event has 1 to 5000 points'
  printed_has 'fuzz_pc_layout: failed'
  printed_has ' build/fuzz/findings/fuzz_pc_layout/crash-1'
  printed_has 'fuzz_event_file: 42 executions'
  [ "$(cat build/fuzz/findings/fuzz_pc_layout/crash-1)" = bytes ] || fail "the finding is not kept"
}

check_fuzz_misses_a_program() {
  fuzzers
  rm build/fuzz/tests/fuzz/fuzz_event_layout
  run 1 scripts/fuzz 1
  printed_has 'fuzz_event_layout is missing'
}

# A tree as the ci build compiles it: two sources of a folder as one, a third by itself, and what a tool
# has made.
lint_tree() {
  mkdir -p engine app build/ci/engine/Unity build/ci/app
  cp "$source/.clang-tidy" .
  printf 'namespace {\nint helper() {\n  return 1;\n}\n}  // namespace\nint one();\nint one() {\n  return helper();\n}\n' >engine/one.cpp
  printf '#include "engine/two.h"\n\nint two() {\n  return 2;\n}\n' >engine/two.cpp
  printf '#pragma once\n\nint two();\n' >engine/two.h
  printf 'int main() {\n  return 0;\n}\n' >app/main.cpp
  printf 'int made = (int)1.0;\n' >build/ci/app/made.cpp
  printf '#include "%s"\n\n' "$PWD/engine/one.cpp" "$PWD/engine/two.cpp" \
    >build/ci/engine/Unity/unity_0_cxx.cxx
  {
    echo '['
    local file separator=
    for file in build/ci/engine/Unity/unity_0_cxx.cxx app/main.cpp build/ci/app/made.cpp; do
      printf '%s{"directory": "%s", "file": "%s", "command": "ccache c++ -include /x/cmake_pch.hxx -Wlogical-op -Wshadow=local -I%s -std=c++20 -o y.o -c %s"}' \
        "$separator" "$PWD/build/ci" "$PWD/$file" "$PWD" "$PWD/$file"
      separator=$',\n'
    done
    echo ']'
  } >build/ci/compile_commands.json
}

check_lint_passes() {
  lint_tree
  run 0 scripts/lint
  [ "$printed" = 'Running clang-tidy on 3 sources' ] || fail "more is printed: $printed"
}

check_lint_finds_an_error_in_each_source() {
  local file
  for file in engine/one.cpp engine/two.cpp app/main.cpp; do
    lint_tree
    sed -i 's/return \(.*\);/return (int)(\1 + 0.0);/' "$file"
    run 1 scripts/lint
    printed_has "/$file:"
    printed_has '[google-readability-casting'
    printed_has 'scripts/lint: not all pass of '
    if grep -q 'generated' <<<"$printed"; then fail "counts are printed"; fi
  done
}

check_lint_finds_an_error_in_a_header() {
  lint_tree
  echo 'inline int half(double all) { return (int)(all / 2.0); }' >>engine/two.h
  run 1 scripts/lint
  printed_has '/engine/two.h:'
}

check_lint_looks_at_named_sources_alone() {
  lint_tree
  sed -i 's/return 2;/return (int)2.0;/' engine/two.cpp
  run 0 scripts/lint engine/one.cpp app/main.cpp
  run 1 scripts/lint engine/two.cpp
  printed_has 'scripts/lint: not all pass of engine/two.cpp'
}

check_lint_looks_in_halves_at_what_does_not_compile_as_one() {
  lint_tree
  # The same name in two sources, where no one looks for it.
  echo 'struct Twice { int first = 1; };' | tee -a engine/one.cpp >>app/main.cpp
  run 0 scripts/lint
  sed -i 's/return 0;/return (int)0.0;/' app/main.cpp
  run 1 scripts/lint
  printed_has 'scripts/lint: not all pass of engine/two.cpp, app/main.cpp'
  sed -i 's/return 1;/return (int)1.0;/' engine/one.cpp
  run 1 scripts/lint
  printed_has 'scripts/lint: not all pass of engine/two.cpp, app/main.cpp'
  printed_has 'scripts/lint: not all pass of engine/one.cpp'
  if grep -q Twice <<<"$printed"; then fail "the clash of sources is printed: $printed"; fi
}

# with_helper FILE LINE: the file keeps the line to itself, and does not pass.
with_helper() {
  printf 'namespace {\n%s\n}  // namespace\nint call_of_%s() { return helper((int)2.0); }\n' "$2" \
    "$(basename "$1" .cpp)" >>"$1"
}

check_lint_looks_apart_at_sources_with_a_name_in_common() {
  lint_tree
  with_helper engine/two.cpp 'int helper(int number) { return number; }'
  with_helper app/main.cpp 'int helper(int number) { return number; }'
  run 1 scripts/lint
  # two.cpp overloads one.cpp's helper and may stand beside it; main.cpp's is the same function and may not.
  printed_has 'scripts/lint: not all pass of engine/one.cpp, engine/two.cpp'
  printed_has 'scripts/lint: not all pass of app/main.cpp'
}

check_lint_misses_its_database() {
  lint_tree
  rm build/ci/compile_commands.json
  run 2 scripts/lint engine/one.cpp
  printed_has 'compile_commands.json is missing'
}

check_lint_misses_a_source() {
  lint_tree
  run 2 scripts/lint engine/none.cpp
  printed_has 'there is no file engine/none.cpp'
  touch engine/new.cpp
  run 2 scripts/lint engine/new.cpp
  printed_has 'engine/new.cpp is no source of the ci build'
}

# No package is there, and none is installed: what would be is printed.
stand_in_for_packages() {
  printf '# [running]\ng++\n# [testing]\nlibgtest-dev\n' >packages.txt
  printf '#!/bin/sh\nexit 1\n' >programs/dpkg-query
  printf '#!/bin/sh\nexec "$@"\n' >programs/sudo
  printf '#!/bin/sh\n' >programs/apt-get
  chmod +x programs/*
}

check_what_tests_need_is_not_installed_for_running() {
  stand_in_for_packages
  run 0 scripts/install-packages running
  [ "$printed" = 'Installing g++' ] || fail "is printed: $printed"
  run 0 scripts/install-packages
  [ "$printed" = 'Installing g++ libgtest-dev' ] || fail "is printed: $printed"
  run 2 scripts/install-packages walking
  printed_has 'usage: '
}

"check_$check"
[ "$failures" -eq 0 ]
