#include "SettingsApplier.h"

#include "Model/UiText.h"
#include "Model/UserFiles.h"
#include "Ribbon/CommandEntry.h"
#include "Settings/Languages.h"
#include "Settings/SettingsDialog.h"
#include "Settings/SettingsStore.h"
#include "SketcherWindow.h"

#include "HostUi/DimensionInputController.h"
#include "HostUi/QtText.h"
#include "Qtitan/RibbonBar.h"

#include <QFileInfo>

using namespace vesk;

SettingsApplier::SettingsApplier(SettingsStore& store, SketcherWindow& window,
                                 DimensionInputController& input, const QString& translations)
    : m_store(store), m_window(window), m_input(input), m_translations(translations)
{
    connect(&store, &SettingsStore::changed, this, &SettingsApplier::Apply);
}

void SettingsApplier::Apply(const Settings& before)
{
    const Settings settings = m_store.Get();
    m_appearance.Set(settings.colours);
    m_input.SetSpaceCommitting(settings.isSpaceCommitting);
    if (settings.isRibbonFolded != before.isRibbonFolded)
        m_window.GetRibbon()->setMinimized(settings.isRibbonFolded);
    if (settings.unit != before.unit)
        m_window.ChooseUnit(ToWide(settings.unit));
    if (settings.snaps != before.snaps)
        m_window.ChooseSnaps(settings.snaps);
}

void SettingsApplier::ShowDialog()
{
    const QString folder = QFileInfo(DataFile(QString())).path();
    auto* pDialog =
        new SettingsDialog(m_store.Get(), FindLanguages(m_translations), folder, &m_window);
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(pDialog, &SettingsDialog::accepted, this, [this, pDialog] {
        if (!m_store.Set(pDialog->Get()))
            m_window.ShowNotice("无法保存设置：%1"_tr.arg(m_store.GetPath()));
    });
    pDialog->open();
}

bool SettingsApplier::KeepRibbon()
{
    Settings settings = m_store.Get();
    settings.isRibbonFolded = m_window.GetRibbon()->isMinimized();
    return m_store.Set(settings);
}

CommandEntry SettingsApplier::MakeFoldCommand()
{
    const auto fold = [this] {
        Qtitan::RibbonBar& ribbon = *m_window.GetRibbon();
        ribbon.setMinimized(!ribbon.isMinimized());
    };
    return CommandEntry::Plain(L"Sketcher.FoldRibbon", L"折叠功能区"_source, fold)
        .WithIcon(L"ribbon-fold")
        .WithToolTip(L"只显示功能区的选项卡，或恢复显示"_source)
        .WithKeys(L"Ctrl+F1")
        .InGroup(TabRow);
}

CommandEntry SettingsApplier::MakeCommand()
{
    return CommandEntry::Dialog(L"Sketcher.Settings", L"设置"_source, [this] { ShowDialog(); })
        .WithIcon(L"settings")
        .WithToolTip(L"语言、颜色、单位、捕捉、按键和日志"_source)
        .WithKeys(L"Ctrl+,")
        .InGroup(L"帮助"_source)
        .OnStartPage();
}
