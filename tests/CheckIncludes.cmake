# Fails when a source includes a toolkit header outside the folders that may, or a folder that doesn't lie
# below its own. Run as: cmake -D SOURCE_DIR=<the folder src> -P CheckIncludes.cmake
cmake_minimum_required(VERSION 3.25)

# From the ground up. Folders of one line stand side by side and don't include each other.
set(floors
  "base"
  "platform"
  "screens"
  "project"
  "hydraulics"
  "cost"
  "results|reports|roughness|tools"
  "analysis"
  "shell"
  "batch|desktop")
set(toolkit_folders batch desktop)

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

file(GLOB_RECURSE files RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/*.h ${SOURCE_DIR}/*.cpp)
if(NOT files)
  message(FATAL_ERROR "no sources in ${SOURCE_DIR}")
endif()

foreach(file IN LISTS files)
  string(REGEX MATCH "^[^/]+" own "${file}")
  if(NOT DEFINED level_of_${own})
    fault("the folder ${own} has no place among the floors")
    continue()
  endif()

  file(STRINGS ${SOURCE_DIR}/${file} includes REGEX "^[ \t]*#[ \t]*include")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE ".*include[ \t]*[<\"]([^>\"]+)[>\"].*" "\\1" header "${include}")
    if(header MATCHES "^(Q[A-Z]|Qt[A-Z0-9]|q[a-z0-9_]+\\.h$)" AND NOT own IN_LIST toolkit_folders)
      fault("includes the toolkit header ${header}")
    elseif(include MATCHES "include[ \t]*\"")
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
