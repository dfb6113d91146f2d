#pragma once

#include <QKeySequence>
#include <QObject>

#include <memory>

class QSocketNotifier;
struct xcb_connection_t;

/// One key with its modifiers that is heard whichever program has the keyboard, as far as the desktop lends one: an X
/// server does, unless another program has it. GUI thread.
class HotKey : public QObject
{
    Q_OBJECT

public:
    enum Outcome
    {
        Off,      ///< no key is wanted
        On,       ///< it is heard
        Unfit,    ///< one that typing needs, or that no key of this keyboard gives
        Taken,    ///< another program has it
        Unoffered ///< the desktop lends no key to programs
    };

    explicit HotKey(QObject *parent = nullptr);

    /// Gives the key back.
    ~HotKey() override;

    /// Takes the first key of the sequence instead of the one before; the empty sequence gives that back.
    Outcome take(const QKeySequence &key);

    /// What came of it.
    Outcome outcome() const { return m_outcome; }

    /// The key that is taken or was refused.
    const QKeySequence &key() const { return m_key; }

    /// Whether a key is fit: it is not one that typing or a window needs, so it has Ctrl, Alt or Meta, or is one of F1
    /// to F35.
    static bool isFit(const QKeySequence &key);

signals:
    /// The key was pressed.
    void pressed();

private:
    bool reachServer();
    Outcome grab();
    void release();
    void read();

    xcb_connection_t *m_pConnection = nullptr;
    unsigned int m_root = 0;
    unsigned char m_code = 0; // the key that is taken
    std::unique_ptr<QSocketNotifier> m_pReader;
    QKeySequence m_key;
    Outcome m_outcome = Off;
};
