# pensja_engine_library(NAME DEPS a b ...): a static library of all .cpp files of the folder.
function(pensja_engine_library name)
  cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
  file(GLOB srcs CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  # A library without code of its own is a folder too many: remove it rather than keep it empty.
  if(NOT srcs)
    message(FATAL_ERROR "src/${name} has no .cpp file: an empty engine library is not kept")
  endif()
  add_library(${name} STATIC ${srcs})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_DEPS})
endfunction()

# pensja_tests(NAME LIBS a b ...): one test program of all .cpp files in tests/NAME.
function(pensja_tests name)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  file(GLOB srcs CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  if(NOT srcs)
    return()
  endif()
  add_executable(test_${name} ${srcs})
  target_include_directories(test_${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(test_${name} PRIVATE ${ARG_LIBS} testsupport GTest::gtest_main)
  target_compile_definitions(test_${name} PRIVATE
    PENSJA_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data"
    PENSJA_DEMO="${PROJECT_SOURCE_DIR}/demo"
    PENSJA_REFERENCE="${PROJECT_SOURCE_DIR}/tests/reference")
  # Run from the build root: a compiler cache may hand the compiler source paths relative to it,
  # and tests find their golden files beside their source (__FILE__).
  gtest_discover_tests(test_${name}
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
    PROPERTIES ENVIRONMENT "LANG=C.UTF-8;TZ=Europe/Warsaw;QT_QPA_PLATFORM=offscreen"
    DISCOVERY_TIMEOUT 60)
endfunction()
