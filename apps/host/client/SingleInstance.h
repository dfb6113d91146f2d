#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

/// One client for one user: the first one holds a lock in the user's folder, and a second one asks it, over a socket of
/// its own, to come to the front. GUI thread; to be used once the temporary folder is settled.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `strUid` is the user who is about to sign in.
    explicit SingleInstance(const QString &strUid);
    ~SingleInstance() override;
    Q_DISABLE_COPY(SingleInstance)

    /// What was found.
    enum Outcome
    {
        First,  ///< this is the user's only client; also where the user's folder cannot be written to
        Second, ///< another one runs, and has come to the front
        Silent  ///< another one runs, and does not answer
    };

    /// Finds out, and asks the other one to come to the front; for `bAsk` false it is left alone: Silent. Takes some
    /// seconds at most.
    Outcome claim(bool bAsk);

    /// Lets another client of this user be the first: this one has left.
    void release();

    /// Process id of the other client after Second and Silent; 0 when it is not known.
    qint64 other() const { return m_iOther; }

signals:
    /// A second client of this user was started: come to the front.
    void frontWanted();

private:
    void listen();
    bool ask() const;
    void answer();

    QString m_strFolder;
    QLockFile m_lock;
    QLocalServer m_server;
    qint64 m_iOther = 0;
};
