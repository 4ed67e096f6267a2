# SPDX-License-Identifier: GPL-3.0-or-later
# Rooms: the static libraries of the program.
#
# Includes are written from the root of the tree ("fs/sizetostr.h"), but no target has the root
# itself on its include path. Each room shows its own folder through a link in the build tree, and
# only those who link the room see it, so an include that breaks the directions does not compile.

# zsm_show(<target> <path>): those who link <target> may include <path> (a folder or one header).
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

# zsm_room(<target> <folder> <source>...): a room as a static library that shows its folder.
function(zsm_room target folder)
  add_library(${target} STATIC ${ARGN})
  target_link_libraries(${target} PRIVATE zsm_warnings)
  zsm_show(${target} ${folder})
endfunction()
