# SPDX-License-Identifier: GPL-3.0-or-later
# Starts PROGRAM with ARGUMENTS where no screen is and expects EXIT_CODE and a text that matches
# PATTERN: on standard output when all is well, else on standard error.
list(APPEND command ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY
  --unset=QT_QPA_PLATFORM ${PROGRAM} ${ARGUMENTS})
execute_process(COMMAND ${command} RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err
  TIMEOUT 20)
if(EXIT_CODE EQUAL 0)
  set(said "${out}")
  set(silent "${err}")
else()
  set(said "${err}")
  set(silent "${out}")
endif()
if(NOT code STREQUAL EXIT_CODE)
  message(FATAL_ERROR "ended with ${code} instead of ${EXIT_CODE}: ${err}")
elseif(NOT said MATCHES "${PATTERN}")
  message(FATAL_ERROR "said \"${said}\" instead of what matches \"${PATTERN}\"")
elseif(NOT silent STREQUAL "")
  message(FATAL_ERROR "said \"${silent}\" on the other stream")
endif()
