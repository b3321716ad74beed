#include "HostUi/LayoutFile.h"

#include "HostUi/PaneRun.h"
#include "Support/FileBytes.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

#include <functional>

namespace vesk
{

static char* toString(LayoutFile::Content content)
{
    return test::ToShown(QStringLiteral("Content %1").arg(static_cast<int>(content)));
}

}

namespace vesk::test
{

/// Turns a good file into a bad one.
using Damage = std::function<QByteArray(const QByteArray& good, QRandomGenerator& random)>;

}

Q_DECLARE_METATYPE(vesk::test::Damage)
Q_DECLARE_METATYPE(vesk::LayoutFile::Content)

namespace vesk::test
{

using Content = LayoutFile::Content;

/// Layout files, and what may happen to them between two runs.
class LayoutFileTest : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsRead();
    void whatAnEarlierProgramWroteIsRead();
    void aFileThatIsNotThereIsMissing();
    void anythingElseIsDamaged_data();
    void anythingElseIsDamaged();
    void oneOfMoreThanAMegabyteIsDamaged_data();
    void oneOfMoreThanAMegabyteIsDamaged();
    void aFolderInItsPlaceIsDamagedAndStays();
    void oneOfALaterVersionIsNewer();
    void whatCannotBeReadIsKept_data();
    void whatCannotBeReadIsKept();
    void aLayoutThatIsReplacedIsNotKept();
    void aLargeFileIsKeptWhole();
    void whatCannotBeKeptIsNotReplaced();
    void aFolderThatCannotBeMadeIsToldOf();
    void noFileHarmsTheProgram_data();
    void noFileHarmsTheProgram();

private:
    QString Path() const { return m_folder.filePath(QStringLiteral("sub/layout.json")); }
    void Put(const QByteArray& text) const;

    QTemporaryDir m_folder;
};

void LayoutFileTest::Put(const QByteArray& text) const
{
    QDir().mkpath(QFileInfo(Path()).path());
    QVERIFY(WriteBytes(Path(), text));
}

void LayoutFileTest::whatIsWrittenIsRead()
{
    const QByteArray layout("\0\xff layout \n", 11);

    QVERIFY(LayoutFile::Write(Path(), layout));

    const LayoutFile::Reading reading = LayoutFile::Read(Path());
    QCOMPARE(reading.content, Content::Layout);
    QCOMPARE(reading.layout, layout);
}

void LayoutFileTest::whatAnEarlierProgramWroteIsRead()
{
    Put(R"({"version": 1, "layout": "bGF5b3V0", "checksum":
        "1dc5ae5b68174891b6aa9850aa05ee0d9ae8a20468d9517259951a2dd9e9c0f0"})");

    const LayoutFile::Reading reading = LayoutFile::Read(Path());

    QCOMPARE(reading.content, Content::Layout);
    QCOMPARE(reading.layout, QByteArray("layout"));
}

void LayoutFileTest::aFileThatIsNotThereIsMissing()
{
    QCOMPARE(LayoutFile::Read(m_folder.filePath("none")).content, Content::Missing);
}

void LayoutFileTest::anythingElseIsDamaged_data()
{
    QVERIFY(LayoutFile::Write(Path(), "layout"));
    const QByteArray good = ReadBytes(Path());
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("layout");
    QTest::newRow("torn") << good.left(good.size() / 2);
    QTest::newRow("no version") << QByteArray(good).replace("version", "revision");
    QTest::newRow("an older version") << QByteArray(good).replace(": 1", ": 0");
    QTest::newRow("no layout") << QByteArray(good).replace("\"layout\"", "\"other\"");
    QVERIFY(LayoutFile::Write(Path(), ""));
    QTest::newRow("an empty layout") << ReadBytes(Path());
    QTest::newRow("another layout")
        << QByteArray(good).replace(QByteArray("layout").toBase64(), "AAAA");
    QTest::newRow("no checksum") << QByteArray(good).replace("checksum", "sum");
}

void LayoutFileTest::anythingElseIsDamaged()
{
    QFETCH(QByteArray, text);
    Put(text);

    const LayoutFile::Reading reading = LayoutFile::Read(Path());

    QCOMPARE(reading.content, Content::Damaged);
    QVERIFY(reading.layout.isEmpty());
}

void LayoutFileTest::oneOfMoreThanAMegabyteIsDamaged_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<Content>("content");

    QTest::newRow("a megabyte") << (1 << 20) << Content::Layout;
    QTest::newRow("a byte more") << (1 << 20) + 1 << Content::Damaged;
}

void LayoutFileTest::oneOfMoreThanAMegabyteIsDamaged()
{
    QFETCH(int, size);
    QVERIFY(LayoutFile::Write(Path(), "layout"));
    const QByteArray good = ReadBytes(Path()).trimmed();
    Put(QByteArray(size - good.size(), ' ') + good);

    QTEST(LayoutFile::Read(Path()).content, "content");
}

/// The toolkit's warnings.
static QStringList s_complaints;

