#pragma once

// What the tests of the settings share: a home and a data folder of its own for each test function, so that none finds
// the files of another. Derive the test class from it.

#include "model/SystemSetData.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class SystemSetTest : public QObject
{
    Q_OBJECT

protected:
    static constexpr char cUser[] = "10000001";

    /// A path in the folder of this test function.
    QString inFolder(const QString &strPath) const { return m_folder->filePath(strPath); }

    /// The file of cUser's settings.
    QString userFile() const { return m_folder->filePath(QString(cUser) + "/newConfig.ini"); }

    /// Stores the values in the user's file and reads it into fresh settings.
    SystemSetData readUser(const QVariantMap &mapStored) const
    {
        if (!mapStored.isEmpty()) {
            QSettings settings(userFile(), QSettings::IniFormat);
            settings.setIniCodec("UTF-8");
            for (auto it = mapStored.cbegin(); it != mapStored.cend(); ++it) {
                settings.setValue(it.key(), it.value());
            }
        }
        SystemSetData data;
        data.m_strMsgFilePath = m_folder->path();
        data.initData(cUser);
        return data;
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        qputenv("HOME", m_folder->filePath("home").toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", m_folder->filePath("home/.config").toLocal8Bit());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
