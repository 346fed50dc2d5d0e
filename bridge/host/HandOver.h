#pragma once

#include "bridge/EventCancel.h"
#include "bridge/host/HostSocket.h"
#include "support/files/Result.h"

#include <QStringList>

namespace vantrell::HandOver
{

enum class Outcome {
    Done,  ///< the other host has opened the files
    Nobody ///< there is no other host; the socket is claimed
};

/// Claims the socket, or has the host that listens there open the files. Waits up to ten seconds for a host
/// that is just starting. Fails when the files cannot be opened there, and on \a stop. Main thread.
Result<Outcome> run(HostSocket &socket, const QStringList &files, const EventCancel &stop);

} // namespace vantrell::HandOver
