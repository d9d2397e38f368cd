# Test programs: one a folder, linking that folder's modules and no more.
find_package(GTest REQUIRED)
include(GoogleTest)

# Every test is one of ctest's own, but under a sanitizer, where starting a process costs more than most tests do: there
# a program is one (docs/decisions/0013-one-test-a-process.md).
#
# kestra_test(folder SOURCES ... USES modules... [LIBRARIES ...])
function(kestra_test folder)
  cmake_parse_arguments(T "" "" "SOURCES;USES;LIBRARIES" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  set(target kestra_${name}_test)
  add_executable(${target} ${T_SOURCES} ${CMAKE_SOURCE_DIR}/tests/support/test_main.cpp)
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${target} PRIVATE
    KESTRA_SOURCE_DIR="${CMAKE_SOURCE_DIR}" KESTRA_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  target_link_libraries(${target} PRIVATE kestra_options GTest::gtest GTest::gmock)
  foreach(used IN LISTS T_USES)
    target_link_libraries(${target} PRIVATE kestra::${used})
  endforeach()
  if(T_LIBRARIES)
    target_link_libraries(${target} PRIVATE ${T_LIBRARIES})
  endif()
  if(KESTRA_SANITIZE)
    add_test(NAME ${folder} COMMAND ${target} --gtest_brief=1)
  else()
    gtest_discover_tests(${target} NO_PRETTY_VALUES TEST_PREFIX "${folder}/" DISCOVERY_MODE PRE_TEST)
  endif()
endfunction()
