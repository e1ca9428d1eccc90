# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Tests of ctest are the suites of the test programs, one run of the program a suite: to start a program,
# let alone to come up on a screen, costs more than most tests.

# Labels: unit, gui, programs (tests of programs without windows) and sources (of scripts and texts) say what
# is looked at; long is in no plain run of the tests; once is what says the same of any build, or needs one
# without sanitizers; sanitized is what is long and runs in the sanitizers' build alone.

# What holds a program to a time; it runs alone.
set(timed_tests *TenthOfASecond)

# What takes a minute or so begins first: begun last it would run with a processor idle.
set(cost_of_minutes 1000)

# list_test_sources(<sources>...): notes that they are in a program of tests.
function(list_test_sources)
  foreach(source IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH source)
    set_property(GLOBAL APPEND PROPERTY listed_test_sources ${source})
  endforeach()
endfunction()

# suites_of(<result> <program>): the names of the suites in the sources of a program, without "Test" at
# their end.
function(suites_of result program)
  get_target_property(sources ${program} SOURCES)
  list(FILTER sources EXCLUDE REGEX "TARGET_OBJECTS")
  set(suites)
  list_test_sources(${sources})
  foreach(source IN LISTS sources)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(STRINGS ${source} tests REGEX "^TEST(_F|_P)?\\(")
    foreach(test IN LISTS tests)
      string(REGEX REPLACE "^TEST[_FP]*\\(([A-Za-z0-9]+),.*" "\\1" suite "${test}")
      string(REGEX REPLACE "Test$" "" suite "${suite}")
      list(APPEND suites ${suite})
    endforeach()
  endforeach()
  list(REMOVE_DUPLICATES suites)
  set(${result} ${suites} PARENT_SCOPE)
endfunction()

# filter_of(<result> <suite>): what selects the tests of a suite, parameterized ones too.
function(filter_of result suite)
  set(${result} ${suite}.*:${suite}Test.*:*/${suite}.*:*/${suite}Test.* PARENT_SCOPE)
endfunction()

# labels_of(<result> <label> <is long> <is once>): the labels of a test, of which the first is given.
function(labels_of result label is_long is_once)
  set(labels ${label})
  if(is_long)
    list(APPEND labels long)
  endif()
  if(is_once)
    list(APPEND labels once)
  elseif(is_long)
    list(APPEND labels sanitized)
  endif()
  set(${result} ${labels} PARENT_SCOPE)
endfunction()

# add_suites(<prefix> <program> LABEL <label> TIMEOUT <seconds> [EXCEPT <suites>...] [LONG <suites>...]
#            [ONCE <suites>...] [COMMAND <words that the program is started with>...])
# A test for each suite but the excepted ones, and one that the program has no other tests.
function(add_suites prefix program)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "LABEL;TIMEOUT" "EXCEPT;LONG;ONCE;COMMAND")
  suites_of(suites ${program})
  foreach(named IN LISTS arg_EXCEPT arg_LONG arg_ONCE)
    if(NOT named IN_LIST suites)
      message(FATAL_ERROR "${program} has no suite ${named}")
    endif()
  endforeach()
  set(filters)
  foreach(suite IN LISTS suites)
    filter_of(filter ${suite})
    list(APPEND filters ${filter})
    if(suite IN_LIST arg_EXCEPT)
      set_property(GLOBAL APPEND PROPERTY excepted_suites ${suite})
      continue()
    endif()
    add_test(NAME ${prefix}.${suite}
      COMMAND ${arg_COMMAND} $<TARGET_FILE:${program}> --gtest_filter=${filter}-${timed_tests})
    set(is_long FALSE)
    set(is_once FALSE)
    if(suite IN_LIST arg_LONG)
      set(is_long TRUE)
    endif()
    if(suite IN_LIST arg_ONCE)
      set(is_once TRUE)
    endif()
    labels_of(labels ${arg_LABEL} ${is_long} ${is_once})
    set_tests_properties(${prefix}.${suite} PROPERTIES LABELS "${labels}" TIMEOUT ${arg_TIMEOUT})
  endforeach()
  list(JOIN filters ":" known)
  add_test(NAME ${prefix}.every_test_of_${program}_is_in_a_suite
    COMMAND ${arg_COMMAND} ${PROJECT_SOURCE_DIR}/tests/support/no_other_tests
            $<TARGET_FILE:${program}> ${known})
  set_tests_properties(${prefix}.every_test_of_${program}_is_in_a_suite PROPERTIES
    LABELS ${arg_LABEL} TIMEOUT 60)
endfunction()

# add_window_tests(<prefix> <program> [EXCEPT <suites>...] [LONG <suites>...] [ONCE <suites>...]): those of a
# program that shows windows.
function(add_window_tests prefix program)
  add_suites(${prefix} ${program} LABEL gui TIMEOUT 300
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/with-display ${ARGN})
endfunction()

# add_screen_test(<name> <program> FILTER <filter> [WITH <script>] [ENVIRONMENT <variable=value>...]
#                 [LONG] [ONCE])
# Some tests of a program that shows windows, on a screen of their own kind.
function(add_screen_test name program)
  cmake_parse_arguments(PARSE_ARGV 2 arg "LONG;ONCE" "FILTER;WITH" "ENVIRONMENT")
  set_property(GLOBAL APPEND PROPERTY screen_filters ${arg_FILTER})
  labels_of(labels gui ${arg_LONG} ${arg_ONCE})
  if(arg_WITH)
    set(arg_WITH ${PROJECT_SOURCE_DIR}/scripts/${arg_WITH})
  endif()
  add_test(NAME ${name}
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/with-display ${arg_WITH} $<TARGET_FILE:${program}>
            --gtest_filter=${arg_FILTER})
  set_tests_properties(${name} PROPERTIES LABELS "${labels}" TIMEOUT 300
    ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()

# is_on_a_screen(<result> <suite>): whether tests of a suite are run by `add_screen_test`.
function(is_on_a_screen result suite)
  get_property(filters GLOBAL PROPERTY screen_filters)
  string(REPLACE ":" ";" filters "${filters}")
  set(${result} FALSE PARENT_SCOPE)
  foreach(filter IN LISTS filters)
    # The name of the suite alone, as a regular expression.
    string(REGEX REPLACE "\\..*" "" pattern "${filter}")
    string(REGEX REPLACE "^.*/" "" pattern "${pattern}")
    string(REPLACE "*" ".*" pattern "${pattern}")
    if(suite MATCHES "^${pattern}$" OR "${suite}Test" MATCHES "^${pattern}$")
      set(${result} TRUE PARENT_SCOPE)
    endif()
  endforeach()
endfunction()

# expect_no_forgotten_tests(<folder>): stops where a source of tests below the folder is in no program, or a
# suite that is excepted in a program is run on no screen of its own.
function(expect_no_forgotten_tests folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${folder}/*_test.cpp)
  get_property(listed GLOBAL PROPERTY listed_test_sources)
  list(REMOVE_ITEM sources ${listed})
  if(sources)
    message(FATAL_ERROR "In no program of tests: ${sources}")
  endif()
  get_property(excepted GLOBAL PROPERTY excepted_suites)
  foreach(suite IN LISTS excepted)
    is_on_a_screen(is_run ${suite})
    if(NOT is_run)
      message(FATAL_ERROR "The suite ${suite} is excepted, and on no screen of its own")
    endif()
  endforeach()
endfunction()
