# Fails when an installation lacks a part, or its batch program can't draw. Run as: cmake -D BUILD_DIR=<the build>
# -D FOLDER=<to install into> -D GUIDE=<the guide's file below the program folder> -P CheckInstall.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${FOLDER} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
foreach(part bin/velorix share/velorix/Velorix.hlp "share/velorix/${GUIDE}")
  if(NOT EXISTS "${FOLDER}/${part}")
    message(SEND_ERROR "${part} was not installed")
  endif()
endforeach()
file(GLOB projects ${FOLDER}/share/velorix/Projects/*.vlx)
execute_process(COMMAND ${FOLDER}/bin/velorix-batch report ${projects} --pdf ${FOLDER}/reports/ COMMAND_ERROR_IS_FATAL ANY)
