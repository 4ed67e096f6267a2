// SPDX-License-Identifier: GPL-3.0-or-later
// Shared by the files of the stand-in; not for tests.
#ifndef TESTS_SUPPORT_GTOPSTANDIN_CALLS_H
#define TESTS_SUPPORT_GTOPSTANDIN_CALLS_H

#include "tests/support/gtopstandin.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// The replaced calls stay visible in the preloaded object, whose other symbols are hidden.
#define STANDIN_CALL extern "C" __attribute__((visibility("default")))

namespace standin {

constexpr std::uint64_t allFlags = ~std::uint64_t(0);

Calls &countedCalls();

/// Re-reads the file named by ZSM_STANDIN if it has changed. Called by the calls that begin a list and never
/// during an iteration over one, so that the records of one refresh are consistent.
void readFileIfChanged();

/// The function of that name in libgtop itself.
template <typename Function>
Function *nextCall(const char *name)
{
    void *address = dlsym(RTLD_NEXT, name);
    if (!address) {
        std::fprintf(stderr, "gtopstandin: no %s in libgtop\n", name);
        std::abort();
    }
    return reinterpret_cast<Function *>(address);
}

/// Truncates the text to a fixed-size field of libgtop, always NUL-terminated.
template <std::size_t size>
void copyText(char (&field)[size], const std::string &text)
{
    const std::size_t length = std::min(text.size(), size - 1);
    std::memcpy(field, text.data(), length);
    field[length] = '\0';
}

} // namespace standin

#endif
