#pragma once

// What the tests of the conference centre share: for each test function a store of its own, a contact and a host, the
// window with its parts and pages. Derive the test class from it. GUI thread.

#include "ContactFixture.h"

#include "fakes/FakeHost.h"
#include "store/DBConfInfo.h"
#include "ui/ConferenceInfoListView.h"
#include "ui/VoiceConferenceWidget.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

class CentreTest : public QObject
{
    Q_OBJECT

protected:
    /// The window's widget of that name; null when there is none of that type.
    template <typename Widget>
    Widget *part(const char *name) const
    {
        return m_pWindow->findChild<Widget *>(QLatin1String(name));
    }
    CConferenceInfoListView *list() const { return part<CConferenceInfoListView>("listView"); }

    /// The conference ids of all rows from the top.
    QStringList ids() const;

    /// Compares the page that is shown, and its button, with the page of that number.
    void expectPage(int iPage) const;

    /// Runs a slot of the window with a conference id.
    void call(const char *pSlot, const QString &strConfID);

    /// A record of a conference that "ann" called.
    static ConfInfoData record(const QString &strConfID, const QStringList &members = {"ann", "me"});

    /// A window over a store with these records.
    void open(const QStringList &confIds);
    void showAt(const QPoint &corner);

    std::unique_ptr<QTemporaryDir> m_pFolder;
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<FakeHost> m_pHost;
    std::unique_ptr<CVoiceConferenceWidget> m_pWindow;

private slots:
    void initTestCase();
    void init();
    void cleanup();
};
