# The portable sources and their tests, compiled for a 32-bit process. Needs g++-multilib and the GoogleTest
# sources; sums of doubles use the SSE unit, as 64-bit processes do.
include(CheckCXXSourceCompiles)
set(CMAKE_REQUIRED_FLAGS -m32)
set(CMAKE_REQUIRED_LINK_OPTIONS -m32)
check_cxx_source_compiles("#include <string>\nint main() { return std::string().size() != 0; }" GRADIX_HAS_M32)
unset(CMAKE_REQUIRED_FLAGS)
unset(CMAKE_REQUIRED_LINK_OPTIONS)

find_path(GTEST_SOURCE src/gtest-all.cc PATHS /usr/src/googletest/googletest)
if(NOT GRADIX_HAS_M32 OR NOT GTEST_SOURCE)
  message(STATUS "No 32-bit compiler or no GoogleTest sources: the 32-bit tests are left out")
  return()
endif()

add_library(gtest32 STATIC EXCLUDE_FROM_ALL ${GTEST_SOURCE}/src/gtest-all.cc ${GTEST_SOURCE}/src/gtest_main.cc)
target_include_directories(gtest32 PRIVATE ${GTEST_SOURCE})
target_compile_options(gtest32 PRIVATE -m32 -fno-sanitize=all)

add_executable(unit_tests_32 ${unit_tests} ${unit_tests_c})
target_include_directories(unit_tests_32 PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/src
                                                 ${PROJECT_SOURCE_DIR}/include)
target_compile_definitions(unit_tests_32 PRIVATE GOLDEN="${CMAKE_CURRENT_SOURCE_DIR}/golden")
target_compile_options(unit_tests_32 PRIVATE -m32 -msse2 -mfpmath=sse)
target_link_options(unit_tests_32 PRIVATE -m32)
target_link_libraries(unit_tests_32 PRIVATE gradix::options gxportable gxentry gtest32)
gradix_unite(unit_tests_32)
gtest_discover_tests(unit_tests_32 TEST_PREFIX "32-bit." ${test_environment})
