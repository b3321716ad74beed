#include "ScenarioTest.h"
#include "ScriptedUser.h"

#include "Recovery/JournalFolder.h"
#include "Recovery/Snapshot.h"
#include "SessionJournal.h"
#include "Settings/Settings.h"
#include "Settings/SettingsStore.h"

#include "Support/TestValues.h"

#include <QDir>
#include <QFileInfo>

/// Automatic saves of a session, at the interval of the settings.
class AutosaveUseTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    /// Takes a minute: the shortest interval that can be chosen.
    void theDrawingIsSavedBesideTheJournalAfterAMinute()
    {
        Settings settings;
        settings.autosaveMinutes = 1;
        QDir().mkpath(QFileInfo(SettingsPath()).path());
        WriteFile(SettingsPath(), QByteArray::fromStdString(ToText(settings, {})));
        std::optional<Snapshot> snapshot;
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).Until([&snapshot] {
            const QStringList journals = SessionJournal::GetFolder().GetJournals();
            if (!journals.isEmpty())
                snapshot = Snapshot::FindNewest(journals.front());
            return snapshot.has_value();
        });

        QCOMPARE(user.Run(UnaskedOptions()), 0);

        QVERIFY(snapshot.has_value());
        QCOMPARE(snapshot->content.entities.size(), std::size_t(1));
    }

private:
    /// No option names the journal, so that it is the program's own; the end asks nothing because
    /// of the model.
    Options UnaskedOptions() const
    {
        Options options;
        options.model = m_pFixture->File("model");
        return options;
    }

    const ScopedVariable m_attended{"VESK_UNATTENDED", QString()};
};

VESK_TESTS(AutosaveUseTest);
#include "AutosaveUseTest.moc"
