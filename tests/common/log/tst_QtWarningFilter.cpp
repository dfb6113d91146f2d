// The filter of Qt's channel: it takes away the warnings that are known, and nothing else.

#include "common/log/QtWarningFilter.h"

#include <QDebug>
#include <QStringList>
#include <QTest>

class tst_QtWarningFilter : public QObject
{
    Q_OBJECT

private:
    static void keep(QtMsgType, const QMessageLogContext &, const QString &strText) { s_lines.append(strText); }

    static QStringList s_lines;

private slots:
    void onlyTheKnownWarningsAreTakenAway()
    {
        const char *strGetImage =
            "QXcbConnection: XCB error: 8 (BadMatch), sequence: 7, resource id: 9, major code: 73 (GetImage)";
        s_lines.clear();
        const QtMessageHandler before = qInstallMessageHandler(keep);
        {
            const QtWarningFilter filter;
            qWarning("Could not parse stylesheet of object CLineEditEx(0x55d0, name = \"lineEdit\")");
            qWarning("QObject::connect: No such slot CVoipManage::clearLocalCallData()");
            qWarning("QObject::connect:  (sender name:   'CVoipWidget')");
            qWarning(
                "QXcbConnection: XCB error: 3 (BadWindow), sequence: 7, resource id: 9, major code: 20 (GetProperty)");
            qWarning(
                "QXcbConnection: XCB error: 8 (BadMatch), sequence: 7, resource id: 9, major code: 42 (SetInputFocus)");
            qWarning("%s", strGetImage);
            qWarning("QObject::connect: No such slot CVoipManage::other()");
            qWarning("Could not parse stylesheet of object CLineEditExtra(0x55d0)");
            qWarning("Could not parse stylesheet of object QLabel(0x55d0)");
            qWarning("Could not parse application stylesheet");
            qCritical("Could not parse stylesheet of object CLineEditEx(0x55d0)");
            qDebug("1");
        }
        qWarning("Could not parse stylesheet of object CLineEditEx(0x55d0)");
        qInstallMessageHandler(before);
        QCOMPARE(s_lines, (QStringList{strGetImage, "QObject::connect: No such slot CVoipManage::other()",
                                       "Could not parse stylesheet of object CLineEditExtra(0x55d0)",
                                       "Could not parse stylesheet of object QLabel(0x55d0)",
                                       "Could not parse application stylesheet",
                                       "Could not parse stylesheet of object CLineEditEx(0x55d0)", "1",
                                       "Could not parse stylesheet of object CLineEditEx(0x55d0)"}));
    }

    void filterWithinAFilterGoesAloneAndRepeatsNothing()
    {
        s_lines.clear();
        const QtMessageHandler before = qInstallMessageHandler(keep);
        {
            const QtWarningFilter outer;
            {
                const QtWarningFilter inner;
                qWarning("within both");
                qWarning("QObject::connect:  (sender name:   'CVoipWidget')");
            }
            qWarning("within one");
            qWarning("QObject::connect:  (sender name:   'CVoipWidget')");
        }
        qWarning("within none");
        qInstallMessageHandler(before);
        QCOMPARE(s_lines, (QStringList{"within both", "within one", "within none"}));
    }

    void handlerBetweenTwoFiltersHearsWhatTheInnerOneLeaves()
    {
        s_lines.clear();
        const QtWarningFilter outer;
        const QtMessageHandler before = qInstallMessageHandler(keep);
        {
            const QtWarningFilter inner;
            qWarning("heard");
        }
        qInstallMessageHandler(before);
        QTest::ignoreMessage(QtWarningMsg, "not heard");
        qWarning("not heard");
        qWarning("QObject::connect:  (sender name:   'CVoipWidget')");
        QCOMPARE(s_lines, QStringList{"heard"});
    }
};

QStringList tst_QtWarningFilter::s_lines;

#include "support/TestProgram.h"
VOIP_TEST(tst_QtWarningFilter, Guiless)

#include "tst_QtWarningFilter.moc"
