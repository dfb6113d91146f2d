#pragma once

#include <QWidget>

#include <memory>

class PromptKey;

namespace Ui {
class KeysPane;
}

/// The settings of the keyboard: the key of the whole desktop that leads to the prompt of a ringing call, switched on
/// and off, chosen by pressing it, with a word where the desktop refuses it. GUI thread; the key must outlive it.
class KeysPane : public QWidget
{
    Q_OBJECT

public:
    explicit KeysPane(PromptKey &key, QWidget *parent = nullptr);
    ~KeysPane() override;

signals:
    /// The user has switched the key or pressed another one; whether the user's settings could be written.
    void taken(bool bKept);

protected:
    /// Shows what stands in the settings.
    void showEvent(QShowEvent *event) override;

    /// Says everything anew when the language changes.
    void changeEvent(QEvent *event) override;

private:
    void nameField();
    void takeKey();
    void set(bool bWanted, const QKeySequence &key);
    void showKey();
    QString words() const;

    std::unique_ptr<Ui::KeysPane> ui;
    PromptKey &m_key;
};
