#include "Settings/SettingsStore.h"

#include "Support/TestValues.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>

/// The file of the settings.
class SettingsStoreTest final : public QObject
{
    Q_OBJECT

private slots:
    void changesAreThereInTheNextRun()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("new/settings.json");
        Settings settings;
        settings.autosaveMinutes = 17;
        {
            SettingsStore store(path, path);
            QVERIFY(store.Set(settings));
        }

        const SettingsStore next(path, path);

        QVERIFY(next.Get() == settings);
    }

    void formerJournalFoldersAreRemembered()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("settings.json");
        SettingsStore store(path, path);
        for (const char* chosen : {"/a", "", "/b", "/a", "/c", "/d", "/e", "/f", "/g", "/h"})
        {
            Settings settings;
            settings.journalFolder = chosen;
            QVERIFY(store.Set(settings));
        }

        const SettingsStore next(path, path);

        QCOMPARE(next.Get().formerJournalFolders, QStringList({"/g", "/f", "/e", "/d", "/c"}));
    }

    void aFolderThatIsChosenAgainIsNoFormerOne()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("settings.json");
        SettingsStore store(path, path);
        Settings settings;
        for (const char* chosen : {"/a", "/b", "/a"})
        {
            settings.journalFolder = chosen;
            QVERIFY(store.Set(settings));
        }
        settings.autosaveMinutes = 1;

        QVERIFY(store.Set(settings));

        QCOMPARE(store.Get().formerJournalFolders, QStringList("/b"));
    }

    void withoutAPathToReadTheDefaultsHold()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("settings.json");
        Settings settings;
        settings.autosaveMinutes = 17;
        SettingsStore(path, path).Set(settings);

        const SettingsStore store(QString(), path);

        QVERIFY(store.Get() == Settings());
        QCOMPARE(store.GetPath(), path);
    }

    void aFileThatIsNotThereIsNotMade()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("settings.json");

        SettingsStore store(path, path);

        QVERIFY(store.Get() == Settings());
        QVERIFY(store.Set(Settings()));
        QVERIFY(!QFileInfo::exists(path));
    }

    void aChangeIsToldWithWhatWasBefore()
    {
        const QTemporaryDir folder;
        SettingsStore store(QString(), folder.filePath("settings.json"));
        std::vector<int> minutes;
        connect(&store, &SettingsStore::changed, this, [&](const Settings& before) {
            minutes = {before.autosaveMinutes, store.Get().autosaveMinutes};
        });
        Settings settings;
        settings.autosaveMinutes = 17;

        store.Set(settings);
        QCOMPARE(minutes, (std::vector<int>{5, 17}));

        minutes.clear();
        store.Set(settings);
        QVERIFY(minutes.empty());
    }

    void aFileThatCannotBeWrittenIsToldOfAndTheChangeHolds()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("settings.json");
        QVERIFY(QDir(folder.path()).mkdir("settings.json"));
        SettingsStore store(path, path);
        Settings settings;
        settings.autosaveMinutes = 17;

        QVERIFY(!store.Set(settings));

        QCOMPARE(store.Get().autosaveMinutes, 17);
    }
};

VESK_TESTS(SettingsStoreTest);
#include "SettingsStoreTest.moc"
