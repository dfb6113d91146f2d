#pragma once

// The world of a test class about the settings: the window of a signed-in user with the page of settings open. GUI
// thread.

#include "client/HostSettings.h"
#include "client/SettingsFile.h"
#include "panes/SettingsPage.h"

#include "host/panes/ClientTest.h"
#include "host/panes/PressButton.h"

#include <QLineEdit>

class SettingsPageTest : public ClientTest
{
    Q_OBJECT

protected:
    SettingsPageTest() : ClientTest(Begin::SignedIn) {}

protected slots:
    void init() { startWithPage(); }

protected:
    void startWithPage()
    {
        start();
        QVERIFY(pressButton(m_pWindow.get(), "btnSettings"));
        QVERIFY(QTest::qWaitForWindowActive(&page(), cPatienceMs));
    }
    SettingsPage &page() { return m_pWindow->settingsPage(); }

    /// A part of the page by its name in the form.
    template <typename Part>
    Part *part(const char *strName)
    {
        return page().findChild<Part *>(QLatin1String(strName));
    }
    static QString stored(const QString &strFile, const char *strKey)
    {
        return SettingsFile::read(strFile, QLatin1String(strKey));
    }

    /// Writes the text into the field in place of what it has, and confirms it.
    void type(const char *strEdit, const QString &strText)
    {
        auto *edit = part<QLineEdit>(strEdit);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        edit->insert(strText);
        QTest::keyClick(edit, Qt::Key_Return);
    }
};
