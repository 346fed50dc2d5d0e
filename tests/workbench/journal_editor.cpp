// Edits a project at random until it is killed: PROJECT JOURNALS LOG SEED INTERVAL. Each state is appended to
// the log with the time at which it was reached, the first one as soon as the project is loaded.

#include "tests/workbench/RandomEdits.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>

#include <thread>

using namespace vantrell;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile log(arguments.at(3));
    if (!log.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return 1;
    const quint64 seed = arguments.at(4).toULongLong();
    const std::chrono::milliseconds interval(arguments.at(5).toInt());
    UndoProject p(arguments.at(1), std::make_shared<DocumentJournal>(arguments.at(2), interval));
    RandomEdits edits(p, seed);
    RandomNumbers random(seed + 1);
    for (;;) {
        const ProjectState state = p.state();
        const QByteArray digest = QCryptographicHash::hash(state.file, QCryptographicHash::Sha1).toHex();
        const QStringList modified = state.modified.value_or(QStringList());
        log.write(QByteArray::number(QDateTime::currentMSecsSinceEpoch()) + ' ' + digest + ' ' +
                  modified.join(QLatin1Char(',')).toUtf8() + '\n');
        std::this_thread::sleep_for(std::chrono::milliseconds(random.below(8)));
        if (random.oneIn(6))
            p.document().undo();
        else if (random.oneIn(12))
            p.document().redo();
        else
            edits.editOnce();
    }
}
