// The other program in the tests of the store: one that holds a file, or one that writes until it is killed. It says
// on standard output what it has done, a line each.
//
//   store_child hold FILE STATEMENT   opens the file, executes the statement, says "held" and waits for its input's end
//   store_child write BASE FIRST      says "start", opens the store of "user", then saves the numbered records from
//                                     FIRST on and says each number once the record is saved

#include "NumberedRecord.h"

#include "model/SharedContext.h"
#include "store/DB.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <cstdio>
#include <cstdlib>

namespace {

void say(const QByteArray &line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

int hold(const QString &strFile, const QString &strStatement)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("holder"));
    db.setDatabaseName(strFile);
    if (!db.open() || !QSqlQuery(db).exec(strStatement)) {
        return EXIT_FAILURE;
    }
    say("held");
    std::getchar();
    db.close();
    return EXIT_SUCCESS;
}

int write(const QString &strBase, int iFirst)
{
    CommonData data;
    SharedContext::setCommonData(&data);
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
    if (arguments.size() != 4) {
        return EXIT_FAILURE;
    }
    return arguments.at(1) == QLatin1String("hold") ? hold(arguments.at(2), arguments.at(3))
                                                    : write(arguments.at(2), arguments.at(3).toInt());
}
