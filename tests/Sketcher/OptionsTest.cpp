#include "Options.h"

#include "Support/TestValues.h"

#include <QFile>
#include <QTemporaryDir>

class OptionsTest final : public QObject
{
    Q_OBJECT

private slots:
    void nothingAskedMeansDrawing()
    {
        const Options options = Parse({});

        QCOMPARE(options.error, QString());
        QCOMPARE(options.task, Options::Task::Draw);
        QVERIFY(options.journal.isEmpty());
    }

    void everyFileIsTaken()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("file");

        const Options options = Parse({"--journal", path, "--model", path, "--ui-tree", path,
                                       "--log", path, "--screenshot", path});

        QCOMPARE(options.error, QString());
        QCOMPARE(options.journal, path);
        QCOMPARE(options.model, path);
        QCOMPARE(options.uiTree, path);
        QCOMPARE(options.log, path);
        QCOMPARE(options.screenshot, path);
        QVERIFY2(!QFile::exists(path), "checking must not make the file");
    }

    void journalToRepeatMustBeReadable()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("journal");

        QVERIFY(!Parse({"--replay", path}).error.isEmpty());
        QVERIFY(!Parse({"--open", folder.path()}).error.isEmpty());

        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(Parse({"--replay", path}).error, QString());
        QCOMPARE(Parse({"--replay", path}).task, Options::Task::Replay);
        QCOMPARE(Parse({"--open", path}).task, Options::Task::Draw);
        QVERIFY(!Parse({"--open", path, "--replay", path}).error.isEmpty());
    }

    void helpListsEveryOption()
    {
        const Options options = Parse({"--help"});

        QCOMPARE(options.task, Options::Task::ShowHelp);
        for (const char* pName : {"--journal", "--replay", "--open", "--model", "--ui-tree",
                                  "--log", "--screenshot", "--help", "--version"})
            QVERIFY2(options.help.contains(QLatin1String(pName)), pName);
    }

    void nonsenseIsAnError_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("unknown") << QStringList{"--nonsense"};
        QTest::newRow("argument") << QStringList{"file"};
        QTest::newRow("no value") << QStringList{"--journal"};
        QTest::newRow("no such folder") << QStringList{"--journal", "/nonexistent/journal"};
    }

    void nonsenseIsAnError()
    {
        QFETCH(QStringList, arguments);

        QVERIFY(!Parse(arguments).error.isEmpty());
    }

private:
    static Options Parse(QStringList arguments)
    {
        arguments.prepend("sketcher");
        return ParseOptions(arguments);
    }
};

QTEST_GUILESS_MAIN(OptionsTest)
#include "OptionsTest.moc"
