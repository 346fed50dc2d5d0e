// Prints how long it takes to match missing files with candidates, and how fast checksums are made of a file
// that is in memory, beside md5sum.

#include "handover/Checksums.h"
#include "handover/Relinker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

using namespace vantrell;

namespace
{

constexpr int candidates = 200'000;
constexpr int missingFiles = 10'000;
constexpr std::int64_t fileSize = 512 << 20; // bytes
constexpr int rounds = 3;                    // the best one counts

void benchMatching()
{
    std::vector<FolderWalk::Found> found;
    for (int i = 0; i < candidates; ++i)
        found.push_back({QStringLiteral("/m/%1/Clip %2.mov").arg(i % 100).arg(i), {}});
    std::vector<MissingFile> missing;
    for (int i = 0; i < missingFiles; ++i) {
        const QString name = QStringLiteral("clip %1.MOV").arg(i * (candidates / missingFiles));
        missing.push_back({name, QStringLiteral("/V/") + name, name, std::nullopt});
    }
    QElapsedTimer timer;
    timer.start();
    const std::size_t matches = Relinker::matches(missing, found).size();
    std::printf("%zu missing files among %d: %.2f s\n", matches, candidates, double(timer.elapsed()) / 1000);
}

template <typename Work>
void printSpeed(const char *what, const Work &work)
{
    double best = 0;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::max(best, double(fileSize) / double(timer.nsecsElapsed()));
    }
    std::printf("%-20s %.2f GB/s\n", what, best);
}

bool benchChecksums()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("media"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QByteArray block(1 << 20, 'x');
    for (std::int64_t size = 0; size < fileSize; size += block.size())
        file.write(block);
    file.close();
    const auto read = [&path](ChecksumKinds kinds) {
        return [&path, kinds] {
            ChecksumRun::read({QFile::encodeName(path), kinds, fileSize}, [](std::int64_t) { return true; });
        };
    };
    printSpeed("xxHash64", read({.md5 = false, .sha1 = false, .xxhash64 = true}));
    printSpeed("MD5", read({.md5 = true, .sha1 = false, .xxhash64 = false}));
    printSpeed("md5sum", [&path] {
        QProcess::execute(QStringLiteral("sh"),
                          {QStringLiteral("-c"), QStringLiteral("md5sum \"$0\" >/dev/null"), path});
    });
    printSpeed("both in one read", read({.md5 = true, .sha1 = false, .xxhash64 = true}));
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchMatching();
    return benchChecksums() ? 0 : 1;
}
