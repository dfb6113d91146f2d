#include "client/HostLanguage.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>

/// Qt's own words in the client's language.
class tst_HostLanguage : public QObject
{
    Q_OBJECT

private slots:
    void qtsOwnDialogsSpeakTheLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("cancel");
        QTest::addColumn<QString>("lookIn");
        QTest::newRow("en") << QStringLiteral("en") << QStringLiteral("Cancel") << QStringLiteral("Look in:");
        QTest::newRow("zh_CN") << QStringLiteral("zh_CN") << QStringLiteral("取消") << QStringLiteral("查找范围：");
        QTest::newRow("zh_TW") << QStringLiteral("zh_TW") << QStringLiteral("取消") << QStringLiteral("尋找於：");
    }

    void qtsOwnDialogsSpeakTheLanguage()
    {
        QFETCH(QString, language);
        HostLanguage words(QStringLiteral(VOIP_TRANSLATIONS));
        QVERIFY(words.use(language));
        QDialogButtonBox box(QDialogButtonBox::Cancel);
        QTEST(box.button(QDialogButtonBox::Cancel)->text().remove(QLatin1Char('&')), "cancel");
        QFileDialog dialog;
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        const auto *label = dialog.findChild<QLabel *>(QStringLiteral("lookInLabel"));
        QVERIFY(label != nullptr);
        QTEST(label->text(), "lookIn");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HostLanguage, Widgets)
#include "tst_HostLanguage.moc"
