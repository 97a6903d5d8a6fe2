#pragma once

#include <QByteArray>
#include <QFile>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

/// The modem's end of a pseudo-terminal that stands as a port in a folder of devices.
class Modem
{
public:
    explicit Modem(const QString& device)
        : m_end(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        if (m_end < 0 || grantpt(m_end) != 0 || unlockpt(m_end) != 0 ||
            !QFile::link(QFile::decodeName(ptsname(m_end)), device))
            qFatal("no pseudo-terminal");
    }
    ~Modem() { ::close(m_end); } // hangs up

    /// All that has arrived so far.
    QByteArray heard()
    {
        char buffer[4096];
        for (ssize_t got; (got = ::read(m_end, buffer, sizeof buffer)) > 0;)
            m_heard.append(buffer, got);
        return m_heard;
    }

private:
    int m_end;
    QByteArray m_heard;
};
