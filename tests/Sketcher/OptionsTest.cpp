#include "Options.h"

#include "Support/Platform/FileLinks.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <filesystem>

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

        const Options options =
            Parse({"--journal", path + "1", "--model", path + "2", "--ui-tree", path + "3", "--log",
                   path + "4", "--screenshot", path + "5"});

        QCOMPARE(options.error, QString());
        QCOMPARE(options.journal, path + "1");
        QCOMPARE(options.model, path + "2");
        QCOMPARE(options.uiTree, path + "3");
        QCOMPARE(options.log, path + "4");
        QCOMPARE(options.screenshot, path + "5");
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
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

    void theDrawingFileIsTaken()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("a.vsk");
        QVERIFY(!Parse({path}).error.isEmpty());

        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));

        QCOMPARE(Parse({path}).error, QString());
        QCOMPARE(Parse({path}).document, path);
        QCOMPARE(Parse({path, path}).error, QStringLiteral("unexpected argument %1").arg(path));
        QVERIFY(!Parse({folder.path()}).error.isEmpty());
        QVERIFY(!Parse({"--open", path, path}).error.isEmpty());
        QVERIFY(!Parse({"--model", path, path}).error.isEmpty());
    }

    void aFileIsOneThing_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isRight");

        QTest::newRow("continued") << "--journal"
                                   << "--open"
                                   << "file" << true;
        QTest::newRow("completed") << "--journal"
                                   << "--replay"
                                   << "link" << true;
        QTest::newRow("read and replaced") << "--open"
                                           << "--model"
                                           << "file" << false;
        QTest::newRow("by a link") << "--replay"
                                   << "--model"
                                   << "link" << false;
        QTest::newRow("by another name") << "--open"
                                         << "--log"
                                         << "hard" << false;
        QTest::newRow("written twice") << "--journal"
                                       << "--screenshot"
                                       << "./file" << false;
        QTest::newRow("not there yet") << "--model"
                                       << "--ui-tree"
                                       << "none" << false;
    }

    void aFileIsOneThing()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, name);
        QFETCH(bool, isRight);
        QTemporaryDir folder;
        QFile file(folder.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        if (name == "link" && !vesk::test::MakeLink(file.fileName(), folder.filePath(name)))
            QSKIP(vesk::test::NoLinks);
        std::filesystem::create_hard_link(file.fileName().toStdString(),
                                          folder.filePath("hard").toStdString());
        const QString other = name == "none" ? folder.filePath("none") : file.fileName();

        const Options options = Parse({first, other, second, folder.filePath(name)});

        QCOMPARE(options.error.isEmpty(), isRight);
        QVERIFY(IsSameFile(other, folder.filePath(name)));
        QVERIFY(!IsSameFile(other, folder.filePath("another")));
        QVERIFY(!IsSameFile({}, {}));
    }

    void exportReadsADrawingWithoutAWindow_data()
    {
        QTest::addColumn<QString>("option");
        QTest::newRow("replay") << "--replay";
        QTest::newRow("open") << "--open";
    }

    void exportReadsADrawingWithoutAWindow()
    {
        QFETCH(QString, option);
        QTemporaryDir folder;
        QFile file(folder.filePath("journal"));
        QVERIFY(file.open(QIODevice::WriteOnly));

        const Options options =
            Parse({option, file.fileName(), "--export", folder.filePath("out.SVG")});

        QCOMPARE(options.error, QString());
        QCOMPARE(options.task, Options::Task::Replay);
        QCOMPARE(options.replay, file.fileName());
        QVERIFY(options.open.isEmpty());
        QCOMPARE(options.exportFile, folder.filePath("out.SVG"));
    }

    void exportNeedsADrawingAndAFormat()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("journal"));
        QVERIFY(file.open(QIODevice::WriteOnly));

        QVERIFY(!Parse({"--export", folder.filePath("out.svg")}).error.isEmpty());
        QVERIFY(!Parse({"--replay", file.fileName(), "--export", folder.filePath("out.jpg")})
                     .error.isEmpty());
    }

    void aReplayIsAskedForInDetail()
    {
        const QTemporaryDir folder;
        const QString path = MakeFile(folder);

        const Options plain = Parse({"--replay", path});
        const Options detailed = Parse(
            {"--replay", path, "--until", "12", "--speed", "real", "--stay", "--journal-sync"});

        QVERIFY(!plain.repetition.until.has_value());
        QVERIFY(!plain.repetition.isRealTime);
        QVERIFY(!plain.repetition.isStaying);
        QVERIFY(!plain.repetition.isSynced);
        QCOMPARE(detailed.error, QString());
        QCOMPARE(detailed.repetition.until.value_or(0), 12);
        QVERIFY(detailed.repetition.isRealTime);
        QVERIFY(detailed.repetition.isStaying);
        QVERIFY(detailed.repetition.isSynced);
        QVERIFY(!Parse({"--replay", path, "--speed", "max"}).repetition.isRealTime);
        QVERIFY(!Parse({"--replay", path, "--stay"}).repetition.isSynced);
        QVERIFY(!Parse({"--replay", path, "--journal-sync"}).repetition.isStaying);
    }

    void aReplayAskedForWronglyIsAnError_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error");

        const QString noNumber = "%1 is not the number of a record";
        QTest::newRow("until a name")
            << QStringList{"--replay", "FILE", "--until", "end"} << noNumber.arg("end");
        QTest::newRow("until nothing")
            << QStringList{"--replay", "FILE", "--until", "0"} << noNumber.arg("0");
        QTest::newRow("another speed")
            << QStringList{"--replay", "FILE", "--speed", "fast"} << "unknown speed fast";
        QTest::newRow("until without replay")
            << QStringList{"--until", "3"} << "--until needs --replay";
        QTest::newRow("speed of opening")
            << QStringList{"--open", "FILE", "--speed", "real"} << "--speed needs --replay";
        QTest::newRow("stay without replay") << QStringList{"--stay"} << "--stay needs --replay";
        QTest::newRow("until, and continued")
            << QStringList{"--replay", "FILE", "--journal", "FILE", "--until", "3"}
            << "--until cannot be used with a journal that is continued";
    }

    void aReplayAskedForWronglyIsAnError()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, error);
        const QTemporaryDir folder;

        QCOMPARE(Parse(arguments.replaceInStrings("FILE", MakeFile(folder))).error, error);
    }

    void helpListsEveryOption()
    {
        const Options options = Parse({"--help"});

        QCOMPARE(options.task, Options::Task::ShowHelp);
        for (const char* pName :
             {"--journal", "--replay", "--open", "--model", "--ui-tree", "--log", "--screenshot",
              "--export", "--until", "--speed", "--stay", "--journal-sync", "--help", "--version"})
            QVERIFY2(options.help.contains(QLatin1String(pName)), pName);
    }

    void nonsenseIsAnError_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("unknown") << QStringList{"--nonsense"};
        QTest::newRow("help of the toolkit") << QStringList{"--help-all"};
        QTest::newRow("argument") << QStringList{"file"};
        QTest::newRow("no value") << QStringList{"--journal"};
        QTest::newRow("unit") << QStringList{"--dxf-unit", "yd"};
        QTest::newRow("no such folder") << QStringList{"--journal", "/nonexistent/journal"};
    }

    void nonsenseIsAnError()
    {
        QFETCH(QStringList, arguments);

        QVERIFY(!Parse(arguments).error.isEmpty());
    }

private:
    static QString MakeFile(const QTemporaryDir& folder)
    {
        QFile file(folder.filePath("journal"));
        file.open(QIODevice::WriteOnly);
        return file.fileName();
    }

    static Options Parse(QStringList arguments)
    {
        arguments.prepend("sketcher");
        return ParseOptions(arguments);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(OptionsTest);
#include "OptionsTest.moc"
