# SPDX-License-Identifier: GPL-3.0-or-later
option(ZSM_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

if(ZSM_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)

  # There are many programs to link; the usual linker takes twice the time of the others.
  include(CheckCXXSourceCompiles)
  foreach(linker lld gold)
    set(CMAKE_REQUIRED_LINK_OPTIONS -fsanitize=address,undefined -fuse-ld=${linker})
    check_cxx_source_compiles("int main() { return 0; }" ZSM_LINKS_WITH_${linker})
    unset(CMAKE_REQUIRED_LINK_OPTIONS)
    if(ZSM_LINKS_WITH_${linker})
      add_link_options(-fuse-ld=${linker})
      break()
    endif()
  endforeach()
endif()

option(ZSM_FUZZ "Build the coverage-guided fuzz targets with the sanitizers; needs clang" OFF)

if(ZSM_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
