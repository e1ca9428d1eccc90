#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Checks scripts/fuzz and scripts/lint.
#   check_scripts.sh CHECK SOURCE
set -euo pipefail

check=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/scripts" "$work/programs" "$work/build/fuzz/tests/fuzz" "$work/build/ci"
cp "$source/scripts/fuzz" "$source/scripts/lint" "$work/scripts/"
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

# A tree of two sources, and a clang-tidy that notes what it is asked to look at and finds the word
# "wrong". Two sources in one file with "apart" in them do not compile.
lint_tree() {
  mkdir -p engine
  echo 'int one();' >engine/one.cpp
  echo 'int two();' >engine/two.cpp
  {
    echo '['
    printf '{"directory": "%s", "command": "c++ -include /x/cmake_pch.hxx -Ix -o y -c %s", "file": "%s"}' \
      "$PWD/build/ci" "$PWD/engine/one.cpp" "$PWD/engine/one.cpp"
    printf ',\n{"directory": "%s", "command": "c++ -Ix -Iz -o y -c %s", "file": "%s"}]\n' \
      "$PWD/build/ci" "$PWD/engine/two.cpp" "$PWD/engine/two.cpp"
  } >build/ci/compile_commands.json
  program programs/clang-tidy <<'END'
for word in "$@"; do
  case $word in
    *.cpp) source=$word ;;
    *cmake_pch*) echo 'a precompiled header'; exit 1 ;;
  esac
done
echo "$source" >>looked-at
echo '2 warnings generated.' >&2
mapfile -t read < <(sed -n 's/#include "\(.*\)"/\1/p' "$source")
if [ ${#read[@]} -gt 1 ] && grep -q apart "${read[@]}"; then
  echo 'error: another definition [clang-diagnostic-error]'
  exit 1
fi
! grep -H wrong "$source" "${read[@]}"
END
}

check_lint_shows_errors() {
  lint_tree
  echo 'wrong' >engine/two.cpp
  run 1 scripts/lint engine/one.cpp engine/two.cpp
  printed_has 'engine/two.cpp:wrong'
  printed_has 'engine/two.cpp: not all pass'
  if grep -q 'generated' <<<"$printed"; then fail "counts are printed"; fi
}

check_lint_passes() {
  lint_tree
  run 0 scripts/lint
  printed_has 'Running clang-tidy on 2 sources in 1 groups'
  [ "$(wc -l <looked-at)" -eq 1 ] || fail "the sources are not looked at as one"
}

check_lint_keeps_apart_what_shares_a_name() {
  lint_tree
  for name in one two; do
    printf 'namespace {\n\nint helper() {\n  return 1;\n}\n\n}  // namespace\n' >engine/$name.cpp
  done
  run 0 scripts/lint
  printed_has 'Running clang-tidy on 2 sources in 2 groups'
}

check_lint_looks_one_by_one_at_what_does_not_compile_together() {
  lint_tree
  echo 'apart' >engine/one.cpp
  run 0 scripts/lint
  [ "$(wc -l <looked-at)" -eq 3 ] || fail "not looked at one by one: $(cat looked-at)"
  echo 'apart wrong' >engine/one.cpp
  run 1 scripts/lint
  printed_has 'engine/one.cpp does not pass'
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
  printed_has 'engine/new.cpp is no source of build/ci/compile_commands.json'
}

"check_$check"
[ "$failures" -eq 0 ]
