// Every window on a real accessibility bus, in a language with Latin and one with Chinese letters: what takes the
// keyboard and every button has a role and a name in that language, and the real Tab key leads to each.

#include "client/HostLanguage.h"
#include "panes/ContactRow.h"

#include "common/CLogManger.h"
#include "fakes/Patience.h"
#include "host/panes/BusReader.h"
#include "host/panes/EveryWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

/// Counts how often the Tab key has come up in this process, whatever it did.
class TabCounter : public QObject
{
public:
    TabCounter() { qApp->installEventFilter(this); }
    int count() const { return m_iCount; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyRelease && watched->isWindowType() &&
            static_cast<QKeyEvent *>(event)->key() == Qt::Key_Tab) {
            // Once the window has dealt with it.
            QTimer::singleShot(0, this, [this] { ++m_iCount; });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    int m_iCount = 0;
};

} // namespace

class tst_WindowsOnTheBus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_reader.start());
        // The log keeps for good the writer that it first finds, and each session brings its own.
        CLogManger::instance();
        m_pLanguage = std::make_unique<HostLanguage>(QStringLiteral(VOIP_TRANSLATIONS));
    }

    void cleanupTestCase() { m_pLanguage.reset(); }

    void init()
    {
        QFETCH(QString, language);
        QFETCH(EveryWindow::Open, open);
        QVERIFY(m_pLanguage->use(language));
        m_pWindows = std::make_unique<EveryWindow>();
        m_pWindow = open(*m_pWindows);
        QVERIFY(m_pWindow != nullptr);
        m_pWindow->show();
        m_pWindow->raise();
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow, cPatienceMs));
    }

    void cleanup()
    {
        m_pWindow = nullptr;
        m_pWindows.reset();
    }

    void whatCanBeUsedHasRoleAndName_data() { addWindows({"en", "zh_CN"}); }

    void whatCanBeUsedHasRoleAndName()
    {
        QFETCH(QString, language);
        QStringList faults;
        int iUsable = 0;
        for (const Part &part : m_reader.shownIn(*m_pWindow)) {
            static const QRegularExpression privateUse(QStringLiteral("[\uE000-\uF8FF]"));
            if (part.name.contains(privateUse)) {
                faults.append(QStringLiteral("a glyph: ") + wordsOf(part));
            }
            if (!isUsable(part)) {
                continue;
            }
            ++iUsable;
            if (part.role.isEmpty() || part.role == QLatin1String("unknown") || part.role == QLatin1String("invalid")) {
                faults.append(QStringLiteral("no role: ") + wordsOf(part));
            }
            // A cell that shows nothing says nothing.
            if (part.name.trimmed().isEmpty() && part.role != QLatin1String("cell")) {
                faults.append(QStringLiteral("no name: ") + wordsOf(part));
            } else if (!isIn(language, part.name)) {
                faults.append(QStringLiteral("not in the language: ") + wordsOf(part));
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QFETCH(int, least);
        QVERIFY2(iUsable >= least, qPrintable(QString::number(iUsable)));
    }

    void tabLeadsToEverything_data() { addWindows({"en"}); }

    void tabLeadsToEverything()
    {
        QStringList missed;
        const QStringList stops = tabStops(missed);
        const QList<Part> parts = m_reader.shownIn(*m_pWindow);
        for (const Part &part : parts) {
            if (part.is(BusReader::Focusable) && part.is(BusReader::Enabled) && !isReached(part, stops, parts)) {
                missed.append(wordsOf(part));
            }
        }
        QVERIFY2(missed.isEmpty(), qPrintable(missed.join('\n')));
    }

    void cardOfAVideoCallSaysWhoItIsAndWhyNothingIsSeen_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<EveryWindow::Open>("open");
        QTest::addColumn<QString>("why");
        const EveryWindow::Open open = [](EveryWindow &w) { return w.callUnderItsCard(); };
        QTest::newRow("en") << QStringLiteral("en") << open << QStringLiteral("No picture here");
        QTest::newRow("zh_CN") << QStringLiteral("zh_CN") << open << QStringLiteral("这里没有画面");
    }

    void cardOfAVideoCallSaysWhoItIsAndWhyNothingIsSeen()
    {
        QFETCH(QString, why);
        QStringList words;
        for (const Part &part : m_reader.shownIn(m_pWindows->card())) {
            words.append(part.name);
        }
        QVERIFY2(words.contains(QStringLiteral("李雷")), qPrintable(words.join('\n')));
        QVERIFY2(!words.filter(why).isEmpty(), qPrintable(words.join('\n')));
    }

private:
    using Part = BusReader::Part;

    static void addWindows(const std::vector<const char *> &languages)
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<EveryWindow::Open>("open");
        QTest::addColumn<int>("least");
        const auto add = [&languages](const char *strName, int iLeast, const EveryWindow::Open &open) {
            for (const char *language : languages) {
                QTest::addRow("%s, %s", strName, language) << QString::fromLatin1(language) << open << iLeast;
            }
        };
        add("main window", 30, [](EveryWindow &w) { return w.main(); });
        add("lost call service", 25, [](EveryWindow &w) { return w.lostService(); });
        add("settings of calls", 8, [](EveryWindow &w) { return w.settings(0); });
        add("settings of sound", 3, [](EveryWindow &w) { return w.settings(1); });
        add("settings of keys", 2, [](EveryWindow &w) { return w.settings(2); });
        add("prompt", 2, [](EveryWindow &w) { return w.prompt(); });
        add("picker", 6, [](EveryWindow &w) { return w.picker(); });
        add("quit question", 2, [](EveryWindow &w) { return w.quitQuestion(); });
        add("message box", 2, [](EveryWindow &w) { return w.messageBox(); });
        add("centre", 2, [](EveryWindow &w) { return w.centre(false); });
        add("conference in the centre", 2, [](EveryWindow &w) { return w.centre(true); });
        add("outgoing call", 2, [](EveryWindow &w) { return w.callWindow(CVoipWidget::Voice, false); });
        add("voice call", 2, [](EveryWindow &w) { return w.callWindow(CVoipWidget::Voice, true); });
        add("video call", 2, [](EveryWindow &w) { return w.callWindow(CVoipWidget::Video, true); });
        add("video call under its card", 2, [](EveryWindow &w) { return w.callUnderItsCard(); });
        add("conference", 6, [](EveryWindow &w) { return w.callWindow(CVoipWidget::Conference, true); });
    }
    static QObject *objectOf(const Part &part)
    {
        return QAccessible::accessibleInterface(part.path.section('/', -1).toUInt())->object();
    }
    static QString wordsOf(const Part &part)
    {
        const QObject *object = objectOf(part);
        return QStringLiteral("%1 '%2' %3").arg(part.role, part.name, object ? object->objectName() : QString());
    }
    static bool isUsable(const Part &part)
    {
        static const QStringList roles{"push button", "toggle button", "check box", "radio button",
                                       "combo box",   "slider",        "page tab",  "list item"};
        return part.is(BusReader::Focusable) || roles.contains(part.role);
    }
    /// Whether a name's own words are of that language; numbers and proper names are of each.
    bool isIn(const QString &strLanguage, QString strName) const
    {
        for (const QString &strProper : m_pWindows->properNames()) {
            strName.remove(strProper);
        }
        static const QRegularExpression file(QStringLiteral("/\\S+"));
        strName.remove(file);
        static const QRegularExpression chinese(QStringLiteral("[\u4e00-\u9fa5]"));
        static const QRegularExpression latin(QStringLiteral("[A-Za-z]{2}"));
        return strLanguage == QLatin1String("en") ? !strName.contains(chinese)
                                                  : strName.contains(chinese) || !strName.contains(latin);
    }
    /// Where the keyboard stops while Tab goes round; those that the bus does not know the focus to be at, too.
    QStringList tabStops(QStringList &silent) const
    {
        const TabCounter tabs;
        const Part application = m_reader.applications().value(0);
        QStringList stops;
        while (QApplication::focusWidget() != nullptr) {
            Part stop;
            stop.service = application.service;
            stop.path = BusReader::pathOf(*QApplication::focusWidget());
            if (stops.contains(stop.path)) {
                break;
            }
            stops.append(stop.path);
            stop = m_reader.read(stop);
            // In a list of either kind its cell has the focus.
            static const QStringList lists{"list", "table", "tree"};
            if (!stop.is(BusReader::Focused) && !lists.contains(stop.role)) {
                silent.append(wordsOf(stop));
            }
            const int pressed = tabs.count() + 1;
            QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("Tab")});
            if (!QTest::qWaitFor([&] { return tabs.count() >= pressed; }, cPatienceMs)) {
                silent.append(QStringLiteral("the key did not come"));
                break;
            }
        }
        return stops;
    }
    /// Whether Tab leads there, or to where arrow keys lead on from.
    static bool isReached(const Part &part, const QStringList &stops, const QList<Part> &parts)
    {
        // Words that can be chosen with the mouse are read without the keyboard being there.
        if (stops.contains(part.path) || part.role == QLatin1String("label")) {
            return true;
        }
        const auto *widget = qobject_cast<const QWidget *>(objectOf(part));
        if (widget != nullptr && widget->focusProxy() != nullptr) {
            return stops.contains(BusReader::pathOf(*widget->focusProxy()));
        }
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool bOneOfMany = button != nullptr && (button->autoExclusive() || button->group() != nullptr);
        return qobject_cast<const ContactRow *>(widget) != nullptr || bOneOfMany
                   ? hasReachedNeighbour(part, stops, parts)
                   : widget == nullptr && isHeldByStop(part, stops, parts);
    }
    static bool hasReachedNeighbour(const Part &part, const QStringList &stops, const QList<Part> &parts)
    {
        return std::any_of(parts.begin(), parts.end(), [&](const Part &other) {
            return other.parent == part.parent && other.role == part.role && stops.contains(other.path);
        });
    }
    /// Whether an item is one of a list, a table, a box or a bar of tabs that Tab leads to.
    static bool isHeldByStop(const Part &item, const QStringList &stops, const QList<Part> &parts)
    {
        return stops.contains(item.parent) || std::any_of(parts.begin(), parts.end(), [&](const Part &holder) {
                   return holder.path == item.parent && isHeldByStop(holder, stops, parts);
               });
    }

    BusReader m_reader;
    std::unique_ptr<HostLanguage> m_pLanguage;
    std::unique_ptr<EveryWindow> m_pWindows;
    QWidget *m_pWindow = nullptr;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WindowsOnTheBus, Appless)
#include "tst_WindowsOnTheBus.moc"
