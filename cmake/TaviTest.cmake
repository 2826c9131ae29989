tavi_precompiled(tavi_test_headers LINKS Qt6::Core GTest::gmock tl::expected
  HEADERS <QByteArray> <QDateTime> <QFile> <QObject> <QPointer> <QString> <QStringList> <QTemporaryDir> <QVariant>
    <algorithm> <filesystem> <functional> <memory> <optional> <vector> <tl/expected.hpp> <gmock/gmock.h>)

# Seconds after which a test hangs. The sanitizers slow down what decodes and encodes.
set(TAVI_TEST_TIMEOUT 60)
if(TAVI_SANITIZERS MATCHES "thread")
  set(TAVI_TEST_TIMEOUT 240)
elseif(TAVI_SANITIZERS)
  set(TAVI_TEST_TIMEOUT 120)
endif()

# tavi_test(NAME SOURCES file... LINKS target... [LABELS label...] [ENVIRONMENT NAME=value...] [PROCESSES count])
#
# Declares one GoogleTest executable and its CTest entry. tests/support/main.cpp gives it a QCoreApplication. LABELS choose
# what runs under which sanitizer: unit, contract, integration, ui, tsan. Its tests share one process, or as many as it
# has tests where they would meet in what a library keeps for the whole process.
function(tavi_test name)
  cmake_parse_arguments(arg "" "PROCESSES" "SOURCES;LINKS;LABELS;ENVIRONMENT" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${arg_LINKS} tavi_test_support GTest::gmock tavi_warnings)
  target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
  tavi_use_precompiled(${name} tavi_test_headers)
  if(NOT arg_PROCESSES)
    set(arg_PROCESSES 1)
  endif()
  math(EXPR last "${arg_PROCESSES} - 1")
  foreach(shard RANGE ${last})
    string(REPLACE "_0" "" test ${name}_${shard})
    add_test(NAME ${test} COMMAND ${name})
    set_tests_properties(${test} PROPERTIES LABELS "${arg_LABELS}" TIMEOUT ${TAVI_TEST_TIMEOUT}
      ENVIRONMENT "${arg_ENVIRONMENT};GTEST_TOTAL_SHARDS=${arg_PROCESSES};GTEST_SHARD_INDEX=${shard}")
    # Sound is played in real time: two servers at once leave each other gaps.
    if("tavi_test_pulse" IN_LIST arg_LINKS)
      set_tests_properties(${test} PROPERTIES RUN_SERIAL TRUE)
    endif()
  endforeach()
endfunction()
