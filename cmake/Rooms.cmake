# SPDX-License-Identifier: GPL-3.0-or-later
# The rooms: the static libraries that the program consists of.
#
# Includes are relative to the root of the source tree ("fs/sizetostr.h"), but no target has the root
# on its include path. Each room exposes its own folder through a symbolic link in the build tree to
# the targets that link it, so an include against the allowed dependencies does not compile.

# zsm_show(<target> <path>): targets that link <target> may include <path> (a folder or one header).
function(zsm_show target path)
  get_target_property(kind ${target} TYPE)
  if(kind STREQUAL INTERFACE_LIBRARY)
    set(scope INTERFACE)
  else()
    set(scope PUBLIC)
  endif()
  set(root "${PROJECT_BINARY_DIR}/rooms/${target}")
  get_filename_component(parent "${root}/${path}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${path}" "${root}/${path}" SYMBOLIC)
  target_include_directories(${target} ${scope} "${root}")
endfunction()

# zsm_room(<target> <folder> <source>...): adds a room as a static library that exposes its folder.
function(zsm_room target folder)
  add_library(${target} STATIC ${ARGN})
  target_link_libraries(${target} PRIVATE zsm_warnings)
  zsm_show(${target} ${folder})
endfunction()
