#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SessionJournal.h"
#include "Settings/SettingsDialog.h"
#include "Settings/SettingsStore.h"
#include "SketcherWindow.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QPushButton>

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");
const QString s_fold = QStringLiteral("Sketcher.FoldRibbon");

bool IsInputting()
{
    return vesk::TemporaryDimensionMgr::GetInstance()->IsInputting();
}

bool IsRibbonShown()
{
    return ScriptedUser::FindButton(s_line)->isVisible();
}

bool IsChecked(const char* id)
{
    return ScriptedUser::FindButton(QLatin1String(id))->isChecked();
}

/// Keeps settings in the file of the next session.
void Keep(const Settings& settings)
{
    QVERIFY(SettingsStore(QString(), SettingsPath()).Set(settings));
}

/// Settings of which none is the default.
Settings Others()
{
    Settings settings;
    settings.unit = QStringLiteral("inch");
    settings.colours = Settings::Colours::Dark;
    settings.snaps = {false, true, false, false, true};
    settings.isSpaceCommitting = false;
    return settings;
}

}

/// What the settings do in a session, and that they do nothing to its replay.
class SettingsUseTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void settingsHoldFromTheStart()
    {
        const ScopedVariable attended("VESK_UNATTENDED", QStringLiteral("0"));
        Keep(Others());
        ScriptedUser user;

        user.Do([] {
            QVERIFY(IsChecked("Sketcher.Unit.inch"));
            QVERIFY(!IsChecked("Sketcher.Snap.End"));
            QVERIFY(IsChecked("Sketcher.Snap.Middle"));
            QVERIFY(IsChecked("Sketcher.Snap.Grid"));
            QVERIFY(QApplication::palette().color(QPalette::Base).lightness() < 64);
        });
        user.Click(s_line).ClickAt(0, 0).Type("10 ").Do([] { QVERIFY(IsInputting()); });
        user.Press(Qt::Key_Return).Do([] { QVERIFY(!IsInputting()); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void foldedRibbonIsFoldedInTheNextSession()
    {
        const ScopedVariable attended("VESK_UNATTENDED", QStringLiteral("0"));
        ScriptedUser user;
        user.Do([] { QVERIFY(IsRibbonShown()); }).Click(s_fold).Do([] {
            QVERIFY(!IsRibbonShown());
        });
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        ScriptedUser next;
        next.Do([] { QVERIFY(!IsRibbonShown()); });
        next.Press(Qt::Key_F1, Qt::ControlModifier).Do([] { QVERIFY(IsRibbonShown()); });
        QCOMPARE(next.Run(m_pFixture->Draw()), 0);

        QVERIFY(!SettingsStore(SettingsPath(), SettingsPath()).Get().isRibbonFolded);
        VerifyReplay();
    }

    void programThatIsDrivenKeepsNoFolding()
    {
        ScriptedUser user;
        user.Click(s_fold).Do([] { QVERIFY(!IsRibbonShown()); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QVERIFY(!QFile::exists(SettingsPath()));
    }

    void anotherLanguageLeavesTheRibbonFolded()
    {
        const ScopedVariable attended("VESK_UNATTENDED", QStringLiteral("0"));
        ScriptedUser user;
        user.Click(s_fold).Do([] { ScriptedUser::FindButton("Sketcher.Settings")->click(); });
        user.Until(
            [] { return ScriptedUser::FindWindow()->findChild<SettingsDialog*>() != nullptr; });
        user.Do([] {
            auto* pDialog = ScriptedUser::FindWindow()->findChild<SettingsDialog*>();
            auto* pBox = pDialog->findChild<QComboBox*>("Language");
            pBox->setCurrentIndex(pBox->findData("de"));
            pDialog->findChild<QPushButton*>("Accept")->click();
        });
        user.Until(
            [] { return ScriptedUser::FindWindow()->windowTitle().startsWith("Unbenannt"); });
        user.Do([] { QVERIFY(!IsRibbonShown()); });
        user.Click(s_fold).Do([] { QVERIFY(IsRibbonShown()); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void programThatIsDrivenStartsWithTheDefaults()
    {
        Keep(Others());
        ScriptedUser user;

        user.Do([] {
            QVERIFY(IsChecked("Sketcher.Unit.mm"));
            QVERIFY(IsChecked("Sketcher.Snap.End"));
            QVERIFY(!IsChecked("Sketcher.Snap.Grid"));
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void replayDoesNotDependOnTheSettings_data()
    {
        QTest::addColumn<bool>("areDrawnWithOthers");

        QTest::newRow("drawn with others") << true;
        QTest::newRow("replayed with others") << false;
    }

    void replayDoesNotDependOnTheSettings()
    {
        QFETCH(bool, areDrawnWithOthers);
        const ScopedVariable attended("VESK_UNATTENDED", QStringLiteral("0"));
        Keep(areDrawnWithOthers ? Others() : Settings());
        ScriptedUser user;
        user.Click(s_line).ClickAt(3, 4).Type("1.2 ").Press(Qt::Key_Return);
        user.Type("2.5").Press(Qt::Key_Tab).Type("33.3").Press(Qt::Key_Return).ClickAt(61, 57);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        Keep(areDrawnWithOthers ? Settings() : Others());

        QVERIFY(!Model().isEmpty());
        VerifyReplay();
    }

    void whatIsChosenInTheDialogHoldsAtOnceAndIsKept()
    {
        ScriptedUser user;
        user.Do([] { ScriptedUser::FindButton("Sketcher.Settings")->click(); })
            .Until(
                [] { return ScriptedUser::FindWindow()->findChild<SettingsDialog*>() != nullptr; })
            .Do([] {
                auto* pDialog = ScriptedUser::FindWindow()->findChild<SettingsDialog*>();
                pDialog->findChild<QComboBox*>("Unit")->setCurrentIndex(1);
                pDialog->findChild<QComboBox*>("Colours")->setCurrentIndex(2);
                pDialog->findChild<QPushButton*>("Accept")->click();
            })
            .Do([] {
                QVERIFY(IsChecked("Sketcher.Unit.cm"));
                QVERIFY(QApplication::palette().color(QPalette::Base).lightness() < 64);
            });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        const SettingsStore kept(SettingsPath(), SettingsPath());
        QCOMPARE(kept.Get().unit, QString("cm"));
        QVERIFY(kept.Get().colours == Settings::Colours::Dark);
        QVERIFY(QApplication::palette().color(QPalette::Base).lightness() > 64);
        VerifyReplay();
    }

    void whatIsChosenInTheRibbonStaysWhenAnotherSettingChanges()
    {
        ScriptedUser user;
        user.Click("Sketcher.Unit.m");
        user.Do([] { ScriptedUser::FindButton("Sketcher.Settings")->click(); })
            .Until(
                [] { return ScriptedUser::FindWindow()->findChild<SettingsDialog*>() != nullptr; })
            .Do([] {
                auto* pDialog = ScriptedUser::FindWindow()->findChild<SettingsDialog*>();
                pDialog->findChild<QComboBox*>("Space")->setCurrentIndex(1);
                pDialog->findChild<QPushButton*>("Accept")->click();
            })
            .Do([] { QVERIFY(IsChecked("Sketcher.Unit.m")); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void aJournalFolderThatCannotBeUsedIsReplacedByTheDefault_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("relative") << "journals-elsewhere";
        QTest::newRow("below a file") << "FILE/journals";
    }

    void aJournalFolderThatCannotBeUsedIsReplacedByTheDefault()
    {
        QFETCH(QString, folder);
        QVERIFY(vesk::WriteBytes(m_pFixture->File("file"), {}));
        const QString byDefault = SessionJournal::GetFolder().GetPath();

        SessionJournal::SetFolder(folder.replace("FILE", m_pFixture->File("file")));
        const QString used = SessionJournal::GetFolder().GetPath();

        SessionJournal::SetFolder({});
        QCOMPARE(used, byDefault);
    }
};

VESK_TESTS(SettingsUseTest);
#include "SettingsUseTest.moc"
