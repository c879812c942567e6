# room(NAME [QOBJECTS] [DIR folder] [FILES pattern...] [EXCEPT pattern...] [ROOMS room...] [LIBS library...])
#
# Makes the static library room_NAME out of the files of the folder and of those below it. A folder that holds two
# halves (one that needs only Qt Core, one with windows) calls room() twice and tells them apart with EXCEPT and FILES.
# A file added to a folder needs no list to be edited. QOBJECTS: the room has classes with Q_OBJECT.
function(room name)
  cmake_parse_arguments(ARG "QOBJECTS" "DIR" "FILES;EXCEPT;ROOMS;LIBS" ${ARGN})
  set(dir ${CMAKE_CURRENT_SOURCE_DIR}/${ARG_DIR})
  if(NOT ARG_FILES)
    set(ARG_FILES *.h *.cpp)
  endif()
  list(TRANSFORM ARG_FILES PREPEND ${dir}/)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS ${ARG_FILES})
  foreach(pattern IN LISTS ARG_EXCEPT)
    file(GLOB_RECURSE left_out CONFIGURE_DEPENDS ${dir}/${pattern})
    list(REMOVE_ITEM files ${left_out})
  endforeach()

  if(NOT files)
    file(WRITE ${CMAKE_BINARY_DIR}/empty.cpp "")
    set(files ${CMAKE_BINARY_DIR}/empty.cpp)
  endif()
  add_library(room_${name} STATIC ${files})
  set_target_properties(room_${name} PROPERTIES LINKER_LANGUAGE CXX AUTOMOC ${ARG_QOBJECTS})
  target_include_directories(room_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/src/platform)
  list(TRANSFORM ARG_ROOMS PREPEND room_)
  target_link_libraries(room_${name} PUBLIC flags Qt6::Core ${ARG_ROOMS} ${ARG_LIBS})
  precompiled(room_${name})
endfunction()

# program(NAME [ROOMS room...] [LIBS library...]): an executable made of the folder's main.cpp alone.
function(program name)
  cmake_parse_arguments(ARG "" "" "ROOMS;LIBS" ${ARGN})
  list(TRANSFORM ARG_ROOMS PREPEND room_)
  add_executable(${name} main.cpp)
  target_compile_definitions(${name} PRIVATE ATTENDANCE_VERSION="${PROJECT_VERSION}")
  target_link_libraries(${name} PRIVATE ${ARG_ROOMS} ${ARG_LIBS})
endfunction()

# room_test(NAME [ROOMS room...] [LIBS library...]): test_NAME out of the folder tests/NAME and those below it, one
# CTest entry a test case, run without a display and with a time-out each. It links the room NAME and what it names.
function(room_test name)
  cmake_parse_arguments(ARG "" "MAIN" "ROOMS;LIBS" ${ARGN})
  file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.h
       ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  if(NOT files)
    return()
  endif()
  list(TRANSFORM ARG_ROOMS PREPEND room_)
  add_executable(test_${name} ${files})
  target_include_directories(test_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(test_${name} PRIVATE TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
                                                  PROGRAM_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  target_link_libraries(test_${name} PRIVATE ${ARG_ROOMS} ${ARG_LIBS} test_main_${ARG_MAIN} GTest::gtest)
  precompiled(test_${name} TEST)
  gtest_discover_tests(test_${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 120 LABELS ${name})
endfunction()
