#include "ScenarioTest.h"
#include "ScriptedUser.h"

#include "Recovery/JournalFolder.h"
#include "Recovery/Snapshot.h"
#include "SessionJournal.h"
#include "Settings/Settings.h"
#include "Settings/SettingsStore.h"

#include "Support/TestValues.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

/// Automatic saves of a session, at the interval of the settings.
class AutosaveUseTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    void theDrawingIsSavedBesideTheJournalAfterAMinute_data()
    {
        QTest::addColumn<bool>("isAtWork");

        QTest::newRow("at rest") << false;
        QTest::newRow("once the tool that runs has ended") << true;
    }

    /// Takes a minute: the shortest interval that can be chosen.
    void theDrawingIsSavedBesideTheJournalAfterAMinute()
    {
        QFETCH(bool, isAtWork);
        Settings settings;
        settings.autosaveMinutes = 1;
        QDir().mkpath(QFileInfo(SettingsPath()).path());
        WriteFile(SettingsPath(), QByteArray::fromStdString(ToText(settings, {})));
        std::optional<Snapshot> snapshot;
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0);
        if (isAtWork)
            WorkForMoreThanAMinute(user);
        user.Until([&snapshot] {
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
    static void WorkForMoreThanAMinute(ScriptedUser& user)
    {
        constexpr qint64 LongMs = 63000;
        user.Click("Sketcher.Circle").ClickAt(0, 0);
        user.Until([timer = QElapsedTimer()]() mutable {
            if (!timer.isValid())
                timer.start();
            return timer.hasExpired(LongMs);
        });
        user.Press(Qt::Key_Escape).UntilRunning(QString());
    }

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
