# precompiled(TARGET [TEST]): compiles the target with headers that were read once for the whole build. Only builds with
# ATTENDANCE_PRECOMPILE do so: the others show when a file lacks an include of its own.
function(precompiled target)
  cmake_parse_arguments(ARG "TEST" "" "" ${ARGN})
  if(NOT ATTENDANCE_PRECOMPILE)
    return()
  endif()
  set(name precompiled_headers)
  set(test_headers)
  if(ARG_TEST)
    set(name precompiled_test_headers)
    set(test_headers <gtest/gtest.h>)
  endif()
  if(NOT TARGET ${name})
    file(WRITE ${CMAKE_BINARY_DIR}/${name}.cpp "")
    add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE flags Qt6::Core $<$<BOOL:${ARG_TEST}>:GTest::gtest>)
    # Without the definitions that linking would bring: what has them may use the result, the other way round it may not.
    target_include_directories(${name} SYSTEM PRIVATE
      $<TARGET_PROPERTY:Qt6::Gui,INTERFACE_INCLUDE_DIRECTORIES>
      $<TARGET_PROPERTY:Qt6::Widgets,INTERFACE_INCLUDE_DIRECTORIES>)
    target_precompile_headers(${name} PRIVATE <algorithm> <functional> <map> <memory> <optional> <variant> <vector>
      <QApplication> <QBuffer> <QDateTime> <QDialog> <QDir> <QFileInfo> <QHash> <QImage> <QPainter> <QVariant>
      ${test_headers})
  endif()
  target_precompile_headers(${target} REUSE_FROM ${name})
endfunction()
