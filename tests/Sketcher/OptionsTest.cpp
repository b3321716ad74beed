#include "Options.h"

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
        QVERIFY(file.link(folder.filePath("link")));
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

    void helpListsEveryOption()
    {
        const Options options = Parse({"--help"});

        QCOMPARE(options.task, Options::Task::ShowHelp);
        for (const char* pName : {"--journal", "--replay", "--open", "--model", "--ui-tree",
                                  "--log", "--screenshot", "--export", "--help", "--version"})
            QVERIFY2(options.help.contains(QLatin1String(pName)), pName);
    }

    void nonsenseIsAnError_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("unknown") << QStringList{"--nonsense"};
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
    static Options Parse(QStringList arguments)
    {
        arguments.prepend("sketcher");
        return ParseOptions(arguments);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(OptionsTest);
#include "OptionsTest.moc"
