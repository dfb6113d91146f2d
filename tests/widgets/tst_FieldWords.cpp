// The words that the edit fields say by themselves, in a language that has them.

#include "fakes/Patience.h"
#include "widgets/Brackets.h"
#include "widgets/LineEditEx.h"
#include "widgets/MenuEx.h"
#include "widgets/TextEditEx.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QTest>
#include <QTimer>

class tst_FieldWords : public QObject
{
    Q_OBJECT

private:
    Brackets m_brackets;

private slots:
    void initTestCase() { QVERIFY(QCoreApplication::installTranslator(&m_brackets)); }
    void cleanupTestCase() { QCoreApplication::removeTranslator(&m_brackets); }

    void loginFieldsHint()
    {
        CLineEditEx edit;
        edit.setlogin();
        QCOMPARE(edit.getLineEdit()->placeholderText(), QStringLiteral("<inputnarvepass>"));
    }

    void menuEntriesOfTheTextField()
    {
        CTextEditEx edit;
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit, cPatienceMs));
        QStringList words;
        QTimer::singleShot(0, &edit, [&words] {
            auto *pMenu = qobject_cast<CMenuEx *>(QApplication::activePopupWidget());
            QVERIFY(pMenu != nullptr);
            for (const QAction *pAction : pMenu->actions()) {
                words << pAction->text();
            }
            pMenu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(10, 10), edit.mapToGlobal(QPoint(10, 10)));
        QCoreApplication::sendEvent(edit.viewport(), &event);
        QCOMPARE(words, QStringList({"<cut>", "<duplicate>", "<paste>", "<clear>", "<allSelect>"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FieldWords, Widgets)

#include "tst_FieldWords.moc"
