# SPDX-License-Identifier: GPL-3.0-or-later
# zsm_warnings: the warnings that our own code must compile without.
option(ZSM_WARNINGS_AS_ERRORS "Treat warnings in our own code as errors" ON)

add_library(zsm_warnings INTERFACE)
target_compile_options(zsm_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion
  -Wcast-align -Wcast-qual -Wformat=2 -Wnon-virtual-dtor -Woverloaded-virtual -Wundef
  -Wold-style-cast -Wextra-semi
  # Qt's test macros leave out variadic arguments, which clang reports under one of these names.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments;-Wno-c++20-extensions>
  $<$<BOOL:${ZSM_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(zsm_warnings INTERFACE
  QT_DEPRECATED_WARNINGS QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
