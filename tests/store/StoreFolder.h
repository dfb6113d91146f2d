#pragma once

// The base of tests that look at the store's file from outside: a folder for each test function, a sound file to start
// from, and the check that no test makes Qt warn or leaves the session open.

#include "fakes/GivenContext.h"
#include "fakes/QtMessages.h"
#include "model/CommonData.h"
#include "store/DB.h"
#include "store/NumberedRecord.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

class StoreFolder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

protected:
    /// Puts a store with these bytes into the folder.
    bool putFile(const QByteArray &bytes) const;

    /// What the store's file holds.
    QByteArray fileBytes() const;

    /// The names of all files in the user's folder.
    QStringList fileNames() const;

    /// Column 0 of the statement's first row, by a connection of the test's own; empty for none.
    QString ask(const QString &strStatement) const;

    /// The definitions of all tables that every open makes when they are missing. `dingsmsgfileoinfo` is none of them:
    /// it comes with the making of `dingmsginfo` or never.
    QString tables() const;

    const QString m_strUser = QStringLiteral("user");
    QString m_strBase;
    QString m_strFolder;
    QString m_strFile;
    /// A whole store with `m_iRecords` conference records and as many messages.
    QByteArray m_sound;
    int m_iPageSize = 0;
    static constexpr int m_iRecords = 300;

private:
    int m_iRound = 0;
    CommonData m_data;
    std::optional<GivenContext> m_given;
    std::unique_ptr<QtMessages> m_pMessages;
};
