# SPDX-License-Identifier: GPL-3.0-or-later
# windows_resources(PROGRAM DESCRIPTION): PROGRAM.exe has the icon, the version and the manifest in it.
if(WIN32)
  enable_language(RC)
endif()
function(windows_resources PROGRAM DESCRIPTION)
  if(NOT WIN32)
    return()
  endif()
  set(windows ${PROJECT_SOURCE_DIR}/packaging/windows)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${PROGRAM}.rc)
  configure_file(${windows}/program.rc.in ${script} @ONLY)
  # The script is UTF-8.
  set_source_files_properties(${script} PROPERTIES COMPILE_OPTIONS -c65001
    OBJECT_DEPENDS "${windows}/odmiennik.ico;${windows}/program.manifest")
  target_sources(${PROGRAM} PRIVATE ${script})
  target_include_directories(${PROGRAM} PRIVATE ${windows})
endfunction()
