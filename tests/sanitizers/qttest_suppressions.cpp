// Part of every Qt Test program under the thread sanitizer. Qt Test watches over each test function
// from a thread of its own, and Qt's libraries hand over between the two by futexes, which the
// sanitizer does not see: it now and then takes the end of that watch for a race. Left out are the
// two places where that happens and nothing else; no code of ours stands in these frames.
extern "C" const char *__tsan_default_suppressions()
{
    return "race:QTest::qRun\n"
           "race:QWaitCondition::~QWaitCondition\n";
}
