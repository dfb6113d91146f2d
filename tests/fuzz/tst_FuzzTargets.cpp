// The short run of the fuzzers in the suite: the kept inputs and some thousand changed ones through each target. What
// breaks a target ends the program. More changed inputs than that, and from more kept ones, on request:
//   FUZZ_INPUTS=1000000 FUZZ_FOLDER=.../build-fuzz/corpus/jid tst_FuzzTargets changedInputsPass:jid

#include "FuzzApplication.h"
#include "FuzzTargets.h"

#include "fakes/FileBytes.h"
#include "wire/Notifications.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <random>

namespace {

constexpr quint32 cSeed = 20240607;
constexpr int cMostChanges = 8;
constexpr int cChangedInputs = 2000;
constexpr qint64 cMostGrowthMiB = 64;

QString folderOf(const char *kind, const char *target)
{
    return QStringLiteral(VOIP_FUZZ_FOLDER "/") + QLatin1String(kind) + QLatin1Char('/') + QLatin1String(target);
}

/// The files of a folder; none for an empty name.
QList<QByteArray> contentsOf(const QString &folder)
{
    QList<QByteArray> contents;
    const QFileInfoList files = folder.isEmpty() ? QFileInfoList() : QDir(folder).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files) {
        contents += readBytes(file.filePath());
    }
    return contents;
}

/// The memory that this process has in the machine.
qint64 residentMiB()
{
    const QList<QByteArray> words = readBytes(QStringLiteral("/proc/self/statm")).split(' ');
    return words.value(1).toLongLong() * Q_INT64_C(4096) / Q_INT64_C(1048576);
}

/// The kept inputs of a target by their paths below fuzz/.
QMap<QString, QByteArray> keptInputs(const FuzzTarget &target)
{
    QMap<QString, QByteArray> inputs;
    for (const char *kind : {"corpus", "found"}) {
        const QDir folder(folderOf(kind, target.seeds));
        const QStringList names = folder.entryList(QDir::Files);
        for (const QString &name : names) {
            inputs[QLatin1String(kind) + QLatin1Char('/') + name] = readBytes(folder.filePath(name));
        }
    }
    return inputs;
}

/// The entries of a target's dictionary. A line that is no entry gives a null one.
QList<QByteArray> dictionaryOf(const FuzzTarget &target)
{
    QList<QByteArray> words;
    const QList<QByteArray> lines =
        readBytes(folderOf(".", target.seeds) + QLatin1String(".dict")).trimmed().split('\n');
    for (const QByteArray &line : lines) {
        QByteArray word;
        for (int i = 1; i < line.size() - 1; ++i) {
            if (line.at(i) != '\\') {
                word += line.at(i);
            } else if (line.at(i + 1) == 'x') {
                word += QByteArray::fromHex(line.mid(i + 2, 2));
                i += 3;
            } else {
                word += line.at(++i);
            }
        }
        words += line.startsWith('"') && line.endsWith('"') ? word : QByteArray();
    }
    return words;
}

/// Changes kept inputs as a fuzzer does, the same ones in each run.
class Changer
{
public:
    explicit Changer(const FuzzTarget &target)
        : m_inputs(keptInputs(target).values() + contentsOf(qEnvironmentVariable("FUZZ_FOLDER"))),
          m_words(dictionaryOf(target)), m_longest(target.longest)
    {
    }

    QByteArray next()
    {
        QByteArray input = anyOf(m_inputs);
        for (int left = 1 + below(cMostChanges); left > 0; --left) {
            change(input);
        }
        return input.left(m_longest);
    }

private:
    void change(QByteArray &input)
    {
        const int place = below(input.size() + 1);
        const int length = below(input.size() - place + 1);
        switch (below(6)) {
        case 0:
            input.insert(place, char(below(256)));
            break;
        case 1:
            input.remove(place, length);
            break;
        case 2:
            input.insert(place, anyOf(m_words));
            break;
        case 3:
            input.insert(below(input.size() + 1), input.mid(place, length));
            break;
        case 4:
            input.replace(place, length, anyOf(m_inputs).mid(below(40)));
            break;
        default:
            if (place < input.size()) {
                input[place] = char(input.at(place) ^ (1 << below(8)));
            }
        }
    }

    const QByteArray &anyOf(const QList<QByteArray> &list) { return list.at(below(list.size())); }
    int below(int limit) { return int(m_random() % quint32(limit)); }

