#pragma once

#include "ContactBook.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ContactRow;
}

/// One contact in the list: head, name, what calling it does, and the two call buttons. GUI thread.
class ContactRow : public QWidget
{
    Q_OBJECT

public:
    /// The row's object name is the user id.
    ContactRow(const ContactBook::Entry &entry, QWidget *parent);
    ~ContactRow() override;

signals:
    void callClicked(const QString &strUid, bool bVideo);

private:
    std::unique_ptr<Ui::ContactRow> ui;
};
