// The other program in the tests of the store: one that holds a file, or one that writes until it is killed. It says
// on standard output what it has done, a line each.
//
//   store_child hold FILE cStatements MS  opens the file, executes the statements, which ";" parts, says "held" and
//                                        lets go at its input's end, or after that many milliseconds, and says "gone"
//   store_child write BASE FIRST         says "start", opens the store of "user", then saves the numbered records from
//                                        FIRST on and says each number once the record is saved

#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "store/DB.h"
#include "store/NumberedRecord.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <unistd.h>

namespace {

void say(const QByteArray &line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

bool runAll(const QSqlDatabase &db, const QStringList &statements)
{
    return std::all_of(statements.begin(), statements.end(),
                       [&db](const QString &strStatement) { return QSqlQuery(db).exec(strStatement); });
}

int hold(const QString &strFile, const QString &strStatements, int iMilliseconds)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("holder"));
    db.setDatabaseName(strFile);
    if (!db.open() || !runAll(db, strStatements.split(QLatin1Char(';')))) {
        return EXIT_FAILURE;
    }
    say("held");
    pollfd input{STDIN_FILENO, POLLIN, 0};
    poll(&input, 1, iMilliseconds);
    db.close();
    say("gone");
    return EXIT_SUCCESS;
}

int write(const QString &strBase, int iFirst)
{
    CommonData data;
    const GivenContext given(data);
    say("start");
    if (!DB::initByUserName(QStringLiteral("user"), strBase, true)) {
        return EXIT_FAILURE;
    }
    for (int i = iFirst; DBConfInfo::saveConfInfo(numberedRecord(i)); ++i) {
        say(QByteArray::number(i));
    }
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 5 && arguments.at(1) == QLatin1String("hold")) {
        return hold(arguments.at(2), arguments.at(3), arguments.at(4).toInt());
    }
    return arguments.size() == 4 ? write(arguments.at(2), arguments.at(3).toInt()) : EXIT_FAILURE;
}
