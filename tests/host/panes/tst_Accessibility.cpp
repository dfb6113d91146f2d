#include "client/HostLanguage.h"
#include "panes/MemberPicker.h"

#include "host/history/CallRows.h"
#include "host/panes/ClientTest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QMap>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>

/// Every window of the demo in every language: what the keyboard can reach has a name, no letter is given away twice,
/// and no words are cut off.
class tst_Accessibility : public ClientTest
{
    Q_OBJECT

public:
    tst_Accessibility() : ClientTest(Begin::SignedIn) {}

private slots:
    void initTestCase()
    {
        ClientTest::initTestCase();
        QAccessible::setActive(true);
    }

    void init()
    {
        m_pLanguage = std::make_unique<HostLanguage>(QStringLiteral(VOIP_TRANSLATIONS));
        ClientTest::init();
        m_pSession->setOnline(true);
        if (QTest::currentDataTag() != nullptr) {
            QVERIFY(m_pLanguage->use(QLatin1String(QTest::currentDataTag())));
            m_pWindow->findChild<QAbstractButton *>(QStringLiteral("happeningsButton"))->setChecked(true);
        }
        // With a notice, a count, and something to undo.
        auto *calls = m_pWindow->findChild<QTableView *>(QStringLiteral("tableRecords"));
        m_pSession->history().add(callRow("30010001", 2));
        calls->setFocus();
        QTest::keyClick(calls, Qt::Key_Delete);
        m_pSession->history().add(missedRow("30010001", 1));
        m_pSession->history().add(missedRow("30010002"));
        m_pPicker = std::make_unique<MemberPicker>(*m_pBook, MemberPicker::NewConference, QStringList(), nullptr);
        m_pWindow->prompt().prompt(QStringLiteral("30010002"), false, false);
        m_pWindow->signature().showCard(QStringLiteral("30010002@example.org"), QPoint(300, 0), 100);
        for (QWidget *window : windows()) {
            window->show();
            QVERIFY(QTest::qWaitForWindowExposed(window, cPatienceMs));
        }
        m_pWindow->settingsPage().open();
        QCoreApplication::processEvents();
    }

    void cleanup()
    {
        m_pPicker.reset();
        ClientTest::cleanup();
        m_pLanguage.reset();
    }

    void everythingThatTakesTheFocusHasAName_data() { addLanguages(); }

    void everythingThatTakesTheFocusHasAName()
    {
        int found = 0;
        for (const QWidget *window : windows()) {
            const QList<QWidget *> parts = window->findChildren<QWidget *>();
            for (QWidget *part : parts) {
                if (part->focusPolicy() == Qt::NoFocus || !part->isVisible()) {
                    continue;
                }
                ++found;
                const QAccessibleInterface *face = QAccessible::queryAccessibleInterface(part);
                QVERIFY2(face != nullptr && !face->text(QAccessible::Name).trimmed().isEmpty(),
                         qPrintable(nameOf(part)));
            }
        }
        // Contacts with their buttons, the search, a number, header, records, what happens, prompt, settings and
        // picker.
        QVERIFY2(found >= 40, qPrintable(QString::number(found)));
    }

    void aLetterBelongsToOneControl_data() { addLanguages(); }

    void aLetterBelongsToOneControl()
    {
        static const QRegularExpression mark(QStringLiteral("&([^&])"));
        int letters = 0;
        for (const QWidget *window : windows()) {
            QMap<QString, QString> owners;
            const QList<QWidget *> parts = window->findChildren<QWidget *>();
            for (const QWidget *part : parts) {
                const auto *label = qobject_cast<const QLabel *>(part);
                if (!part->isVisible() || part->window() != window || (label != nullptr && label->buddy() == nullptr)) {
                    continue;
                }
                const QRegularExpressionMatch match = mark.match(part->property("text").toString());
                if (!match.hasMatch()) {
                    continue;
                }
                ++letters;
                const QString letter = match.captured(1).toUpper();
                QVERIFY2(!owners.contains(letter),
                         qPrintable(letter + ": " + nameOf(part) + ", " + owners.value(letter)));
                owners.insert(letter, nameOf(part));
            }
        }
        QVERIFY2(letters >= 10, qPrintable(QString::number(letters)));
    }

    void buttonsHaveRoomForTheirWords_data() { addLanguages(); }

    void buttonsHaveRoomForTheirWords()
    {
        for (const QWidget *window : windows()) {
            const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
            for (const QAbstractButton *button : buttons) {
                if (button->isVisible() && !button->text().isEmpty()) {
                    QVERIFY2(button->width() >= button->minimumSizeHint().width(), qPrintable(nameOf(button)));
                }
            }
        }
    }

    void everyControlOfTheWindowIsReachedByTab()
    {
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        m_pWindow->findChild<QWidget *>(QStringLiteral("editSearch"))->setFocus();
        QStringList stops;
        for (int i = 0; i < 14; ++i) {
            stops.append(m_pWindow->focusWidget()->objectName());
            QTest::keyClick(m_pWindow->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(stops, (QStringList{"editSearch", "30010001", "btnCall", "btnVideo", "editNumber", "btnConference",
                                     "btnMissed", "btnCentre", "btnCallAgain", "btnSeen", "editCallSearch",
                                     "btnFilterAll", "tableRecords", "btnUndo"}));
        QCOMPARE(m_pWindow->focusWidget()->objectName(), QStringLiteral("happeningsButton"));
    }

private:
    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        for (const HostLanguage::Choice &choice : HostLanguage::choices()) {
            QTest::newRow(qPrintable(choice.setting)) << choice.setting;
        }
    }

    /// The windows, all shown.
    QList<QWidget *> windows() const
    {
        return {m_pWindow.get(), &m_pWindow->prompt(), &m_pWindow->settingsPage(), &m_pWindow->signature(),
                m_pPicker.get()};
    }
    static QString nameOf(const QWidget *widget)
    {
        return QStringLiteral("%1 %2 in %3")
            .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
                 QLatin1String(widget->window()->metaObject()->className()));
    }

    std::unique_ptr<HostLanguage> m_pLanguage;
    std::unique_ptr<MemberPicker> m_pPicker;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Accessibility, Widgets)
#include "tst_Accessibility.moc"
