#include "panes/DeviceBox.h"

#include <QEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace {

using Device = SoundDevices::Device;

constexpr int cLeastLetters = 24;
// Whole rows that are seen of a long list.
constexpr int cRows = 8;
constexpr qreal cArrowWidth = 8;
constexpr qreal cArrowHeight = 5;
constexpr qreal cArrowMargin = 12;
constexpr qreal cArrowLine = 1.5;

bool isSame(const QComboBox &box, const QList<Device> &rows)
{
    int row = 0;
    return box.count() == rows.size() && std::all_of(rows.begin(), rows.end(), [&](const Device &device) {
               const int at = row++;
               return box.itemData(at).toString() == device.name && box.itemText(at) == device.shown;
           });
}

} // namespace

DeviceBox::DeviceBox(QWidget *parent) : QComboBox(parent)
{
    setMaxVisibleItems(cRows);
    // A device of a long name does not widen the page.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(cLeastLetters);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &DeviceBox::take);
}

void DeviceBox::showDevices(SoundChoice &choice, SoundChoice::Role role)
{
    m_pChoice = &choice;
    m_role = role;
    connect(m_pChoice, &SoundChoice::changed, this, &DeviceBox::fill);
    fill();
}

QString DeviceBox::desktopWords() const
{
    const SoundDevices::Lists &lists = m_pChoice->devices().lists();
    const QString &name = m_role == SoundChoice::Microphone ? lists.microphone : lists.speaker;
    const QList<Device> &there = m_pChoice->present(m_role);
    const auto found =
        std::find_if(there.begin(), there.end(), [&](const Device &device) { return device.name == name; });
    return found == there.end() ? tr("As the desktop has it") : tr("As the desktop has it (%1)").arg(found->shown);
}

void DeviceBox::fill()
{
    const Device chosen = m_pChoice->chosen(m_role);
    QList<Device> rows = m_pChoice->present(m_role);
    rows.prepend({QString(), desktopWords()});
    const auto isChosen = [&](const Device &device) { return device.name == chosen.name; };
    if (std::none_of(rows.begin(), rows.end(), isChosen)) {
        rows.append(
            {chosen.name, m_pChoice->isMissing(m_role) ? tr("%1 (not there)").arg(chosen.shown) : chosen.shown});
    }
    // A list that is open stays as it is while nothing changes.
    if (!isSame(*this, rows)) {
        clear();
        for (const Device &device : rows) {
            addItem(device.shown, device.name);
            setItemData(count() - 1, device.name, Qt::ToolTipRole);
        }
    }
    setCurrentIndex(findData(chosen.name));
    setToolTip(chosen.name);
}

void DeviceBox::take(int iRow)
{
    const QString name = itemData(iRow).toString();
    // A missing device that stays chosen is not stored again: its row adds "(not there)" to its name.
    if (name != m_pChoice->chosen(m_role).name) {
        emit taken(m_pChoice->choose(m_role, {name, itemText(iRow)}));
    }
}

void DeviceBox::paintEvent(QPaintEvent *event)
{
    QComboBox::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Text), cArrowLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tip(width() - cArrowMargin - cArrowWidth / 2, (height() + cArrowHeight) / 2);
    const std::array<QPointF, 3> arrow{{{tip.x() - cArrowWidth / 2, tip.y() - cArrowHeight},
                                        tip,
                                        {tip.x() + cArrowWidth / 2, tip.y() - cArrowHeight}}};
    painter.drawPolyline(arrow.data(), int(arrow.size()));
}

void DeviceBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_pChoice != nullptr) {
        fill();
    }
    QComboBox::changeEvent(event);
}

void DeviceBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
