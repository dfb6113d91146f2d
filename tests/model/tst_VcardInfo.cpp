#include "ProcessorClock.h"

#include "fakes/BuiltInAvatar.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/SystemSetData.h"
#include "model/VcardInfo.h"

#include <QRandomGenerator>
#include <QTest>

#include <optional>

namespace {

const QString cDefaultHead = QStringLiteral("Resources/images/FriendDetail/defaultHead.png");
const QString cServiceHead = QStringLiteral("Resources/images/FriendDetail/ic_portrait_server_90.png");

QString randomNumbers(quint32 iSeed)
{
    QRandomGenerator random(iSeed);
    const QString strUnits = iSeed % 2 ? "ab " : "012  \t";
    QString strText;
    for (int i = random.bounded(40); i > 0; --i) {
        strText += strUnits.at(random.bounded(strUnits.size()));
    }
    return strText;
}

QString keptOneByOne(const QString &strText)
{
    const QStringList listNumber = strText.split(' ');
    QString strKept = listNumber.first();
    for (const QString &strNumber : listNumber) {
        if (!strNumber.isEmpty() && !strKept.contains(strNumber)) {
            strKept += ' ' + strNumber;
        }
    }
    return strKept.trimmed();
}

} // namespace

class tst_VcardInfo : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.m_strHeadImageFolder = "/data/me/designHeadImage/";
        m_context.setSystemSetData(&m_settings);
        m_given.emplace(m_context);
    }

    void cleanup() { m_given.reset(); }

    void aNewCardHasNoVersionsAndABuiltInPicture()
    {
        const VcardInfo card;
        QCOMPARE(card.m_iFullVersion, -1);
        QCOMPARE(card.m_iSmallVersion, -1);
        QVERIFY(card.m_bSystemAvatar);
        QVERIFY(card.m_bEmployee);
        QVERIFY(!card.m_bAdmin);
        const QStringList listText = {card.m_strAccountNo,       card.m_strNickName,     card.m_strSignature,
                                      card.m_strBirthday,        card.m_strSex,          card.m_strPhotoName,
                                      card.m_strPhotoPath,       card.m_strDepartment,   card.m_strFullDepartment,
                                      card.m_strProfession,      card.m_strOtherPhone,   card.m_strDisplayMobile,
                                      card.m_strExtensionNumber, card.m_strMail,         card.m_strLeaderName,
                                      card.m_strLeaderUid,       card.m_strWorkLocation, card.m_strCompanyCode,
                                      card.m_strAlternativeName};
        QCOMPARE(listText.join(QString()), QString());
    }

    void mobileNumbersLoseTheirRepeats_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("kept");
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("one") << "139"
                             << "139";
        QTest::newRow("a repeat") << "139 139 021"
                                  << "139 021";
        QTest::newRow("a part of a longer one") << "1390 139"
                                                << "1390";
        QTest::newRow("the longer one second") << "139 1390"
                                               << "139 1390";
        QTest::newRow("two blanks") << "a  b"
                                    << "a b";
        QTest::newRow("blanks around") << " 139 "
                                       << "139";
        QTest::newRow("only blanks") << "   "
                                     << "";
        QTest::newRow("case-sensitive") << "Ab ab"
                                        << "Ab ab";
        QTest::newRow("digits are not masked") << "13912345678"
                                               << "13912345678";
    }

    void mobileNumbersLoseTheirRepeats()
    {
        QFETCH(QString, text);
        VcardInfo card;
        card.m_strDisplayMobile = "from before";
        card.setDisPlayMobile(text);
        QTEST(card.m_strDisplayMobile, "kept");
    }

    void numbersAreWhatOneComparisonAfterTheOtherKeeps()
    {
        for (quint32 iSeed = 0; iSeed < 5000; ++iSeed) {
            const QString strText = randomNumbers(iSeed);
            VcardInfo card;
            card.setDisPlayMobile(strText);
            QCOMPARE(card.m_strDisplayMobile, keptOneByOne(strText));
        }
    }

    void longListOfNumbersTakesNoLonger_data()
    {
        QTest::addColumn<QString>("text");
        constexpr int units = 300000;
        QString strDistinct;
        for (int i = 1000000; strDistinct.size() < units; ++i) {
            strDistinct += QString::number(i) + ' ';
        }
        QTest::newRow("distinct") << strDistinct;
        QString strGrowing;
        for (int i = 1; strGrowing.size() < units; ++i) {
            strGrowing += QString(i, '1') + ' ';
        }
        QTest::newRow("each holds the one before") << strGrowing;
        QTest::newRow("one") << QString(units, '1') + " 2";
    }

    void longListOfNumbersTakesNoLonger()
    {
        QFETCH(QString, text);
        VcardInfo card;
        const ProcessorClock clock;
        card.setDisPlayMobile(text);
        const double dSeconds = clock.seconds();
        QCOMPARE(card.m_strDisplayMobile, text.trimmed());
        QVERIFY2(dSeconds < 2, qPrintable(QString::number(dSeconds)));
    }

    void anEmptyPhotoNameIsTheDefaultHead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("empty") << "";
        QTest::newRow("its own name") << cDefaultHead;
    }

    void anEmptyPhotoNameIsTheDefaultHead()
    {
        QFETCH(QString, name);
        VcardInfo card;
        card.setPhotoName("own");
        QVERIFY(!card.m_bSystemAvatar);
        card.setPhotoName(name);
        QCOMPARE(card.m_strPhotoName, cDefaultHead);
        QCOMPARE(card.m_strPhotoPath, cDefaultHead);
        QVERIFY(card.m_bSystemAvatar);
    }

    void theServicePictureIsBuiltIn()
    {
        VcardInfo card;
        card.m_bSystemAvatar = false;
        card.setPhotoName(cServiceHead);
        QCOMPARE(card.m_strPhotoName, cServiceHead);
        QCOMPARE(card.m_strPhotoPath, cServiceHead);
        QVERIFY(card.m_bSystemAvatar);
    }

    void aPhotoOfTheApplicationIsFoundByItsName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file");
        QTest::newRow("without a dot it is a jpg") << "tst_builtin"
                                                   << "tst_builtin.jpg";
        QTest::newRow("with a dot it is taken as it is") << "tst_builtin.png"
                                                         << "tst_builtin.png";
    }

    void aPhotoOfTheApplicationIsFoundByItsName()
    {
        QFETCH(QString, name);
        QFETCH(QString, file);
        const BuiltInAvatar avatar(file);
        QVERIFY(avatar.m_bMade);
        VcardInfo card;
        card.m_bSystemAvatar = false;
        card.setPhotoName(name);
        QCOMPARE(card.m_strPhotoName, name);
        QCOMPARE(card.m_strPhotoPath, "Resources/SystemAvatar/" + file);
        QVERIFY(card.m_bSystemAvatar);
    }

    void anyOtherPhotoLiesInTheUsersFolder()
    {
        VcardInfo card;
        card.setPhotoName("tst_own");
        QCOMPARE(card.m_strPhotoName, QString("tst_own"));
        QCOMPARE(card.m_strPhotoPath, QString("/data/me/designHeadImage/tst_own.jpg"));
        QVERIFY(!card.m_bSystemAvatar);
        card.setPhotoName("tst_own.png");
        QCOMPARE(card.m_strPhotoName, QString("tst_own.png"));
        QCOMPARE(card.m_strPhotoPath, QString("/data/me/designHeadImage/tst_own.png"));
    }

    void withoutSettingsTheUsersFolderIsEmpty()
    {
        m_given.reset();
        VcardInfo card;
        card.setPhotoName("tst_own");
        QCOMPARE(card.m_strPhotoPath, QString("tst_own.jpg"));
        CommonData contextWithoutSettings;
        m_given.emplace(contextWithoutSettings);
        card.setPhotoName("tst_other");
        QCOMPARE(card.m_strPhotoPath, QString("tst_other.jpg"));
    }

private:
    SystemSetData m_settings;
    CommonData m_context;
    std::optional<GivenContext> m_given;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VcardInfo, Guiless)
#include "tst_VcardInfo.moc"
