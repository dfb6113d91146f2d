#include "common/log/LogLocation.h"

#include <QtTest>

static_assert(LogLocation::fileNameStart("VoipWidget.cpp") == 0);
static_assert(LogLocation::fileNameStart("/src/ui/VoipWidget.cpp") == 8);
static_assert(LogLocation::fileNameStart("../ui/VoipWidget.cpp") == 6);
static_assert(LogLocation::fileNameStart("") == 0);

class tst_LogLocation : public QObject
{
    Q_OBJECT

private slots:
    void locationIsBareFileNameAndLine()
    {
        QCOMPARE(LOG_LOCATION, QStringLiteral("tst_LogLocation.cpp:%1").arg(__LINE__));
    }

    void lineInsideAnotherMacroIsTheStatementsLine()
    {
#define LOCATION_THROUGH_A_MACRO LOG_LOCATION
        QCOMPARE(LOCATION_THROUGH_A_MACRO, QStringLiteral("tst_LogLocation.cpp:%1").arg(__LINE__));
#undef LOCATION_THROUGH_A_MACRO
    }

    void foldersAreCutOff()
    {
        constexpr std::size_t start = LogLocation::fileNameStart("/some/folder/File.cpp");
        QCOMPARE(LogLocation::text<start>("/some/folder/File.cpp:12"), QStringLiteral("File.cpp:12"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LogLocation, Guiless)
#include "tst_LogLocation.moc"
