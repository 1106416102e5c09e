# Plays veridraw-script as a user of the command line does and checks its exit
# status and every line that it writes.
#
#   cmake -DRUNNER=<veridraw-script> -DCASES=<this folder> -DWORK=<empty folder>
#         -DCASE=<name> -P check_runner.cmake
#
# The scenarios are named relative to CASES, which is the runner's working
# directory. TMPDIR points into WORK, so that the temporary directories of the
# scenarios can be seen to be gone afterwards.

foreach(variable RUNNER CASES WORK CASE)
  if(NOT DEFINED ${variable})
    message(FATAL_ERROR "${variable} is not set")
  endif()
endforeach()

set(temporary "${WORK}/${CASE}")
file(REMOVE_RECURSE "${temporary}")
file(MAKE_DIRECTORY "${temporary}")
set(ENV{TMPDIR} "${temporary}")

# Runs the runner with the arguments that follow; INPUT names a file for its
# standard input.
function(play)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "INPUT" "")
  set(input)
  if(arg_INPUT)
    set(input INPUT_FILE "${CASES}/${arg_INPUT}")
  endif()
  execute_process(
    COMMAND "${RUNNER}" ${arg_UNPARSED_ARGUMENTS}
    WORKING_DIRECTORY "${CASES}"
    ${input}
    RESULT_VARIABLE status
    OUTPUT_VARIABLE output
    ERROR_VARIABLE errors)
  set(status "${status}" PARENT_SCOPE)
  set(output "${output}" PARENT_SCOPE)
  set(errors "${errors}" PARENT_SCOPE)
endfunction()

function(expect_status wanted)
  if(NOT status STREQUAL wanted)
    message(FATAL_ERROR "expected exit status ${wanted}, found ${status}\n"
                        "output:\n${output}\nerrors:\n${errors}")
  endif()
endfunction()

# The whole of standard output, line by line.
function(expect_output)
  string(JOIN "\n" wanted ${ARGN})
  if(ARGC GREATER 0)
    string(APPEND wanted "\n")
  endif()
  if(NOT output STREQUAL wanted)
    message(FATAL_ERROR "expected the output:\n${wanted}\nfound:\n${output}\nerrors:\n${errors}")
  endif()
endfunction()

function(expect_no_temporary_directory_left)
  file(GLOB left "${temporary}/*")
  if(left)
    message(FATAL_ERROR "temporary directories left behind: ${left}")
  endif()
endfunction()

if(CASE STREQUAL "each_file_passes")
  play(passes.scn writes_a_file.scn finds_no_file.scn)
  expect_status(0)
  expect_output("form Veridraw7a" "PASS passes.scn" "PASS writes_a_file.scn"
                "PASS finds_no_file.scn" "3 passed, 0 failed")
  expect_no_temporary_directory_left()

elseif(CASE STREQUAL "a_failing_file")
  play(passes.scn fails.scn writes_a_file.scn)
  expect_status(1)
  expect_output("form Veridraw7a" "PASS passes.scn"
                "FAIL fails.scn:4: expected form Veridraw7d, found Veridraw7a"
                "PASS writes_a_file.scn" "2 passed, 1 failed")
  expect_no_temporary_directory_left()

elseif(CASE STREQUAL "a_missing_file")
  play(no_such_scenario.scn passes.scn)
  expect_status(1)
  expect_output("FAIL no_such_scenario.scn:0: can't read the scenario file" "form Veridraw7a"
                "PASS passes.scn" "1 passed, 1 failed")

elseif(CASE STREQUAL "an_unknown_option")
  play(--quiet passes.scn)
  expect_status(2)
  expect_output()
  if(NOT errors MATCHES "usage: veridraw-script \\[--verbose\\] FILE")
    message(FATAL_ERROR "expected the usage on standard error, found:\n${errors}")
  endif()

elseif(CASE STREQUAL "standard_input")
  play(INPUT explores.scn)
  expect_status(0)
  expect_output("form Veridraw7a" "focus BtnStart" "form Veridraw7d" "Label9.Caption \" NOTE\""
                "nofile DrawNumber" "PASS -" "1 passed, 0 failed")
  expect_no_temporary_directory_left()

elseif(CASE STREQUAL "standard_input_failing")
  play(INPUT fails.scn)
  expect_status(1)
  expect_output("FAIL -:4: expected form Veridraw7d, found Veridraw7a" "0 passed, 1 failed")

elseif(CASE STREQUAL "verbose")
  play(--verbose shows_dialogs_and_fatal_errors.scn passes.scn)
  expect_status(0)
  expect_output(
    "  dialog: inputbox \"Enter the Draw Number\" \"Draw Number\" \"\" 3280 2750 -> \"\""
    "focus BtnEnterLottoDrawNumbers"
    "  fatal: Run-time error '53': File not found"
    "PASS shows_dialogs_and_fatal_errors.scn"
    "form Veridraw7a"
    "PASS passes.scn"
    "2 passed, 0 failed")

elseif(CASE STREQUAL "prints_without_verbose")
  play(shows_dialogs_and_fatal_errors.scn)
  expect_status(0)
  expect_output("focus BtnEnterLottoDrawNumbers" "PASS shows_dialogs_and_fatal_errors.scn"
                "1 passed, 0 failed")

elseif(CASE STREQUAL "a_reply_left_unused")
  play(leaves_a_reply.scn passes.scn)
  expect_status(1)
  expect_output(
    "FAIL leaves_a_reply.scn:5: reply 6 queued at line 3 was never taken by a dialog"
    "form Veridraw7a" "PASS passes.scn" "1 passed, 1 failed")
  expect_no_temporary_directory_left()

elseif(CASE STREQUAL "a_reply_left_unused_on_standard_input")
  play(INPUT leaves_a_reply.scn)
  expect_status(1)
  expect_output("FAIL -:5: reply 6 queued at line 3 was never taken by a dialog"
                "0 passed, 1 failed")

elseif(CASE STREQUAL "start_after_the_end")
  play(starts_again.scn)
  expect_status(0)
  expect_output("form Veridraw7a" "PASS starts_again.scn" "1 passed, 0 failed")
  expect_no_temporary_directory_left()

else()
  message(FATAL_ERROR "no case ${CASE}")
endif()
