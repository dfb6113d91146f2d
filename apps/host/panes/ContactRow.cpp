#include "panes/ContactRow.h"

#include "ui_ContactRow.h"

#include "client/HostPictures.h"
#include "client/HostSkins.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace {

constexpr int cHeadSize = 40;

} // namespace

ContactRow::ContactRow(const ContactBook::Entry &entry, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::ContactRow>()), m_entry(entry)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setObjectName(entry.uid);
    for (QToolButton *button : {ui->btnCall, ui->btnVideo}) {
        button->installEventFilter(this);
    }
    connect(ui->btnCall, &QToolButton::clicked, this, [this] { emit callClicked(m_entry.uid, false); });
    connect(ui->btnVideo, &QToolButton::clicked, this, [this] { emit callClicked(m_entry.uid, true); });
    setTabStop(false);
    takeSkin();
    showEntry();
}

ContactRow::~ContactRow() = default;

void ContactRow::setEntry(const ContactBook::Entry &entry)
{
    m_entry = entry;
    showEntry();
}

void ContactRow::showEntry()
{
    ui->lblHead->setPixmap(HostPictures::head(m_entry, cHeadSize));
    showWords();
}

void ContactRow::setTabStop(bool bStop)
{
    setFocusPolicy(bStop ? Qt::StrongFocus : Qt::ClickFocus);
    for (QToolButton *button : {ui->btnCall, ui->btnVideo}) {
        button->setFocusPolicy(bStop ? Qt::TabFocus : Qt::NoFocus);
    }
}

QWidget *ContactRow::followInTabOrder(QWidget *before)
{
    setTabOrder(before, this);
    setTabOrder(this, ui->btnCall);
    setTabOrder(ui->btnCall, ui->btnVideo);
    return ui->btnVideo;
}

void ContactRow::takeSkin()
{
    ui->btnCall->setIcon(HostPictures::call(HostSkins::darkColour()));
    ui->btnVideo->setIcon(HostPictures::video(HostSkins::darkColour()));
}

void ContactRow::showWords()
{
    // A stranger goes by the number: who that is, the client does not know yet.
    const QString name = m_entry.shownName();
    QString detail = m_entry.known ? m_entry.uid : tr("not a contact");
    if (!m_entry.alternative().isEmpty()) {
        detail += QStringLiteral(" · ") + m_entry.alternative();
    }
    ui->lblName->setText(name);
    ui->lblPresence->setText(presenceWord(m_entry.presence));
    ui->lblDetail->setText(detail);
    setAccessibleName(withPresence(name, m_entry.presence));
    setAccessibleDescription(detail);
    ui->btnCall->setToolTip(tr("Call %1").arg(name));
    ui->btnVideo->setToolTip(tr("Call %1 by video").arg(name));
    for (QToolButton *button : {ui->btnCall, ui->btnVideo}) {
        button->setAccessibleName(button->toolTip());
        button->setAccessibleDescription(m_strObstacle);
        if (!m_strObstacle.isEmpty()) {
            button->setToolTip(m_strObstacle);
        }
    }
}

void ContactRow::setObstacle(const QString &strReason)
{
    m_strObstacle = strReason;
    // Focus on a button that goes would jump to another contact.
    if (!strReason.isEmpty() && (ui->btnCall->hasFocus() || ui->btnVideo->hasFocus())) {
        setFocus(Qt::OtherFocusReason);
    }
    for (QToolButton *button : {ui->btnCall, ui->btnVideo}) {
        button->setEnabled(strReason.isEmpty());
    }
    showWords();
}

void ContactRow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        showWords();
    }
    QWidget::changeEvent(event);
}

void ContactRow::contextMenuEvent(QContextMenuEvent *event)
{
    setFocus(Qt::MouseFocusReason);
    QMenu menu(this);
    menu.setToolTipsVisible(true);
    for (QToolButton *button : {ui->btnCall, ui->btnVideo}) {
        QAction *action = menu.addAction(button->icon(), button->accessibleName());
        action->setEnabled(button->isEnabled());
        action->setToolTip(button->toolTip());
        connect(action, &QAction::triggered, button, &QToolButton::click);
    }
    menu.exec(event->globalPos());
}

/// Goes from the row to its buttons and back; false for a key that does not lead there, and where there is no way on.
bool ContactRow::goSideways(int iKey)
{
    QList<QWidget *> places{this, ui->btnCall, ui->btnVideo};
    if (iKey == Qt::Key_Left) {
        std::reverse(places.begin(), places.end());
    } else if (iKey != Qt::Key_Right) {
        return false;
    }
    const int next = places.indexOf(QApplication::focusWidget()) + 1;
    if (next == 0 || next == places.size() || !places.at(next)->isEnabled()) {
        return false;
    }
    places.at(next)->setFocus(Qt::TabFocusReason);
    return true;
}

void ContactRow::focusInEvent(QFocusEvent *event)
{
    emit entered();
    QWidget::focusInEvent(event);
}

void ContactRow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit callClicked(m_entry.uid, false);
    } else if (!goSideways(event->key())) {
        QWidget::keyPressEvent(event);
    }
}

void ContactRow::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        emit callClicked(m_entry.uid, false);
    }
}

bool ContactRow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        emit entered();
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            static_cast<QToolButton *>(watched)->click();
            return true;
        }
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            // QAbstractButton would move the focus to a button of a neighbouring row.
            goSideways(key);
            return true;
        }
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            // Ignored and filtered: it goes on to the parent, as a key that the button does not know.
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
