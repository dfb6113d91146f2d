#include "fakes/MessageBoxes.h"

#include <QApplication>
#include <QLabel>
#include <QWidget>

MessageBoxes::MessageBoxes()
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { closeOpenBox(); });
    m_timer.start(0);
}

void MessageBoxes::closeOpenBox()
{
    QWidget *box = QApplication::activeModalWidget();
    if (!box) {
        return;
    }
    const auto *text = box->findChild<QLabel *>(QStringLiteral("msgLabel"));
    const auto *title = box->findChild<QLabel *>(QStringLiteral("titlelabel"));
    texts.append(text ? text->text() : QString());
    titles.append(title ? title->text() : QString());
    if (whileOpen) {
        whileOpen();
    }
    box->close();
}
