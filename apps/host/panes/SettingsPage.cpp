#include "panes/SettingsPage.h"

#include "ui_SettingsPage.h"

#include "client/HostLanguage.h"
#include "client/HostPictures.h"
#include "client/HostSkins.h"
#include "panes/KeysPane.h"
#include "panes/PageArea.h"
#include "panes/SoundPane.h"
#include "panes/WindowPlace.h"

#include <QAccessible>
#include <QDir>
#include <QFileDialog>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr int cSwatchSize = 18;
// The property in which a page keeps what it is called, before the translation.
constexpr const char *cName = "pageName";

} // namespace

SettingsPage::SettingsPage(HostSettings &settings, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::SettingsPage>()), m_settings(settings)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_QuitOnClose, false);
    addLanguages();
    addSkins();
    orderTabs();
    connectFolders();
    HostSkins::dress(this);
    connect(ui->boxSilent, &QCheckBox::clicked, this,
            [this](bool bSilent) { tellKept(HostSettings::setSilent(bSilent), HostSettings::userFile()); });
    connect(ui->btnClose, &QPushButton::clicked, this, &QDialog::close);
    connect(&m_settings, &HostSettings::skinChanged, this, [this] { HostSkins::dress(this); });
}

SettingsPage::~SettingsPage() = default;

void SettingsPage::addSound(SoundChoice &choice, CallService &service)
{
    auto *pane = new SoundPane(choice, service);
    connect(pane, &SoundPane::taken, this, [this](bool bKept) { tellKept(bKept, HostSettings::userFile()); });
    addPage(pane, QT_TR_NOOP("&Sound"));
}

void SettingsPage::addKeys(PromptKey &key)
{
    auto *pane = new KeysPane(key);
    connect(pane, &KeysPane::taken, this, [this](bool bKept) { tellKept(bKept, HostSettings::userFile()); });
    addPage(pane, QT_TR_NOOP("&Keyboard"));
}

void SettingsPage::addPage(QWidget *page, const char *strName)
{
    auto *area = new PageArea(ui->tabs);
    area->setWidget(page);
    area->setProperty(cName, strName);
    ui->tabs->addTab(area, tr(strName));
    // Tab goes from a page's last control to the Close button.
    const QList<QWidget *> parts = page->findChildren<QWidget *>();
    const auto last = std::find_if(parts.rbegin(), parts.rend(), [this](const QWidget *part) {
        return part->window() == this && (part->focusPolicy() & Qt::TabFocus) != 0;
    });
    if (last != parts.rend()) {
        setTabOrder(*last, ui->btnClose);
    }
    HostSkins::dress(this);
}

/// The form names the page that it has itself.
void SettingsPage::namePages()
{
    for (int page = 1; page < ui->tabs->count(); ++page) {
        ui->tabs->setTabText(page, tr(ui->tabs->widget(page)->property(cName).toByteArray()));
    }
}

void SettingsPage::fitScreen()
{
    // A style sheet changes sizes once a part is polished, and no layout notices: all are told, inner ones first.
    const QList<QWidget *> parts = findChildren<QWidget *>();
    std::for_each(parts.begin(), parts.end(), [](const QWidget *part) { part->ensurePolished(); });
    std::for_each(parts.rbegin(), parts.rend(), [](QWidget *part) { part->updateGeometry(); });
    for (const PageArea *area : findChildren<PageArea *>()) {
        area->widget()->layout()->invalidate();
        area->widget()->layout()->activate();
    }
    const QList<QRect> screens = WindowPlace::insides();
    if (screens.isEmpty()) {
        return;
    }
    const QSize room = screens.first().size();
    setMinimumSize(minimumSize().boundedTo(room));
    // As large as it was made by hand, or as it wants to be.
    const QSize wanted = testAttribute(Qt::WA_Resized) ? size() : sizeHint().expandedTo(minimumSize());
    resize(wanted.boundedTo(room));
}

void SettingsPage::addLanguages()
{
    for (const HostLanguage::Choice &choice : HostLanguage::choices()) {
        auto *button = new QRadioButton(choice.ownName, ui->languages);
        button->setObjectName(QStringLiteral("language_") + choice.setting);
        connect(button, &QRadioButton::clicked, this,
                [this, choice] { tellKept(m_settings.setLanguage(choice.setting), HostSettings::commonFile()); });
        ui->languagesLayout->addWidget(button);
    }
    ui->languagesLayout->addStretch();
}

