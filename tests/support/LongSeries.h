#pragma once

#include <QByteArray>

namespace vantrell
{

/// The number of random cases to try: all of `length` when the environment variable VANTRELL_SERIES is
/// "full", as set by tools/series; else the first quarter, or the first twentieth under a sanitizer.
inline int seriesLength(int length)
{
    if (qgetenv("VANTRELL_SERIES") == "full")
        return length;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return length / 20;
#else
    return length / 4;
#endif
}

/// The size of an input that is there to take long: `size`, or a tenth of it under a sanitizer, which is
/// slower by about that much.
inline int longWork(int size)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return size / 10;
#else
    return size;
#endif
}

} // namespace vantrell
