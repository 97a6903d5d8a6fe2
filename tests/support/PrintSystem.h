#pragma once

#include "support/Files.h"

#include <QFile>
#include <QTemporaryDir>

/// A print system of the test's own: programs in the path that do what a script says.
class PrintSystem
{
public:
    PrintSystem() { qputenv("PATH", m_folder.path().toLocal8Bit() + ":" + m_before); }
    ~PrintSystem() { qputenv("PATH", m_before); }
    void program(const QString& name, const QByteArray& script)
    {
        writeFile(path(name), "#!/bin/sh\n" + script);
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void hideTheRest() { qputenv("PATH", m_folder.path().toLocal8Bit()); }

private:
    QTemporaryDir m_folder;
    const QByteArray m_before = qgetenv("PATH");
};
