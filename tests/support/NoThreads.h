#pragma once

#include <cstddef>

#include <pthread.h>

namespace vantrell
{

/// While it lives no thread can be made: each would get a larger stack than there are addresses.
class NoThreads
{
public:
    NoThreads()
    {
        pthread_getattr_default_np(&m_old);
        pthread_attr_t wanted = m_old;
        pthread_attr_setstacksize(&wanted, std::size_t(1) << 50);
        pthread_setattr_default_np(&wanted);
    }
    ~NoThreads()
    {
        pthread_setattr_default_np(&m_old);
        pthread_attr_destroy(&m_old);
    }
    NoThreads(const NoThreads &) = delete;
    NoThreads &operator=(const NoThreads &) = delete;

private:
    pthread_attr_t m_old;
};

} // namespace vantrell
