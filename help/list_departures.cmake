# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DODMIEN=… -DVERBS=file -DRESULT=file -P list_departures.cmake: writes into RESULT what ODMIEN
# tells of the forms that depart from today's norm, of its whole index and then of the verbs in VERBS. No
# verb of anybody's own is among them: the folder has none.
get_filename_component(folder ${RESULT} DIRECTORY)
file(MAKE_DIRECTORY ${folder}/no_verbs)

# list_departures(OUTPUT VERB...): with the header; without a verb of the whole index.
function(list_departures OUTPUT)
  execute_process(
    COMMAND ${ODMIEN} --departures --folder ${folder}/no_verbs ${ARGN}
    RESULT_VARIABLE status
    OUTPUT_VARIABLE listed
    ERROR_VARIABLE complaints)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ODMIEN} --departures ended with ${status}:\n${complaints}")
  endif()
  set(${OUTPUT} "${listed}" PARENT_SCOPE)
endfunction()

file(STRINGS ${VERBS} verbs ENCODING UTF-8 REGEX "^[^#]")
list_departures(of_index)
list_departures(of_verbs ${verbs})
string(FIND "${of_verbs}" "\n" header_end)
math(EXPR first_row "${header_end} + 1")
string(SUBSTRING "${of_verbs}" ${first_row} -1 of_verbs)
file(WRITE ${RESULT} "${of_index}${of_verbs}")
