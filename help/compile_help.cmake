# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DBUILD_HELP=… -DCHMCMD=… -DCHMLS=… -DHELP=folder -DDEPARTURES=file -DPROJECT=folder -DRESULT=file
# -P compile_help.cmake: makes the help's sources and the list of departures into PROJECT and compiles
# PROJECT/Werbolin.hhp into RESULT. The same pages give the same bytes.
function(run)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${PROJECT}
    RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} failed (${status}):\n${said}")
  endif()
endfunction()

# chmcmd leaves an empty file or none behind a fault (exit 217: a page of the project is missing), so an
# old file goes first, and the build stops with what chmcmd said.
set(compiled ${PROJECT}/Werbolin.chm)
function(compile)
  file(REMOVE ${compiled})
  execute_process(
    COMMAND ${CHMCMD} --no-html-scan Werbolin.hhp
    WORKING_DIRECTORY ${PROJECT}
    RESULT_VARIABLE status
    OUTPUT_VARIABLE said
    ERROR_VARIABLE said)
  set(size 0)
  if(EXISTS ${compiled})
    file(SIZE ${compiled} size)
  endif()
  if(NOT status EQUAL 0 OR size EQUAL 0)
    message(FATAL_ERROR "chmcmd failed (exit ${status}, ${size} bytes):\n${said}")
  endif()
endfunction()

file(REMOVE ${RESULT})
file(MAKE_DIRECTORY ${PROJECT})
configure_file(${DEPARTURES} ${PROJECT}/departures.tsv COPYONLY)
run(${BUILD_HELP} project ${HELP} ${PROJECT})
compile()
# Where the strings stand is known once they are compiled; contexts name their pages by it.
run(${CHMLS} extract ${compiled} /\#STRINGS ${PROJECT}/strings)
run(${BUILD_HELP} contexts ${PROJECT}/strings ${PROJECT})
compile()
run(${BUILD_HELP} finish ${compiled} ${RESULT})
