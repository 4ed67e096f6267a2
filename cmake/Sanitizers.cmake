# SPDX-License-Identifier: GPL-3.0-or-later
option(ZSM_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

if(ZSM_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

option(ZSM_FUZZ "Build the coverage-guided fuzz targets with the sanitizers; needs clang" OFF)

if(ZSM_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
