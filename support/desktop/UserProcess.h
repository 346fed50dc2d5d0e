#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace vantrell
{

/// A process of this user. A value, as it was when it was read; any thread.
struct UserProcess {
    qint64 id = 0;
    QString executable;    ///< path, links resolved
    QStringList arguments; ///< the first four: the name it was called by, then what it was given

    /// The processes of this user, in the order of their ids.
    static std::vector<UserProcess> all();

    /// The program that it runs when that lies in `folder` (an absolute path, links resolved, no trailing
    /// slash) or below: its executable, or the script that its executable interprets. Else empty.
    QString programBelow(const QString &folder) const;
};

} // namespace vantrell