void SettingsPage::addSkins()
{
    for (const QString &name : HostSkins::names()) {
        auto *button = new QRadioButton(ui->skins);
        button->setObjectName(QStringLiteral("skin_") + name);
        button->setIcon(HostPictures::swatch(HostSkins::mainColour(name), cSwatchSize));
        button->setIconSize(QSize(cSwatchSize, cSwatchSize));
        connect(button, &QRadioButton::clicked, this,
                [this, name] { tellKept(m_settings.setSkin(name), HostSettings::userFile()); });
        ui->skinsLayout->addWidget(button);
    }
    ui->skinsLayout->addStretch();
    nameSkins();
}

void SettingsPage::nameSkins()
{
    for (const QString &name : HostSkins::names()) {
        ui->skins->findChild<QRadioButton *>(QStringLiteral("skin_") + name)->setText(HostSkins::shownName(name));
    }
}

/// Puts what the form does not know behind what stands above it.
void SettingsPage::orderTabs()
{
    QWidget *last = ui->boxSilent;
    for (const QWidget *group : {ui->languages, ui->skins}) {
        const QList<QRadioButton *> buttons = group->findChildren<QRadioButton *>();
        for (QRadioButton *button : buttons) {
            setTabOrder(last, button);
            last = button;
        }
    }
}

void SettingsPage::connectFolders()
{
    connect(ui->editDataFolder, &QLineEdit::editingFinished, this, [this] {
        takeFolder(ui->editDataFolder, HostSettings::dataFolder(), &HostSettings::setDataFolder,
                   HostSettings::commonFile());
    });
    connect(ui->editReceiveFolder, &QLineEdit::editingFinished, this, [this] {
        takeFolder(ui->editReceiveFolder, HostSettings::receiveFolder(), &HostSettings::setReceiveFolder,
                   HostSettings::userFile());
    });
    connect(ui->btnDataFolder, &QPushButton::clicked, this, [this] { browse(ui->editDataFolder); });
    connect(ui->btnReceiveFolder, &QPushButton::clicked, this, [this] { browse(ui->editReceiveFolder); });
}

void SettingsPage::open()
{
    clearErrors();
    showSettings();
    if (!isVisible()) {
        fitScreen();
    }
    show();
    raise();
    activateWindow();
}

void SettingsPage::showSettings()
{
    ui->boxSilent->setChecked(HostSettings::isSilent());
    const QString language = QStringLiteral("language_") + HostLanguage::choiceOf(HostSettings::language());
    ui->languages->findChild<QRadioButton *>(language)->setChecked(true);
    ui->skins->findChild<QRadioButton *>(QStringLiteral("skin_") + HostSettings::skin())->setChecked(true);
    ui->editDataFolder->setText(QDir::toNativeSeparators(HostSettings::dataFolder()));
    ui->editReceiveFolder->setText(QDir::toNativeSeparators(HostSettings::receiveFolder()));
    ui->lblDataNote->setText(
        HostSettings::isDataFolderPending()
            ? tr("Takes effect at the next start; what is in the old folder stays there.")
            : tr("Holds the settings, the calls, the conference records and the log of each user."));
    ui->lblFiles->setText(QDir::toNativeSeparators(HostSettings::userFile()) + QLatin1Char('\n') +
                          QDir::toNativeSeparators(HostSettings::commonFile()));
}

/// Says what became of a choice: one that its file has not taken gives way to what is in force.
void SettingsPage::tellKept(bool bKept, const QString &strFile)
{
    showSettings();
    if (bKept) {
        ui->lblNotKept->clear();
        return;
    }
    ui->lblNotKept->setText(tr("Nothing was changed: %1 cannot be written to.").arg(QDir::toNativeSeparators(strFile)));
    QAccessibleEvent alert(ui->lblNotKept, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void SettingsPage::clearErrors()
{
    ui->lblFolderError->clear();
    ui->lblNotKept->clear();
}

void SettingsPage::takeFolder(const QLineEdit *edit, const QString &strBefore, FolderSetter set, const QString &strFile)
{
    const QString wanted = QDir::fromNativeSeparators(edit->text().trimmed());
    ui->lblFolderError->clear();
    if (wanted == strBefore) {
        return;
    }
    const HostSettings::FolderOutcome outcome = set(wanted);
    if (outcome == HostSettings::FolderOutcome::Unusable) {
        ui->lblFolderError->setText(tr("This folder cannot be used: %1").arg(wanted));
    } else {
        tellKept(outcome == HostSettings::FolderOutcome::Taken, strFile);
    }
}

void SettingsPage::browse(QLineEdit *edit)
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Choose a folder"), edit->text());
    if (!chosen.isEmpty()) {
        edit->setText(QDir::toNativeSeparators(chosen));
        emit edit->editingFinished();
    }
}

void SettingsPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        nameSkins();
        namePages();
        clearErrors();
        showSettings();
    }
    QDialog::changeEvent(event);
}
