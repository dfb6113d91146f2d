#pragma once

// What the tests of the call window share: a fresh window for each test function beside a few contacts, its parts by
// name, all that it sends, and what it logs. Derive the test class from it. GUI thread.

#include "ContactFixture.h"

#include "common/pictures/IconGlyphs.h"
#include "fakes/ClickTarget.h"
#include "fakes/LogCapture.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"
#include "ui/VoipWidget.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

#include <functional>
#include <memory>

class CallWindowTest : public QObject
{
    Q_OBJECT

protected:
    static QString uid(const char *name) { return QLatin1String(name); }

    /// The part of the form with this object name.
    template <typename Widget>
    Widget *part(const char *name) const
    {
        return m_pWindow->findChild<Widget *>(QLatin1String(name));
    }
    QString text(const char *name) const { return part<QLabel>(name)->text(); }

    /// The page that a stack shows.
    int page(const char *name) const { return part<QStackedWidget>(name)->currentIndex(); }
    QAbstractItemModel *rows() const { return part<CConferenceListView>("listView")->model(); }
    int status(int iRow) const { return rows()->index(iRow, 0).data(ROLE_CALL_STATUS).toInt(); }
    void showWindow();

    /// A new window and no contacts, as at the start of a test function.
    void startAnew();

    /// The part of a button that takes the clicks: the kit's buttons hold a push button.
    QAbstractButton *button(const char *name) const;

    /// The glyph that a kit button shows, and its colour at rest.
    ushort glyph(const char *name) const { return button(name)->text().at(0).unicode(); }
    QColor glyphColor(const char *name) const { return button(name)->palette().color(QPalette::ButtonText); }

    /// Clicks a button that is shown.
    void click(const char *name) { QTest::mouseClick(clickTarget(part<QWidget>(name)), Qt::LeftButton); }

    /// Clicks a button, shown or not, by its signal.
    void press(const char *name) { QMetaObject::invokeMethod(part<QWidget>(name), "clicked"); }

    /// Calls a slot that nothing on the screen reaches.
    void call(const char *slot) { QVERIFY(QMetaObject::invokeMethod(m_pWindow.get(), slot)); }

    /// Sets the window up for an own call with ann (and bob).
    void startCall(CVoipWidget::VoipType type, bool bConnected = false);

    /// Clicks a button of the question that the next user action opens.
    void answerQuestion(
        const char *name, const std::function<void()> &before = [] {});

    /// Title, text and the words of the two buttons of the question that is open.
    static QStringList questionWords();

    /// The log records since the last call, each as "source: message".
    QStringList newRecords();

    LogCapture m_log;
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<CVoipWidget> m_pWindow;
    /// The signals sent in this test function, oldest first: "mic+", "speaker-", "hangup" and so on.
    QStringList m_sent;

private slots:
    void init();
    void cleanup();

private:
    void record();
};
