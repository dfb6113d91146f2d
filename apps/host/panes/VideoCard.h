#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>

class ContactBook;

namespace Ui {
class VideoCard;
}

/// Explains the empty page of a video call for which nobody draws a picture: the other party's head and name, and why
/// it is empty. A window of the client's own that stands over the page and goes where the call window goes, which stays
/// as it is: the card takes neither the focus nor the mouse, and is gone as soon as the page has a surface. GUI thread;
/// the contact book must outlive it.
class VideoCard : public QWidget
{
    Q_OBJECT

public:
    explicit VideoCard(const ContactBook &book, QWidget *parent = nullptr);
    ~VideoCard() override;

    /// A video call with this user is on: from now on the card stands over the call window whenever that shows an empty
    /// video page. Does nothing for a null `callWindow`, or for one without such a page.
    void accompany(QWidget *callWindow, const QString &strUid);

    /// The call is over.
    void leave();

protected:
    void changeEvent(QEvent *event) override;

    /// Where the call window goes, and what its page gets; when the card itself has come up.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showPerson();
    void follow();
    void followLater();
    void leaveMouse();

    std::unique_ptr<Ui::VideoCard> ui;
    const ContactBook &m_book;
    QString m_strUid;
    QPointer<QWidget> m_pCallWindow;
    QPointer<QWidget> m_pPage;
};
