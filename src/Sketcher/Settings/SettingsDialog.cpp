#include "Settings/SettingsDialog.h"

#include "Model/UiText.h"
#include "View/SnapMarker.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace
{

/// What is chosen, and its caption.
using BoxChoices = QVector<std::pair<QVariant, QString>>;

QComboBox* MakeBox(const char* name, const BoxChoices& choices)
{
    auto* pBox = new QComboBox;
    pBox->setObjectName(QString::fromLatin1(name));
    for (const auto& [value, caption] : choices)
        pBox->addItem(caption, value);
    return pBox;
}

BoxChoices LanguageChoices(const QVector<Language>& languages)
{
    BoxChoices choices;
    for (const Language& language : languages)
        choices.append({language.locale, language.caption});
    return choices;
}

BoxChoices ColourChoices()
{
    const auto choice = [](Settings::Colours colours, const QString& caption) {
        return std::pair<QVariant, QString>(static_cast<int>(colours), caption);
    };
    return {choice(Settings::Colours::Desktop, "与桌面相同"_tr),
            choice(Settings::Colours::Light, "浅色"_tr), choice(Settings::Colours::Dark, "深色"_tr),
            choice(Settings::Colours::HighContrast, "高对比度"_tr)};
}

BoxChoices UnitChoices()
{
    BoxChoices choices;
    for (const char* unit : {"mm", "cm", "m", "inch"})
        choices.append({QString::fromLatin1(unit), QString::fromLatin1(unit)});
    return choices;
}

BoxChoices SpaceChoices()
{
    return {{true, "确定数值"_tr}, {false, "键入空格"_tr}};
}

/// A value that is not among the choices selects the first.
void Select(QComboBox& box, const QVariant& value)
{
    box.setCurrentIndex(std::max(0, box.findData(value)));
}

QSpinBox* MakeAutosave()
{
    auto* pMinutes = new QSpinBox;
    pMinutes->setObjectName(QStringLiteral("Autosave"));
    pMinutes->setRange(0, Settings::GreatestAutosaveMinutes);
    pMinutes->setSpecialValueText(Tr("关闭"_source, "off"));
    pMinutes->setSuffix(" 分钟"_tr);
    return pMinutes;
}

QLabel* MakeSettingsMessage()
{
    auto* pMessage = new QLabel;
    pMessage->setObjectName(QStringLiteral("SettingsMessage"));
    pMessage->setWordWrap(true);
    pMessage->setMargin(4);
    pMessage->setStyleSheet(
        QStringLiteral("background: #992f2c; color: white; border-radius: 4px"));
    pMessage->hide();
    return pMessage;
}

}

SettingsDialog::SettingsDialog(const Settings& settings, const QVector<Language>& languages,
                               const QString& defaultJournalFolder, QWidget* pParent)
    : QDialog(pParent), m_given(settings),
      m_pLanguage(MakeBox("Language", LanguageChoices(languages))),
      m_pColours(MakeBox("Colours", ColourChoices())), m_pUnit(MakeBox("Unit", UnitChoices())),
      m_pSpace(MakeBox("Space", SpaceChoices())), m_pFolder(new QLineEdit),
      m_pAutosave(MakeAutosave()), m_pMessage(MakeSettingsMessage())
{
    setObjectName(QStringLiteral("SettingsDialog"));
    setWindowTitle("设置"_tr);
    auto* pForm = new QFormLayout;
    pForm->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    pForm->addRow("语言(&L)"_tr, m_pLanguage);
    pForm->addRow("颜色(&C)"_tr, m_pColours);
    pForm->addRow("长度单位(&U)"_tr, m_pUnit);
    pForm->addRow("捕捉"_tr, MakeSnaps());
    pForm->addRow("键入数值时，空格键(&S)"_tr, m_pSpace);
    pForm->addRow("日志文件夹(&J)"_tr, MakeFolder(defaultJournalFolder));
    pForm->addRow("自动保存间隔(&A)"_tr, m_pAutosave);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pForm);
    pLayout->addWidget(m_pMessage);
    pLayout->addStretch();
    pLayout->addWidget(MakeButtons());
    Show(settings);
}

Settings SettingsDialog::Get() const
{
    Settings settings = m_given;
    settings.language = m_pLanguage->currentData().toString();
    settings.colours = static_cast<Settings::Colours>(m_pColours->currentData().toInt());
    settings.unit = m_pUnit->currentData().toString();
    settings.isSpaceCommitting = m_pSpace->currentData().toBool();
    for (std::size_t i = 0; i < m_snaps.size(); ++i)
        settings.snaps[i] = m_snaps[i]->isChecked();
    settings.journalFolder = QDir::fromNativeSeparators(m_pFolder->text().trimmed());
    settings.autosaveMinutes = m_pAutosave->value();
    return settings;
}

