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
  for name in fuzz_event_file fuzz_event_layout fuzz_pc_layout; do
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

# A tree of two sources that include one header.
lint_tree() {
  mkdir -p engine
  touch .clang-tidy engine/one.cpp engine/two.cpp engine/both.h
  local name
  for name in one two; do
    printf '{\n  "directory": "%s",\n  "command": "c++ -include /x/cmake_pch.hxx -c",\n  "file": "%s"\n},\n' \
      "$PWD/build/ci" "$PWD/engine/$name.cpp"
  done >build/ci/compile_commands.json
  program programs/ninja <<'END'
for name in one two; do
  printf '%s.o: #deps 2\n    ../../engine/%s.cpp\n    ../../engine/both.h\n\n' $name $name
done
END
  program programs/clang-tidy <<'END'
[ "$1" = --version ] && { echo 'version 1'; exit; }
echo '2 warnings generated.' >&2
for word in "$@"; do
  [ "$previous" != -p ] || folder=$word
  previous=$word
done
! grep cmake_pch "$folder/compile_commands.json" >&2 || exit 1
! grep -H wrong "$word" >&2
END
}

check_lint_shows_errors() {
  lint_tree
  echo 'wrong' >engine/two.cpp
  run 1 scripts/lint engine/one.cpp engine/two.cpp
  printed_has 'engine/two.cpp:wrong'
  printed_has 'engine/two.cpp does not pass'
  if grep -q 'generated' <<<"$printed"; then fail "counts are printed"; fi
  run 1 scripts/lint engine/one.cpp engine/two.cpp
  printed_has 'engine/two.cpp does not pass'
}

check_lint_leaves_out_what_passed() {
  lint_tree
  local sources=(engine/one.cpp engine/two.cpp)
  run 0 scripts/lint "${sources[@]}"
  printed_has 'on 2 of 2 sources'
  run 0 scripts/lint "${sources[@]}"
  printed_has 'on 0 of 2 sources'
  sleep 0.02
  touch engine/one.cpp
  run 0 scripts/lint "${sources[@]}"
  printed_has 'on 1 of 2 sources'
  sleep 0.02
  touch engine/both.h
  run 0 scripts/lint "${sources[@]}"
  printed_has 'on 2 of 2 sources'
  echo '# another rule' >>.clang-tidy
  run 0 scripts/lint "${sources[@]}"
  printed_has 'on 2 of 2 sources'
  sed -i 's/"command": "c++ /"command": "c++ -O2 /' build/ci/compile_commands.json
  run 0 scripts/lint "${sources[@]}"
  printed_has 'on 2 of 2 sources'
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
