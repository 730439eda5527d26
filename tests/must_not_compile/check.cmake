# SPDX-License-Identifier: GPL-3.0-or-later
# Compiles SOURCE; fails unless the outcome is the one wanted (REASON empty: it compiles).
execute_process(
  COMMAND ${COMPILER} ${FLAGS} -I${INCLUDE} -I${DATA} ${SOURCE}
  RESULT_VARIABLE result
  OUTPUT_VARIABLE output
  ERROR_VARIABLE output)
if(REASON STREQUAL "")
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${SOURCE} must compile, but does not:\n${output}")
  endif()
elseif(result EQUAL 0)
  message(FATAL_ERROR "${SOURCE} compiles, but must not")
elseif(NOT output MATCHES "error" OR NOT output MATCHES "${REASON}")
  message(FATAL_ERROR "${SOURCE} fails for another reason than ${REASON}:\n${output}")
endif()
