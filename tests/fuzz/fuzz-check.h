#ifndef FUZZ_CHECK_H
#define FUZZ_CHECK_H

#include <cstdio>
#include <cstdlib>

// A property that must hold for every input; both the fuzzing engine and
// the replay in the test suite report the abort as a failure.
#define FUZZ_CHECK(condition)                                                              \
    do {                                                                                   \
        if (!(condition)) {                                                                \
            std::fprintf(stderr, "%s:%d: property failed: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                  \
        }                                                                                  \
    } while (0)

#endif  // FUZZ_CHECK_H