/// A folder that cannot be used is not stored: journals would silently go elsewhere.
void SettingsDialog::accept()
{
    const QString folder = Get().journalFolder;
    const QFileInfo info(folder);
    if (folder.isEmpty() || (info.isAbsolute() && info.isDir() && info.isWritable()))
    {
        QDialog::accept();
        return;
    }
    m_pMessage->setText(info.isDir() && info.isAbsolute() ? "日志文件夹不可写"_tr
                                                          : "日志文件夹不存在"_tr);
    m_pMessage->show();
    m_pFolder->setFocus();
    m_pFolder->selectAll();
}

QWidget* SettingsDialog::MakeSnaps()
{
    auto* pSnaps = new QWidget;
    auto* pGrid = new QGridLayout(pSnaps);
    pGrid->setContentsMargins(0, 0, 0, 0);
    constexpr int ColumnCount = 3;
    for (int i = 0; i < Snapper::KindCount; ++i)
    {
        auto* pBox = new QCheckBox(SnapCaption(static_cast<Snapper::Kind>(i)));
        pBox->setObjectName(QStringLiteral("Snap%1").arg(i));
        pGrid->addWidget(pBox, i / ColumnCount, i % ColumnCount);
        m_snaps[static_cast<std::size_t>(i)] = pBox;
    }
    return pSnaps;
}

QWidget* SettingsDialog::MakeFolder(const QString& defaultJournalFolder)
{
    auto* pRow = new QWidget;
    auto* pLayout = new QHBoxLayout(pRow);
    pLayout->setContentsMargins(0, 0, 0, 0);
    m_pFolder->setObjectName(QStringLiteral("JournalFolder"));
    m_pFolder->setPlaceholderText(QDir::toNativeSeparators(defaultJournalFolder));
    m_pFolder->setToolTip("留空则用 %1"_tr.arg(m_pFolder->placeholderText()));
    m_pFolder->setMinimumWidth(m_pFolder->fontMetrics().averageCharWidth() * 24);
    auto* pBrowse = new QPushButton("浏览…"_tr);
    pBrowse->setObjectName(QStringLiteral("Browse"));
    pBrowse->setAutoDefault(false);
    connect(pBrowse, &QPushButton::clicked, this, &SettingsDialog::OnBrowse);
    pLayout->addWidget(m_pFolder);
    pLayout->addWidget(pBrowse);
    // The key of its label goes only to what accepts the focus.
    pRow->setFocusProxy(m_pFolder);
    pRow->setFocusPolicy(m_pFolder->focusPolicy());
    return pRow;
}

QWidget* SettingsDialog::MakeButtons()
{
    auto* pButtons = new QDialogButtonBox;
    QPushButton* pAccept = pButtons->addButton("确定"_tr, QDialogButtonBox::AcceptRole);
    pButtons->addButton("取消"_tr, QDialogButtonBox::RejectRole);
    QPushButton* pDefaults = pButtons->addButton("恢复默认值"_tr, QDialogButtonBox::ResetRole);
    pAccept->setObjectName(QStringLiteral("Accept"));
    pAccept->setDefault(true);
    pDefaults->setObjectName(QStringLiteral("Defaults"));
    connect(pButtons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
    connect(pDefaults, &QPushButton::clicked, this, [this] { Show(Settings()); });
    return pButtons;
}

void SettingsDialog::Show(const Settings& settings)
{
    Select(*m_pLanguage, settings.language);
    Select(*m_pColours, static_cast<int>(settings.colours));
    Select(*m_pUnit, settings.unit);
    Select(*m_pSpace, settings.isSpaceCommitting);
    for (std::size_t i = 0; i < m_snaps.size(); ++i)
        m_snaps[i]->setChecked(settings.snaps[i]);
    m_pFolder->setText(QDir::toNativeSeparators(settings.journalFolder));
    m_pAutosave->setValue(settings.autosaveMinutes);
}

void SettingsDialog::OnBrowse()
{
    auto* pDialog = new QFileDialog(this, "日志文件夹"_tr, m_pFolder->text());
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    pDialog->setFileMode(QFileDialog::Directory);
    pDialog->setOption(QFileDialog::ShowDirsOnly);
    connect(pDialog, &QFileDialog::fileSelected, this, [this](const QString& folder) {
        m_pFolder->setText(QDir::toNativeSeparators(folder));
    });
    pDialog->open();
}
