# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DCHMCMD=… -DPROJECT=folder -DRESULT=file -P compile_help.cmake: compiles PROJECT/Werbolin.hhp
# into RESULT. chmcmd leaves an empty file or none behind a fault (exit 217: a page of the project is
# missing), so an old RESULT goes first, and the build stops with what chmcmd said.
set(compiled ${PROJECT}/Werbolin.chm)
file(REMOVE ${compiled} ${RESULT})
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
get_filename_component(folder ${RESULT} DIRECTORY)
file(COPY ${compiled} DESTINATION ${folder})
