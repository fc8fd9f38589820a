# A room is one folder of sources and one target. Its LINKS are the whole list of what it may
# include: what is not linked is not found by the compiler. A test reads the same list from rooms.txt
# and also sees what comes in through another room.
#
#   plinkett_room(oid LINKS base ttbasic Qt5::Gui)
#
# All *.cpp of the folder belong to the room, but a main.cpp, which is a program's (sub-folders are
# rooms of their own). Of the platform files only those of the target system are built.
function(plinkett_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS;EXTRA_SOURCES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  plinkett_drop_other_platform(sources)
  add_library(${name} STATIC ${sources} ${ROOM_EXTRA_SOURCES})
  plinkett_show_headers(${name} ${ROOM_LINKS})
  target_link_libraries(${name} PUBLIC ${ROOM_LINKS} PRIVATE plinkett_warnings)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()

# The include folder of a room, with links to its headers under their paths below src/. So who links
# the room sees its headers, and no other room's.
function(plinkett_show_headers name)
  set(shown ${CMAKE_BINARY_DIR}/rooms/${name})
  file(REMOVE_RECURSE ${shown})
  file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h
       ${CMAKE_CURRENT_SOURCE_DIR}/*.inc)
  foreach(header ${headers})
    file(RELATIVE_PATH path ${CMAKE_SOURCE_DIR}/src ${header})
    get_filename_component(folder ${shown}/${path} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    file(CREATE_LINK ${header} ${shown}/${path} SYMBOLIC COPY_ON_ERROR)
  endforeach()
  target_include_directories(${name} PUBLIC ${shown})
  file(RELATIVE_PATH path ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  set_property(GLOBAL APPEND_STRING PROPERTY PLINKETT_ROOMS "${name} ${path} ${ARGN}\n")
endfunction()

# A line for each room: its name, its folder below src/, what it links.
function(plinkett_write_rooms file)
  get_property(rooms GLOBAL PROPERTY PLINKETT_ROOMS)
  string(REPLACE ";" " " rooms "${rooms}")
  file(WRITE ${file} "${rooms}")
endfunction()

# A program: plinkett_program(plinkett-cli LINKS publish oid). Its sources are the folder's *.cpp.
function(plinkett_program name)
  cmake_parse_arguments(PROGRAM "" "" "LINKS;SOURCES" ${ARGN})
  if(NOT PROGRAM_SOURCES)
    file(GLOB PROGRAM_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  endif()
  add_executable(${name} ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE ${PROGRAM_LINKS} plinkett_warnings)
  plinkett_import_plugins(${name})
endfunction()

# All *.cpp of a test folder as one GoogleTest program; every test is a ctest test of its own.
#   plinkett_tests(oid_tests LINKS oid)
function(plinkett_tests name)
  cmake_parse_arguments(TESTS "" "TIMEOUT" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  plinkett_drop_other_platform(sources)
  plinkett_not_under_wine(${name} left_out)
  set(elsewhere "")
  if(CMAKE_CROSSCOMPILING AND left_out STREQUAL "*")
    set(elsewhere EXCLUDE_FROM_ALL)
  endif()
  add_executable(${name} ${elsewhere} ${sources})
  target_link_libraries(${name} PRIVATE ${TESTS_LINKS} test_helpers GTest::gmock GTest::gtest_main
                                        plinkett_warnings)
  plinkett_test_folder(${name})
  if(NOT TESTS_TIMEOUT)
    set(TESTS_TIMEOUT 300)
  endif()
  if(CMAKE_CROSSCOMPILING)
    plinkett_tests_under_wine(${name} ${TESTS_TIMEOUT})
    return()
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT ${TESTS_TIMEOUT} LABELS ${name}
                                  ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# One Qt Test class with its own main (QTEST_MAIN): plinkett_widget_test(NumEditTest LINKS qtsync)
# builds NumEditTest.cpp and runs it on the offscreen platform.
function(plinkett_widget_test name)
  cmake_parse_arguments(TEST "" "TIMEOUT" "LINKS" ${ARGN})
  add_executable(${name} ${name}.cpp)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE ${TEST_LINKS} test_helpers Qt5::Test plinkett_warnings)
  plinkett_test_folder(${name})
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 300)
  endif()
  if(CMAKE_CROSSCOMPILING)
    plinkett_widget_test_under_wine(${name} ${TEST_TIMEOUT})
    return()
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${TEST_TIMEOUT}
                       ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# Test programs live beside, not among, the programs that authors use; they know where the source
# tree is (cases, golden files) and where the programs under test are.
function(plinkett_test_folder name)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  plinkett_import_plugins(${name})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
  target_compile_definitions(${name} PRIVATE
    PLINKETT_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
    PLINKETT_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
endfunction()

# A static Qt has its plugins in the programs.
function(plinkett_import_plugins name)
  get_target_property(type ${name} TYPE)
  if(WIN32 AND type STREQUAL "EXECUTABLE")
    qt5_import_plugins(${name} INCLUDE Qt5::QOffscreenIntegrationPlugin Qt5::QSvgIconPlugin
                                       Qt5::QSvgPlugin)
  endif()
endfunction()

# Under Wine a program starts slowly, so all tests of one run as one ctest test. What cannot work there
# stands with the reason in tests/not-under-wine.txt.
function(plinkett_tests_under_wine name timeout)
  plinkett_not_under_wine(${name} left_out)
  list(JOIN left_out ":" left_out)
  if(left_out STREQUAL "*")
    return()
  endif()
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1 "--gtest_filter=-${left_out}")
  math(EXPR timeout "${timeout} * 4")
  set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout} LABELS ${name})
endfunction()

function(plinkett_widget_test_under_wine name timeout)
  plinkett_not_under_wine(${name} left_out)
  if(left_out STREQUAL "*")
    return()
  endif()
  list(JOIN left_out "," left_out)
  add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tools/windows/widget-test $<TARGET_FILE:${name}>
                                ${left_out})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout})
endfunction()

# Lines "PROGRAM TEST reason": the tests of this program.
function(plinkett_not_under_wine name result)
  set(list ${CMAKE_SOURCE_DIR}/tests/not-under-wine.txt)
  set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
  file(STRINGS ${list} lines REGEX "^${name} ")
  list(TRANSFORM lines REPLACE "^[^ ]+ +([^ ]+) .*" "\\1")
  set(${result} "${lines}" PARENT_SCOPE)
endfunction()

# A measuring program, built only by name or by the target "bench"; never part of a test run.
function(plinkett_bench name)
  cmake_parse_arguments(BENCH "" "" "LINKS;SOURCES" ${ARGN})
  if(NOT BENCH_SOURCES)
    set(BENCH_SOURCES ${name}.cpp)
  endif()
  add_executable(${name} EXCLUDE_FROM_ALL ${BENCH_SOURCES})
  target_link_libraries(${name} PRIVATE ${BENCH_LINKS} plinkett_warnings)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
  target_compile_definitions(${name} PRIVATE PLINKETT_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  set_target_properties(${name} PROPERTIES AUTOMOC ON
                        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
  add_dependencies(bench ${name})
endfunction()

function(plinkett_drop_other_platform list_name)
  if(WIN32)
    list(FILTER ${list_name} EXCLUDE REGEX "Posix\\.cpp$")
  else()
    list(FILTER ${list_name} EXCLUDE REGEX "Windows\\.cpp$")
  endif()
  set(${list_name} "${${list_name}}" PARENT_SCOPE)
endfunction()
