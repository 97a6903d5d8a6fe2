#pragma once

#include "platform/values/Progress.h"

#include <QStringList>

namespace devices {

/// A program to run, without a shell.
struct Command
{
    QString program;
    QStringList arguments;
    QString folder; ///< it works in this one
    QString input;  ///< the file that it reads; empty: nothing to read
    QString output; ///< the file that it writes, in place of what that holds
};

/// Runs a program and returns when it has ended well. Blocks its thread. Throws OperatorError with the
/// program's own complaint when it cannot be started or ends in any other way; Cancelled when `stop` was
/// asked for, and the program has been ended then.
void RunAndWait(const Command& command, const std::stop_token& stop);

} // namespace devices
