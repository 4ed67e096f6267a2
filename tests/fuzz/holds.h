// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_FUZZ_HOLDS_H
#define TESTS_FUZZ_HOLDS_H

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The entry point of a fuzz target: runs the parser on one input and aborts if a condition does not hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

[[noreturn]] inline void doesNotHold(const char *condition, const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

#define HOLDS(condition) ((condition) ? void() : doesNotHold(#condition, __FILE__, __LINE__))

/// A copy, so that the sanitizer detects a read past the end.
inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<int>(size)};
}

#endif
