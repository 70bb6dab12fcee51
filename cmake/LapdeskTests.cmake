# Every test is registered the same way: its name starts with its layer
# ("interp.", "cli.", ...) and it carries the layer as a label, so that
# `ctest -R '^interp\.'` and `ctest -L interp` both select one layer. Tests
# that take long in the sanitizer build also carry the label "slow", so that
# `ctest -LE slow` is the quick run.

include(GoogleTest)

# Seconds a single test may take before CTest stops it, far above the slowest
# test of the sanitizer build (about 20 s).
set(LAPDESK_TEST_TIMEOUT 300)
set(LAPDESK_TEST_SUPPORT_DIR ${PROJECT_SOURCE_DIR}/tests/support)

# lapdesk_add_test_executable(<target> LAYER <layer> SOURCES <file>...
#     [LIBS <library>...] [ENVIRONMENT <NAME=value>...] [QT]
#     [SLOW | SLOW_TESTS <Suite.Test>...])
#
# Makes the GoogleTest executable <target> of <layer> and registers each of
# its tests as <layer>.<Suite>.<Test> with the label <layer>. QT runs the
# tests inside one QApplication on the offscreen platform (the shared
# qt_test_main.cpp) instead of GoogleTest's own main. SLOW labels every test
# of the executable "slow"; SLOW_TESTS labels only the tests named (GoogleTest
# names, without the layer), and CTest warns when one of them no longer
# exists. ENVIRONMENT is set for every test. Further include folders and
# definitions are added to <target> as usual.
function(lapdesk_add_test_executable target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "QT;SLOW" "LAYER" "SOURCES;LIBS;ENVIRONMENT;SLOW_TESTS")
  if(arg_UNPARSED_ARGUMENTS OR NOT arg_LAYER OR NOT arg_SOURCES)
    message(FATAL_ERROR "lapdesk_add_test_executable(${target}): needs LAYER and SOURCES, "
      "got unknown arguments '${arg_UNPARSED_ARGUMENTS}'")
  endif()
  if(arg_SLOW AND arg_SLOW_TESTS)
    message(FATAL_ERROR "lapdesk_add_test_executable(${target}): SLOW or SLOW_TESTS, not both")
  endif()

  add_executable(${target} ${arg_SOURCES})
  target_include_directories(${target} PRIVATE ${LAPDESK_TEST_SUPPORT_DIR})
  target_link_libraries(${target} PRIVATE ${arg_LIBS} lapdesk_warnings)
  if(arg_QT)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_sources(${target} PRIVATE ${LAPDESK_TEST_SUPPORT_DIR}/qt_test_main.cpp)
    target_link_libraries(${target} PRIVATE Qt6::Test GTest::gtest)
  else()
    target_link_libraries(${target} PRIVATE GTest::gtest_main)
  endif()

  # The tests are listed when CTest runs rather than after each link, so a
  # sanitizer build does not start every test program at build time, and a
  # program that fails to start fails as a test, not as the build. A test's
  # name in CTest is its GoogleTest name: every table-driven suite names its
  # rows itself (RowName in named_rows.h), so the printed parameter that
  # CTest would otherwise put in place of the row's index is not wanted.
  set(test_list ${target}_TESTS)
  gtest_discover_tests(${target}
    TEST_PREFIX "${arg_LAYER}."
    TEST_LIST ${test_list}
    NO_PRETTY_VALUES
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60)

  # gtest_discover_tests flattens the values of its PROPERTIES into one list,
  # so a value that is itself a list (two labels, two variables) would be
  # split into wrong properties. A second file, which CTest reads after the
  # discovered tests, sets the properties from the list of their names.
  set(labels ${arg_LAYER})
  set(slow_labels ${arg_LAYER} slow)
  if(arg_SLOW)
    set(labels ${slow_labels})
  endif()
  set(script "# Written by lapdesk_add_test_executable: the properties of ${target}'s tests.\n")
  string(APPEND script "if(${test_list})\n"
    "  set_tests_properties(\${${test_list}} PROPERTIES\n"
    "    LABELS [==[${labels}]==] TIMEOUT ${LAPDESK_TEST_TIMEOUT})\n")
  if(arg_ENVIRONMENT)
    string(APPEND script
      "  set_tests_properties(\${${test_list}} PROPERTIES ENVIRONMENT [==[${arg_ENVIRONMENT}]==])\n")
  endif()
  foreach(name IN LISTS arg_SLOW_TESTS)
    string(APPEND script "  list(FIND ${test_list} [==[${arg_LAYER}.${name}]==] found)\n"
      "  if(found EQUAL -1)\n"
      "    message(WARNING [==[${target} has no test ${name} to label slow]==])\n"
      "  else()\n"
      "    set_tests_properties([==[${arg_LAYER}.${name}]==] PROPERTIES LABELS [==[${slow_labels}]==])\n"
      "  endif()\n")
  endforeach()
  # An unbuilt program stands as the one test ${target}_NOT_BUILT, which
  # fails; with the layer's label it fails a run of the layer too.
  string(APPEND script "elseif(NOT EXISTS [==[$<TARGET_FILE:${target}>]==])\n"
    "  set_tests_properties(${target}_NOT_BUILT PROPERTIES LABELS [==[${arg_LAYER}]==])\n"
    "endif()\n")
  set(properties_file ${CMAKE_CURRENT_BINARY_DIR}/${target}_properties.cmake)
  file(GENERATE OUTPUT ${properties_file} CONTENT "${script}")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${properties_file})
endfunction()

# lapdesk_add_script_test(<name> LAYER <layer> SCRIPT <file.cmake>
#     [DEFINITIONS <NAME=value>...] [WORKING_DIRECTORY <folder>]
#     [ENVIRONMENT <NAME=value>...] [SLOW])
#
# Registers the CMake script <file.cmake>, run with -D<NAME=value> for each
# definition, as the test <layer>.<name> with the label <layer> (and "slow"
# with SLOW). Definitions may hold generator expressions such as
# $<TARGET_FILE:lapdesk-cli>.
function(lapdesk_add_script_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "SLOW" "LAYER;SCRIPT;WORKING_DIRECTORY"
    "DEFINITIONS;ENVIRONMENT")
  if(arg_UNPARSED_ARGUMENTS OR NOT arg_LAYER OR NOT arg_SCRIPT)
    message(FATAL_ERROR "lapdesk_add_script_test(${name}): needs LAYER and SCRIPT, "
      "got unknown arguments '${arg_UNPARSED_ARGUMENTS}'")
  endif()
  set(definitions)
  foreach(definition IN LISTS arg_DEFINITIONS)
    list(APPEND definitions "-D${definition}")
  endforeach()
  set(working_directory)
  if(arg_WORKING_DIRECTORY)
    file(MAKE_DIRECTORY ${arg_WORKING_DIRECTORY})
    set(working_directory WORKING_DIRECTORY ${arg_WORKING_DIRECTORY})
  endif()
  set(test ${arg_LAYER}.${name})
  add_test(NAME ${test}
    COMMAND ${CMAKE_COMMAND} ${definitions} -P ${arg_SCRIPT}
    ${working_directory})
  set(labels ${arg_LAYER})
  if(arg_SLOW)
    list(APPEND labels slow)
  endif()
  set_tests_properties(${test} PROPERTIES LABELS "${labels}" TIMEOUT ${LAPDESK_TEST_TIMEOUT})
  if(arg_ENVIRONMENT)
    set_tests_properties(${test} PROPERTIES ENVIRONMENT "${arg_ENVIRONMENT}")
  endif()
endfunction()
