# SPDX-License-Identifier: GPL-3.0-or-later
# compile_data(KIND OUTPUT SOURCE...): has data/ sources turned into C++ (${PROJECT_BINARY_DIR}/data/OUTPUT).
function(compile_data KIND OUTPUT)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/data/ OUTPUT_VARIABLE sources)
  set(output ${PROJECT_BINARY_DIR}/data/${OUTPUT})
  add_custom_command(
    OUTPUT ${output}
    COMMAND compile_data ${KIND} ${output} ${sources}
    DEPENDS compile_data ${sources}
    COMMENT "Compiling data into ${OUTPUT}"
    VERBATIM)
endfunction()
