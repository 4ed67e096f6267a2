# SPDX-License-Identifier: GPL-3.0-or-later
# Precompiled Qt headers, for tests only: the program's sources must name what they include.

# ccache keeps no results of compilations that use precompiled headers, unless it is told to be sloppy.
set(precompile ON)
if(CMAKE_CXX_COMPILER_LAUNCHER)
  set(precompile OFF)
endif()
option(ZSM_PRECOMPILE "Precompile the Qt headers of the tests; off by default under a compiler launcher" ${precompile})

# zsm_precompiled_headers(<target> <set>): precompiled headers for a target that links exactly these libraries of Qt,
# since its macros have to be the same:
#   core     Core and Test
#   network  Core, Gui, Network and Test
#   widgets  Core, Gui, Widgets and Test
#   none     nothing is precompiled
function(zsm_precompiled_headers target set)
  if(ZSM_PRECOMPILE AND NOT set STREQUAL "none")
    target_precompile_headers(${target} REUSE_FROM precompiled_${set})
  endif()
endfunction()

# zsm_add_precompiled_headers(<set> LIBS <library of Qt>... HEADERS <header>...)
function(zsm_add_precompiled_headers set)
  cmake_parse_arguments(arg "" "" "LIBS;HEADERS" ${ARGN})
  set(source "${CMAKE_CURRENT_BINARY_DIR}/precompiled_${set}.cpp")
  file(GENERATE OUTPUT "${source}" CONTENT "// Only the headers matter.\n")
  add_library(precompiled_${set} OBJECT EXCLUDE_FROM_ALL "${source}")
  set_target_properties(precompiled_${set} PROPERTIES AUTOMOC OFF)
  target_link_libraries(precompiled_${set} PRIVATE zsm_warnings ${arg_LIBS})
  target_precompile_headers(precompiled_${set} PRIVATE ${arg_HEADERS})
endfunction()
