# How every target of the project is made: one set of options, told once.

# Options of all our targets. The arithmetic must give the same digits on every machine, so no contraction
# of a * b + c into one rounding; and the status flags tell failures, so the compiler may neither drop nor
# invent an operation that raises one.
function(velorix_options target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                           -Woverloaded-virtual -Wundef -Wmissing-declarations
                                           -ffp-contract=off)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(${target} PRIVATE -ffp-exception-behavior=maytrap)
  else()
    # -Wrestrict of GCC 12 raises false alarms inside std::string.
    target_compile_options(${target} PRIVATE -ftrapping-math -Wlogical-op -Wduplicated-cond -Wno-restrict)
  endif()
  if(VELORIX_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(VELORIX_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${VELORIX_SANITIZE} -fno-sanitize-recover=all
                                             -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=${VELORIX_SANITIZE})
  endif()
endfunction()

# velorix_library(base SOURCES Single.cpp ... USES other folders)
# One static library a folder. A folder it doesn't use isn't linked, so a forbidden call fails to build.
function(velorix_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  add_library(velorix_${name} STATIC ${ARG_SOURCES})
  velorix_options(velorix_${name})
  target_include_directories(velorix_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  foreach(folder IN LISTS ARG_USES)
    target_link_libraries(velorix_${name} PUBLIC velorix_${folder})
  endforeach()
endfunction()

# velorix_tests(base SingleTest.cpp ...)
# The tests of a folder: one executable, every test known to ctest.
function(velorix_tests name)
  cmake_parse_arguments(ARG "" "" "USES" ${ARGN})
  add_executable(${name}_tests ${ARG_UNPARSED_ARGUMENTS})
  velorix_options(${name}_tests)
  target_include_directories(${name}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name}_tests PRIVATE velorix_${name} GTest::gmock GTest::gtest_main)
  foreach(folder IN LISTS ARG_USES)
    target_link_libraries(${name}_tests PRIVATE velorix_${folder})
  endforeach()
  gtest_discover_tests(${name}_tests DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 600)
endfunction()
