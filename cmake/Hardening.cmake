# SPDX-License-Identifier: GPL-3.0-or-later
# harden(TARGET): in a release build, a fault of TARGET is hard to turn into an attack: overwritten
# stacks and buffers stop the program, its places in memory cannot be guessed, and its tables of
# addresses cannot be written. Meant for what is shipped; tools and tests go without.
include(CheckCXXCompilerFlag)

option(ODMIENNIK_HARDEN "Release builds are hardened" ON)
set(ODMIENNIK_HARDENED_BUILD OFF)
if(ODMIENNIK_HARDEN AND CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$" AND NOT ODMIENNIK_SANITIZE AND NOT MSVC)
  set(ODMIENNIK_HARDENED_BUILD ON)
endif()

if(ODMIENNIK_HARDENED_BUILD)
  check_cxx_compiler_flag(-fcf-protection=full ODMIENNIK_HAS_CET)
  set(hardened_compile -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
    $<$<BOOL:${ODMIENNIK_HAS_CET}>:-fcf-protection=full>)
  if(WIN32)
    # The linker's own defaults of today, asked for by name.
    set(hardened_link LINKER:--dynamicbase LINKER:--high-entropy-va LINKER:--nxcompat)
  elseif(APPLE)
    set(hardened_link)
  else()
    check_cxx_compiler_flag(-fstack-clash-protection ODMIENNIK_HAS_STACK_CLASH_PROTECTION)
    list(APPEND hardened_compile -fPIE
      $<$<BOOL:${ODMIENNIK_HAS_STACK_CLASH_PROTECTION}>:-fstack-clash-protection>)
    set(hardened_link -pie LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
  endif()
endif()

function(harden TARGET)
  if(NOT ODMIENNIK_HARDENED_BUILD)
    return()
  endif()
  target_compile_options(${TARGET} PRIVATE ${hardened_compile})
  if(WIN32)
    # The guard of the stack is a library of its own there, for whoever links what is hardened.
    target_link_options(${TARGET} PUBLIC -fstack-protector-strong)
  endif()
  get_target_property(type ${TARGET} TYPE)
  if(type STREQUAL EXECUTABLE)
    target_link_options(${TARGET} PRIVATE ${hardened_link})
  endif()
endfunction()