void LayoutFileTest::aFolderInItsPlaceIsDamagedAndStays()
{
    s_complaints.clear();
    const auto note = [](QtMsgType, const QMessageLogContext&, const QString& text) {
        s_complaints << text;
    };
    const QtMessageHandler previous = qInstallMessageHandler(note);

    const Content content = LayoutFile::Read(m_folder.path()).content;
    const bool isWritten = LayoutFile::Write(m_folder.path(), "layout");

    qInstallMessageHandler(previous);
    QCOMPARE(content, Content::Damaged);
    QVERIFY(!isWritten);
    QVERIFY(QDir(m_folder.path()).exists());
    QCOMPARE(s_complaints, QStringList());
}

void LayoutFileTest::oneOfALaterVersionIsNewer()
{
    Put("{\"version\": 2, \"panes\": []}");

    QCOMPARE(LayoutFile::Read(Path()).content, Content::Newer);
}

void LayoutFileTest::whatCannotBeReadIsKept_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("damaged") << QByteArray("damaged");
    QTest::newRow("newer") << QByteArray("{\"version\": 7}");
}

void LayoutFileTest::whatCannotBeReadIsKept()
{
    QFETCH(QByteArray, text);
    Put(text);

    QVERIFY(LayoutFile::Write(Path(), "layout"));
    QVERIFY(LayoutFile::Write(Path(), "another layout"));

    QCOMPARE(ReadBytes(Path() + ".kept"), text);
    QCOMPARE(LayoutFile::Read(Path()).layout, QByteArray("another layout"));
}

void LayoutFileTest::aLayoutThatIsReplacedIsNotKept()
{
    const QString path = m_folder.filePath("again.json");
    QVERIFY(LayoutFile::Write(path, "layout"));

    QVERIFY(LayoutFile::Write(path, "another layout"));

    QVERIFY(!QFile::exists(path + ".kept"));
}

void LayoutFileTest::aLargeFileIsKeptWhole()
{
    const QByteArray text(3 << 20, 'x');
    Put(text);

    QVERIFY(LayoutFile::Write(Path(), "layout"));

    QVERIFY(ReadBytes(Path() + ".kept") == text);
}

void LayoutFileTest::whatCannotBeKeptIsNotReplaced()
{
    Put("damaged");
    QFile::remove(Path() + ".kept");
    QVERIFY(QDir().mkpath(Path() + ".kept/in the way"));

    QVERIFY(!LayoutFile::Write(Path(), "layout"));

    QCOMPARE(ReadBytes(Path()), QByteArray("damaged"));
    QVERIFY(QDir(Path() + ".kept").removeRecursively());
}

void LayoutFileTest::aFolderThatCannotBeMadeIsToldOf()
{
    QVERIFY(LayoutFile::Write(Path(), "layout"));

    QVERIFY(!LayoutFile::Write(Path() + "/below/layout.json", "layout"));
}

static QByteArray RandomText(QRandomGenerator& random, int length)
{
    QByteArray text(length, '\0');
    for (char& byte : text)
        byte = static_cast<char>(random.bounded(256));
    return text;
}

void LayoutFileTest::noFileHarmsTheProgram_data()
{
    QTest::addColumn<Damage>("damage");

    QTest::newRow("noise") << Damage([](const QByteArray&, QRandomGenerator& random) {
        return RandomText(random, random.bounded(2000));
    });
    QTest::newRow("changed bytes") << Damage([](QByteArray text, QRandomGenerator& random) {
        for (int i = random.bounded(1, 10); i > 0; --i)
            text[random.bounded(text.size())] = static_cast<char>(random.bounded(256));
        return text;
    });
    QTest::newRow("cut off") << Damage([](const QByteArray& text, QRandomGenerator& random) {
        return text.left(random.bounded(text.size()));
    });
    QTest::newRow("a part twice") << Damage([](QByteArray text, QRandomGenerator& random) {
        const int from = random.bounded(text.size());
        return text.insert(random.bounded(text.size()), text.mid(from, random.bounded(200)));
    });
}

/// Whatever is in the file, every pane has a position, and showing it makes it visible.
void LayoutFileTest::noFileHarmsTheProgram()
{
    // Each round lays out six panes again; this many rounds take a few seconds.
    const int rounds = qMax(150, qEnvironmentVariableIntValue("VESK_LAYOUT_ROUNDS"));
    QFETCH(Damage, damage);
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    const QByteArray seedText = "seed " + QByteArray::number(seed);
    Run run;
    run.Arrange();
    QVERIFY(LayoutFile::Write(Path(), run.pLayout->Save()));
    const QByteArray good = ReadBytes(Path());

    for (int round = 0; round < rounds; ++round)
    {
        Put(damage(good, random));
        run.pLayout->Restore(LayoutFile::Read(Path()).layout);
        // What the toolkit defers until an event loop runs.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const char* name : {"A", "B", "C", "D", "E", "F"})
        {
            QDockWidget* pPane = run.Pane(name);
            QVERIFY2(IsPlaced(run, pPane), seedText);
            run.manager.GetDock(ToWide(QLatin1String(name)))->Show();
            QVERIFY2(pPane->isVisible(), seedText);
        }
    }
}

}

VESK_TESTS(vesk::test::LayoutFileTest);
#include "LayoutFileTest.moc"
