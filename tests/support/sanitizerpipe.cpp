// SPDX-License-Identifier: GPL-3.0-or-later
// The undefined-behaviour sanitizer checks through a pipe whether it may read an object that it sees for the
// first time, and reports the object as broken if there is no descriptor for a pipe. When a test takes the
// descriptors away, the sanitizer, and only it, gets its two from above the limit.
#include <dlfcn.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

bool isOfSanitizer(const void *code)
{
    Dl_info found = {};
    return dladdr(code, &found) != 0 && found.dli_fname && std::strstr(found.dli_fname, "libubsan");
}

/// Keeps the limit if a test has changed it meanwhile.
void restoreLimit(const rlimit &before, const rlimit &raised)
{
    rlimit found = {};
    if (prlimit(0, RLIMIT_NOFILE, &before, &found) == 0 && found.rlim_cur != raised.rlim_cur) {
        prlimit(0, RLIMIT_NOFILE, &found, nullptr);
    }
}

} // namespace

extern "C" int pipe(int ends[2]) noexcept
{
    static const auto real = reinterpret_cast<decltype(&::pipe)>(dlsym(RTLD_NEXT, "pipe"));
    const int result = real(ends);
    rlimit before = {};
    const bool takenAway = result != 0 && errno == EMFILE && isOfSanitizer(__builtin_return_address(0));
    if (!takenAway || getrlimit(RLIMIT_NOFILE, &before) != 0) {
        return result;
    }
    const rlimit raised{before.rlim_max, before.rlim_max};
    if (prlimit(0, RLIMIT_NOFILE, &raised, &before) != 0) {
        return -1;
    }
    const int again = real(ends);
    restoreLimit(before, raised);
    return again;
}
