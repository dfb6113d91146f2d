#pragma once

// What the tests of the one-line edit field share: a field of its own for each test, shown where a test needs its keys.

#include "fakes/Patience.h"
#include "widgets/LineEditEx.h"

#include <QTest>

#include <memory>

class LineEditTest : public QObject
{
    Q_OBJECT

protected:
    void paste() { QTest::keySequence(inner(), QKeySequence::Paste); }
    QLineEdit *inner() const { return m_pEdit->getLineEdit(); }
    void show()
    {
        m_pEdit->resize(236, 30);
        m_pEdit->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pEdit.get(), cPatienceMs));
        m_pEdit->setFocus();
    }

    std::unique_ptr<CLineEditEx> m_pEdit;

private slots:
    void init() { m_pEdit = std::make_unique<CLineEditEx>(); }
    void cleanup() { m_pEdit.reset(); }
};
