#include "panes/ContactList.h"

#include "client/ContactSearch.h"
#include "panes/ContactRow.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

ContactList::ContactList(QWidget *parent) : QScrollArea(parent)
{
    auto *content = new QWidget(this);
    content->setObjectName(QStringLiteral("contactRows"));
    m_pLayout = new QVBoxLayout(content);
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setSpacing(0);
    m_pLayout->addStretch();
    setWidget(content);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
}

void ContactList::add(const QList<ContactBook::Entry> &entries)
{
    for (const ContactBook::Entry &entry : entries) {
        auto *row = new ContactRow(entry, widget());
        connect(row, &ContactRow::callClicked, this, &ContactList::callClicked);
        connect(row, &ContactRow::entered, this, [this, row] { setCurrent(row); });
        m_pLayout->insertWidget(m_rows.size(), row);
        m_rows.append(row);
    }
    if (m_pCurrent == nullptr && !m_rows.isEmpty()) {
        setCurrent(m_rows.first());
    }
}

int ContactList::filter(const QString &strText)
{
    m_strFilter = strText;
    for (ContactRow *row : qAsConst(m_rows)) {
        row->setVisible(ContactSearch::finds(row->entry(), strText));
    }
    const QList<ContactRow *> shown = shownRows();
    if (!shown.isEmpty()) {
        setCurrent(shown.first());
    }
    return shown.size();
}

int ContactList::showPerson(const ContactBook::Entry &entry)
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&](const ContactRow *row) { return row->entry().uid == entry.uid; });
    if (found != m_rows.end()) {
        (*found)->setEntry(entry);
        (*found)->setVisible(ContactSearch::finds(entry, m_strFilter));
    }
    const QList<ContactRow *> shown = shownRows();
    if (!shown.isEmpty() && !shown.contains(m_pCurrent)) {
        setCurrent(shown.first());
    }
    return shown.size();
}

void ContactList::followInTabOrder(QWidget *before)
{
    QWidget *last = before;
    for (ContactRow *row : qAsConst(m_rows)) {
        // Qt gives a new place in the order only to a widget that takes the focus.
        row->setTabStop(true);
        last = row->followInTabOrder(last);
        row->setTabStop(row == m_pCurrent);
    }
}

bool ContactList::enter()
{
    const bool bShown = shownRows().contains(m_pCurrent);
    if (bShown) {
        m_pCurrent->setFocus(Qt::OtherFocusReason);
    }
    return bShown;
}

void ContactList::setObstacle(const QString &strReason)
{
    for (ContactRow *row : m_rows) {
        row->setObstacle(strReason);
    }
}

void ContactList::takeSkin()
{
    for (ContactRow *row : qAsConst(m_rows)) {
        row->takeSkin();
    }
}

QList<ContactRow *> ContactList::shownRows() const
{
    QList<ContactRow *> shown;
    std::copy_if(m_rows.begin(), m_rows.end(), std::back_inserter(shown),
                 [](const ContactRow *row) { return !row->isHidden(); });
    return shown;
}

void ContactList::setCurrent(ContactRow *row)
{
    if (m_pCurrent != nullptr) {
        m_pCurrent->setTabStop(false);
    }
    m_pCurrent = row;
    m_pCurrent->setTabStop(true);
    ensureWidgetVisible(row, 0, 0);
}

void ContactList::go(int iTo)
{
    const QList<ContactRow *> shown = shownRows();
    if (iTo < 0) {
        emit leftUpwards();
    } else if (!shown.isEmpty()) {
        shown.at(qMin(iTo, shown.size() - 1))->setFocus(Qt::OtherFocusReason);
    }
}

void ContactList::keyPressEvent(QKeyEvent *event)
{
    const int current = shownRows().indexOf(m_pCurrent);
    switch (event->key()) {
    case Qt::Key_Up:
        go(current - 1);
        break;
    case Qt::Key_Down:
        go(current + 1);
        break;
    case Qt::Key_Home:
        go(0);
        break;
    case Qt::Key_End:
        go(m_rows.size());
        break;
    default:
        QScrollArea::keyPressEvent(event);
    }
}
