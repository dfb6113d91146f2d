#pragma once

#include <QMessageBox>

/// Asks, above the client's window, whether to quit although a call is on. The keyboard begins on the answer that keeps
/// the call, Escape means it too. accepted() is the wish to quit. It deletes itself when it is answered. GUI thread.
class QuitQuestion : public QMessageBox
{
    Q_OBJECT

public:
    explicit QuitQuestion(QWidget *parent);
};
