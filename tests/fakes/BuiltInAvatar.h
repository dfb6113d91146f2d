#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QString>

/// A built-in picture beside the test program, for as long as the object lives.
struct BuiltInAvatar
{
    explicit BuiltInAvatar(const QString &strName)
        : m_file(QCoreApplication::applicationDirPath() + "/Resources/SystemAvatar/" + strName)
    {
        QDir().mkpath(QCoreApplication::applicationDirPath() + "/Resources/SystemAvatar");
        m_bMade = m_file.open(QIODevice::WriteOnly);
        m_file.close();
    }
    ~BuiltInAvatar() { m_file.remove(); }
    BuiltInAvatar(const BuiltInAvatar &) = delete;
    BuiltInAvatar &operator=(const BuiltInAvatar &) = delete;

    QFile m_file;
    bool m_bMade = false;
};
