# SPDX-License-Identifier: GPL-3.0-or-later
# The options that every target of the project is compiled with: link to project_options.
add_library(project_options INTERFACE)
target_compile_features(project_options INTERFACE cxx_std_23)
target_include_directories(project_options INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})
target_compile_options(project_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  # Designated initializers leave the other members to their defaults on purpose.
  -Wno-missing-field-initializers)
# GCC 12 warns of overlapping copies inside std::string operator+ that do not exist.
target_compile_options(project_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(ODMIENNIK_STRICT)
  target_compile_options(project_options INTERFACE -Werror)
endif()
if(ODMIENNIK_SANITIZE)
  # What the sanitizers add to std::regex and its like, GCC 12 takes for reads of empty memory.
  target_compile_options(project_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_compile_options(project_options INTERFACE -fsanitize=${ODMIENNIK_SANITIZE}
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(project_options INTERFACE -fsanitize=${ODMIENNIK_SANITIZE})
endif()

# compile_headers_once(TARGET): its standard headers come precompiled, and where all is built anyway
# eight files are compiled as one, a third of the work. Only under the sanitizers: the other builds
# show that every file includes what it uses, and GCC 12 takes precompiled std::string for faulty
# where it optimises.
if(ODMIENNIK_SANITIZE)
  add_library(standard_headers STATIC ${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp)
  target_link_libraries(standard_headers PUBLIC project_options)
  target_precompile_headers(standard_headers PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled.h)
endif()
function(compile_headers_once TARGET)
  if(ODMIENNIK_SANITIZE)
    target_precompile_headers(${TARGET} REUSE_FROM standard_headers)
    set_target_properties(${TARGET} PROPERTIES UNITY_BUILD ${ODMIENNIK_UNITY} UNITY_BUILD_BATCH_SIZE 8)
  endif()
endfunction()