    const QList<QByteArray> m_inputs;
    const QList<QByteArray> m_words;
    const int m_longest;
    std::minstd_rand m_random{cSeed};
};

void eachTargetIsARow()
{
    QTest::addColumn<QByteArray>("name");
    for (const FuzzTarget &target : cFuzzTargets) {
        QTest::newRow(target.name) << QByteArray(target.name);
    }
}

/// In memory where there is room, since some targets write a file for each input.
QString folderForInputs()
{
    const QString memory = QStringLiteral("/dev/shm");
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

} // namespace

class tst_FuzzTargets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        FuzzApplication::silenceQt();
        // What is made once is no input's time.
        for (const FuzzTarget &target : cFuzzTargets) {
            target.run(keptInputs(target).first());
        }
    }

    void everyTargetHasInputsAndADictionary_data() { eachTargetIsARow(); }

    void everyTargetHasInputsAndADictionary()
    {
        QFETCH(const QByteArray, name);
        const FuzzTarget &target = *findFuzzTarget(name);
        const QList<QByteArray> words = dictionaryOf(target);
        QVERIFY(words.size() > 1);
        QVERIFY(!words.contains(QByteArray()));
        const QMap<QString, QByteArray> inputs = keptInputs(target);
        QVERIFY(inputs.size() > 4);
        for (auto input = inputs.cbegin(); input != inputs.cend(); ++input) {
            QVERIFY2(input->size() <= target.longest, qPrintable(input.key()));
        }
    }

    void wireDictionaryHasEveryNotification()
    {
        const QList<QByteArray> words = dictionaryOf(*findFuzzTarget("wire"));
        for (const Wire::NotificationRow &row : Wire::cNotifications) {
            const QByteArray line = "{\"resultCode\":" + QByteArray::number(static_cast<int>(row.code)) + ",";
            const bool known = std::any_of(words.begin(), words.end(),
                                           [&line](const QByteArray &word) { return word.startsWith(line); });
            QVERIFY2(known || row.content == Wire::Content::Open, line.constData());
        }
    }

    void everyFolderBelongsToATarget()
    {
        for (const char *kind : {"corpus", "found"}) {
            const QStringList names = QDir(folderOf(kind, "")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            for (const QString &name : names) {
                QVERIFY2(findFuzzTarget(name.toLatin1()), qPrintable(name));
            }
        }
        QVERIFY(!findFuzzTarget("nothing"));
    }

    void keptInputsPass_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("input");
        for (const FuzzTarget &target : cFuzzTargets) {
            const QMap<QString, QByteArray> inputs = keptInputs(target);
            for (auto input = inputs.cbegin(); input != inputs.cend(); ++input) {
                QTest::addRow("%s %s", target.name, qPrintable(input.key())) << QByteArray(target.name) << *input;
            }
        }
    }

    void keptInputsPass()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, input);
        const FuzzTarget &target = *findFuzzTarget(name);
        const int cpuMs = cpuMsOf(target, input);
        QVERIFY2(cpuMs <= mostCpuMs(target), qPrintable(QString::number(cpuMs)));
    }

    void changedInputsPass_data() { eachTargetIsARow(); }

    void changedInputsPass()
    {
        QFETCH(const QByteArray, name);
        const int count =
            qEnvironmentVariableIsSet("FUZZ_INPUTS") ? qEnvironmentVariableIntValue("FUZZ_INPUTS") : cChangedInputs;
        const qint64 before = residentMiB();
        const FuzzTarget &target = *findFuzzTarget(name);
        Changer changer(target);
        for (int i = 0; i < count; ++i) {
            const QByteArray input = changer.next();
            const int cpuMs = cpuMsOf(target, input);
            QVERIFY2(cpuMs <= mostCpuMs(target),
                     qPrintable(QStringLiteral("%1 ms: %2").arg(cpuMs).arg(input.toHex().constData())));
        }
        const qint64 growth = residentMiB() - before;
        QVERIFY2(isSanitized() || growth <= cMostGrowthMiB, qPrintable(QStringLiteral("%1 MiB more").arg(growth)));
    }

private:
    FuzzApplication m_application{folderForInputs()};
};

// Its application is one of its own.
#include "support/TestProgram.h"
VOIP_TEST(tst_FuzzTargets, Appless)
#include "tst_FuzzTargets.moc"
