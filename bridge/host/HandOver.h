#pragma once

#include "bridge/host/HostSocket.h"
#include "support/files/Result.h"

#include <QStringList>

namespace vantrell::HandOver
{

enum class Outcome {
    Done,  ///< the other host has opened the files
    Nobody ///< no other host is there; the socket is claimed
};

/// Claims the socket, or has the host that listens there open the files; one that is just starting is
/// waited for, ten seconds at most. Fails too when the files could not be opened there, or once the file
/// descriptor \a stop can be read from. Main thread.
Result<Outcome> run(HostSocket &socket, const QStringList &files, int stop);

} // namespace vantrell::HandOver
