#pragma once

#include "desktop/HotKey.h"

/// The key of the whole desktop that leads to the prompt of a ringing call, as the user's settings have it: off from
/// the start. GUI thread; to be used after the user's settings have been read.
class PromptKey : public QObject
{
    Q_OBJECT

public:
    explicit PromptKey(QObject *parent = nullptr);

    /// Takes the key that the settings name, if they want one.
    void start();

    /// Whether it is wanted.
    static bool isWanted();

    /// The key in the settings; Ctrl+Alt+I where they name none.
    static QKeySequence key();

    /// Writes it, and takes the key or gives it back. False where the settings do not take it: then nothing changes.
    bool set(bool bWanted, const QKeySequence &key);

    /// What came of it.
    HotKey::Outcome outcome() const { return m_key.outcome(); }

signals:
    /// The key was pressed.
    void pressed();
    /// It was taken, refused or given back.
    void changed();

private:
    HotKey m_key;
};
