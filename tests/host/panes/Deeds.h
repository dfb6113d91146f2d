#pragma once

// What a person does by the real mouse and the real keys, one thing after another, while event loops of dialogs come
// and go. GUI thread.

#include "screen/WindowProbe.h"

#include "fakes/Patience.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QMenu>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

/// Deeds that are done in their order, each as soon as it says so itself.
class Deeds : public QObject
{
public:
    /// One attempt; true when it is done.
    using Deed = std::function<bool()>;

    explicit Deeds(std::vector<Deed> deeds) : m_deeds(std::move(deeds))
    {
        connect(&m_timer, &QTimer::timeout, this, &Deeds::goOn);
        m_timer.start(20);
        m_clock.start();
    }

    /// Waits until all are done. False when one cannot be done; dialogs that are modal then are closed.
    bool finish()
    {
        return QTest::qWaitFor([this] { return done() || (m_bStuck && QApplication::activeModalWidget() == nullptr); },
                               2 * cPatienceMs) &&
               done();
    }

    /// Whether all are done; false as long as one is not.
    bool done() const { return m_next == m_deeds.size(); }

    /// Clicks with the real mouse in the middle of the part of that name, once it is seen in a window that is shown and
    /// stands still, and again, as a person does, as long as that has no effect.
    template <typename Find>
    static Deed click(Find window, const QByteArray &strPart, const std::function<bool()> &hasEffect)
    {
        return [window, strPart, hasEffect, last = QPoint(), same = 0]() mutable {
            if (hasEffect()) {
                return true;
            }
            const QWidget *top = window();
            const auto *part = top == nullptr || !top->isVisible()
                                   ? nullptr
                                   : top->template findChild<QWidget *>(QLatin1String(strPart));
            if (part != nullptr && part->isVisible() && part->isEnabled()) {
                const QPoint place = part->mapTo(top, part->rect().center());
                same = std::exchange(last, place) == place ? same + 1 : 0;
                if (same % cLooks == cLooks / 5) {
                    clickIn(*top, place);
                }
            }
            return false;
        };
    }

    /// Presses a key of the real keyboard, "ctrl+i", "Return".
    static Deed key(const QByteArray &strKey)
    {
        return [strKey] {
            return QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("key"), QLatin1String(strKey)}) == 0;
        };
    }

    /// Does that, and again, as a person does, as long as it has no effect.
    static Deed again(const Deed &what, const std::function<bool()> &hasEffect)
    {
        return [what, hasEffect, looks = 0]() mutable {
            if (hasEffect()) {
                return true;
            }
            if (looks++ % cLooks == 0) {
                what();
            }
            return false;
        };
    }

    /// Opens a menu in that way and chooses the item of that text in it, by the real keys or the real mouse.
    static std::vector<Deed> choose(const Deed &open, bool bByKeys, const QString &strItem,
                                    const std::function<bool()> &hasEffect)
    {
        const auto isCurrent = [strItem] {
            const auto *menu = qobject_cast<const QMenu *>(QApplication::activePopupWidget());
            return menu != nullptr && menu->activeAction() != nullptr && menu->activeAction()->text() == strItem;
        };
        const auto clickItem = [strItem] {
            const WindowProbe::Spot item = WindowProbe::menuItem(strItem);
            return item.widget != nullptr && clickOn(*item.widget, item.place);
        };
        const Deed isOpen = [] { return !WindowProbe::menuTexts().isEmpty(); };
        return bByKeys ? std::vector<Deed>{again(open, isOpen), again(key("Down"), isCurrent),
                                           again(key("Return"), hasEffect)}
                       : std::vector<Deed>{again(open, isOpen), again(clickItem, hasEffect)};
    }

    /// Waits until that is so.
    static Deed until(std::function<bool()> isSo) { return isSo; }

    /// Does that, once.
    static Deed act(std::function<void()> what)
    {
        return [what = std::move(what)] {
            what();
            return true;
        };
    }

    /// How the mouse is clicked.
    enum Click
    {
        Single,
        Double,
        Right
    };

    /// Clicks with the real mouse at that place of a window, wherever the server has it: where a window manager is
    /// late, Qt may have the window's own place wrong.
    static bool clickIn(const QWidget &window, const QPoint &place, Click click = Single)
    {
        const QPoint pixel = place * window.devicePixelRatioF();
        return QProcess::execute(QStringLiteral("xdotool"),
                                 {QStringLiteral("mousemove"), QStringLiteral("--window"),
                                  QString::number(window.winId()), QString::number(pixel.x()),
                                  QString::number(pixel.y()), QStringLiteral("click"), QStringLiteral("--repeat"),
                                  QString::number(click == Double ? 2 : 1), QStringLiteral("--delay"),
                                  QStringLiteral("10"), QString::number(click == Right ? 3 : 1)}) == 0;
    }

    /// The same on a part of a window, at that place of the part.
    static bool clickOn(const QWidget &part, const QPoint &place, Click click = Single)
    {
        return clickIn(*part.window(), part.mapTo(part.window(), place), click);
    }

    /// Whether the server gives the keys to the window. Qt may be ahead of it; keys that the window manager takes go
    /// there.
    static bool hasKeys(const QWidget &window)
    {
        QProcess process;
        process.start(QStringLiteral("xdotool"), {QStringLiteral("getwindowfocus")});
        process.waitForFinished(cPatienceMs);
        return process.readAllStandardOutput().trimmed() == QByteArray::number(window.winId());
    }

    /// Where the server has the window, without its frame; empty while it has none such.
    static QRect placeOf(const QWidget &window)
    {
        QProcess process;
        process.start(QStringLiteral("xdotool"), {QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"),
                                                  QString::number(window.winId())});
        process.waitForFinished(cPatienceMs);
        QHash<QByteArray, int> values;
        for (const QByteArray &line : process.readAllStandardOutput().split('\n')) {
            const QList<QByteArray> words = line.split('=');
            values.insert(words.first(), words.last().toInt());
        }
        const qreal ratio = window.devicePixelRatioF();
        return {qRound(values.value("X") / ratio), qRound(values.value("Y") / ratio),
                qRound(values.value("WIDTH") / ratio), qRound(values.value("HEIGHT") / ratio)};
    }

private:
    // So many looks at a part that stands still go from one click to the next; the first comes after a fifth of them.
    static constexpr int cLooks = 50;

    void goOn()
    {
        if (m_bBusy || done()) {
            return;
        }
        m_bBusy = true;
        if (m_deeds.at(m_next)()) {
            ++m_next;
            m_clock.start();
        } else if (m_clock.hasExpired(cPatienceMs)) {
            qWarning("deed %d cannot be done", int(m_next));
            m_bStuck = true;
        }
        // The loops of the dialogs end, so that the test goes on and fails.
        QWidget *modal = m_bStuck ? QApplication::activeModalWidget() : nullptr;
        if (modal != nullptr) {
            modal->close();
        }
        m_bBusy = false;
    }

    std::vector<Deed> m_deeds;
    std::size_t m_next = 0;
    bool m_bBusy = false;
    bool m_bStuck = false;
    QTimer m_timer;
    QElapsedTimer m_clock;
};
