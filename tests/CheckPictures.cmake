# Fails when scripts/pictures.sh doesn't draw the pictures that the README shows or, with SAME, when they aren't
# those in the tree. Run as: cmake -D PROJECT_DIR=<the root> -D PROGRAM=<velorix-batch> -D FOLDER=<to draw into>
# [-D SAME=ON] -P CheckPictures.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${PROJECT_DIR}/scripts/pictures.sh ${FOLDER} ${PROGRAM} COMMAND_ERROR_IS_FATAL ANY)

file(READ ${PROJECT_DIR}/README.md readme)
string(REGEX MATCHALL "docs/images/[a-z-]+\\.svg" shown "${readme}")
if(NOT shown)
  message(FATAL_ERROR "the README shows no pictures")
endif()
foreach(picture IN LISTS shown)
  cmake_path(GET picture FILENAME name)
  file(READ ${FOLDER}/${name} drawn)
  if(NOT drawn MATCHES "</svg>")
    message(SEND_ERROR "${name} was not drawn")
  endif()
  file(READ ${PROJECT_DIR}/${picture} kept)
  if(SAME AND NOT drawn STREQUAL kept)
    message(SEND_ERROR "${picture} is not what the program draws; scripts/pictures.sh draws it anew")
  endif()
endforeach()
