#include "panes/KeysPane.h"

#include "ui_KeysPane.h"

#include "desktop/PromptKey.h"

#include <QLineEdit>

KeysPane::KeysPane(PromptKey &key, QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::KeysPane>()), m_key(key)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    nameField();
    connect(ui->boxPromptKey, &QCheckBox::clicked, this, [this](bool bChecked) { set(bChecked, PromptKey::key()); });
    connect(ui->editPromptKey, &QKeySequenceEdit::editingFinished, this, &KeysPane::takeKey);
    connect(&m_key, &PromptKey::changed, this, &KeysPane::showKey);
}

KeysPane::~KeysPane() = default;

/// A screen reader meets the field's own line too, which has no name of itself.
void KeysPane::nameField()
{
    for (QLineEdit *line : ui->editPromptKey->findChildren<QLineEdit *>()) {
        line->setAccessibleName(ui->editPromptKey->accessibleName());
    }
}

void KeysPane::takeKey()
{
    const QKeySequence pressed = ui->editPromptKey->keySequence();
    if (pressed.isEmpty()) {
        showKey();
    } else if (!HotKey::isFit(pressed)) {
        ui->lblPromptKeyNote->setText(
            tr("%1 is needed for typing. Press a key together with Ctrl, Alt or the Windows key, or one of F1 to F35.")
                .arg(QKeySequence(pressed[0]).toString(QKeySequence::NativeText)));
    } else {
        set(PromptKey::isWanted(), QKeySequence(pressed[0]));
    }
}

void KeysPane::set(bool bWanted, const QKeySequence &key)
{
    emit taken(m_key.set(bWanted, key));
}

void KeysPane::showKey()
{
    const bool bWanted = PromptKey::isWanted();
    ui->boxPromptKey->setChecked(bWanted);
    ui->editPromptKey->setEnabled(bWanted);
    ui->editPromptKey->setKeySequence(PromptKey::key());
    ui->lblPromptKeyNote->setText(words());
}

QString KeysPane::words() const
{
    const QString key = PromptKey::key().toString(QKeySequence::NativeText);
    switch (m_key.outcome()) {
    case HotKey::On:
        return tr("%1 goes to the prompt of a ringing call from every program. Press another key in the field to "
                  "change "
                  "it.")
            .arg(key);
    case HotKey::Taken:
        return tr("The desktop refuses %1: another program has it. Press another key in the field.").arg(key);
    case HotKey::Unfit:
        return tr("This keyboard has no %1. Press another key in the field.").arg(key);
    case HotKey::Unoffered:
        return tr("This desktop gives no program a key of its own. In its own settings you may find a way; in the "
                  "client's windows Ctrl+I goes to the prompt.");
    default:
        return tr("In the client's windows Ctrl+I goes to the prompt of a ringing call; this key does so from every "
                  "program.");
    }
}

void KeysPane::showEvent(QShowEvent *event)
{
    showKey();
    QWidget::showEvent(event);
}

void KeysPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        nameField();
        showKey();
    }
    QWidget::changeEvent(event);
}
