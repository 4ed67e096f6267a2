# SPDX-License-Identifier: GPL-3.0-or-later
# zsm_own_moc(<target> <source>...): runs moc on the sources that include their own "<name>.moc". A call of moc costs a
# tenth of what AUTOMOC does for a target, and there are many test programs.
function(zsm_own_moc target)
  foreach(source ${ARGN})
    get_filename_component(name "${source}" NAME_WE)
    if(IS_ABSOLUTE "${source}") # generated
      continue()
    endif()
    file(STRINGS "${source}" own_moc REGEX "^#include \"${name}\\.moc\"$")
    if(own_moc)
      set(output "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc/${name}.moc")
      file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc")
      add_custom_command(OUTPUT "${output}"
        COMMAND Qt5::moc "${CMAKE_CURRENT_SOURCE_DIR}/${source}" -o "${output}"
        DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${source}" VERBATIM)
      target_sources(${target} PRIVATE "${output}")
      target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc")
    endif()
  endforeach()
endfunction()
