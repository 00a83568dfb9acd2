# Fails when a source, test or benchmark includes a toolkit header outside the folders that may, or a source
# one of a folder that doesn't lie below its own. Run as: cmake -D PROJECT_DIR=<the root> -P CheckIncludes.cmake
cmake_minimum_required(VERSION 3.25)

# From the ground up. Folders of one line stand side by side and don't include each other.
set(floors
  "base"
  "model"
  "hydraulics"
  "cost"
  "platform"
  "screens"
  "input"
  "results|tools"
  "reports|roughness"
  "analysis"
  "shell"
  "paint"
  "batch|desktop|guide")
set(toolkit_folders src/batch src/desktop src/guide src/paint tests/desktop bench/desktop)

set(level 0)
foreach(floor IN LISTS floors)
  string(REPLACE "|" ";" folders "${floor}")
  foreach(folder IN LISTS folders)
    set(level_of_${folder} ${level})
  endforeach()
  math(EXPR level "${level} + 1")
endforeach()

set(faults 0)
macro(fault text)
  message(SEND_ERROR "${file}: ${text}")
  math(EXPR faults "${faults} + 1")
endmacro()

set(globs "")
foreach(part src tests bench)
  list(APPEND globs ${PROJECT_DIR}/${part}/*.h ${PROJECT_DIR}/${part}/*.cpp)
endforeach()
file(GLOB_RECURSE files RELATIVE ${PROJECT_DIR} ${globs})
if(NOT files)
  message(FATAL_ERROR "no sources in ${PROJECT_DIR}")
endif()

foreach(file IN LISTS files)
  string(REGEX MATCH "^([^/]+)/([^/]+)" folder "${file}")
  set(part ${CMAKE_MATCH_1})
  set(own ${CMAKE_MATCH_2})
  if(part STREQUAL src AND NOT DEFINED level_of_${own})
    fault("the folder ${own} has no place among the floors")
    continue()
  endif()

  file(STRINGS ${PROJECT_DIR}/${file} includes REGEX "^[ \t]*#[ \t]*include")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE ".*include[ \t]*[<\"]([^>\"]+)[>\"].*" "\\1" header "${include}")
    if(header MATCHES "^(Q[A-Z]|Qt[A-Z0-9]|q[a-z0-9_]+\\.h$)" AND NOT folder IN_LIST toolkit_folders)
      fault("includes the toolkit header ${header}")
    elseif(part STREQUAL src AND include MATCHES "include[ \t]*\"")
      string(REGEX MATCH "^[^/]+" other "${header}")
      if(NOT DEFINED level_of_${other})
        fault("\"${header}\" doesn't begin with a folder of src")
      elseif(NOT other STREQUAL own AND NOT level_of_${other} LESS level_of_${own})
        fault("includes ${header}, which doesn't lie below ${own}")
      endif()
    endif()
  endforeach()
endforeach()

if(faults GREATER 0)
  message(FATAL_ERROR "${faults} forbidden includes")
endif()
