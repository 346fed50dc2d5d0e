// Commits the fault that its argument names. Every value goes through a volatile, so that the
// compiler neither warns of the fault nor removes it. Without a sanitizer it ends with status 0.

#include <climits>
#include <cstring>
#include <thread>

namespace
{

void readFreedMemory()
{
    int *volatile place = new int(1);
    delete place;
    volatile int seen = *place;
    static_cast<void>(seen);
}

void overflowSignedInteger()
{
    volatile int largest = INT_MAX;
    volatile int sum = largest + 1;
    static_cast<void>(sum);
}

void raceOnInteger()
{
    volatile int shared = 0;
    std::thread other([&shared] { shared = 1; });
    shared = 2;
    other.join();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    if (std::strcmp(argv[1], "address") == 0)
        readFreedMemory();
    else if (std::strcmp(argv[1], "undefined") == 0)
        overflowSignedInteger();
    else if (std::strcmp(argv[1], "thread") == 0)
        raceOnInteger();
    else
        return 2;
    return 0;
}
